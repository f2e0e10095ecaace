#include "borverifica/verifica.h"

using namespace Qt::StringLiterals;

namespace bor::verifica {

QString testo(Rimedio rimedio) {
    switch (rimedio) {
    case Rimedio::Nessuno:
        return u"Non occorre fare nulla."_s;
    case Rimedio::Correggi:
        return u"Aprite il documento, correggetelo e registratelo."_s;
    case Rimedio::Registra:
        return u"Aprite il documento e registratelo di nuovo."_s;
    case Rimedio::ScegliCliente:
        return u"Aprite il documento, scegliete il cliente nella testata e registratelo."_s;
    case Rimedio::CambiaNumero:
        return u"Aprite uno dei documenti, cambiatene il numero e registratelo."_s;
    case Rimedio::ControllaNumeri:
        return u"Controllate se manca un documento o se la numerazione è stata fatta ripartire."_s;
    case Rimedio::RegistraRighe:
        return u"Aprite il documento sul computer che lo ha emesso, completatene le righe e registratelo."_s;
    case Rimedio::SeparaRighe:
        return u"Mettete da parte il file delle righe, poi riscrivete le righe di ogni documento e "
               u"registratelo."_s;
    case Rimedio::MettiDaParte:
        return u"A programma chiuso spostate il file in un'altra cartella, dopo averlo guardato."_s;
    case Rimedio::RifaiFattura:
        return u"Aprite il documento, compilate di nuovo i dati della fattura elettronica e registratelo."_s;
    case Rimedio::RifaiMovimento:
        return u"Aprite il documento, registratelo e rispondete Sì alla domanda sul movimento contabile."_s;
    case Rimedio::ControllaMovimento:
        return u"Controllate il movimento nella contabilità, e correggetelo o eliminatelo se non è voluto."_s;
    case Rimedio::RiordinaMovimenti:
        return u"Riordinate l'archivio dei movimenti contabili e ricalcolate i progressivi."_s;
    case Rimedio::RifaiProgressivi:
        return u"Ricalcolate nella contabilità i progressivi del conto dai suoi movimenti."_s;
    case Rimedio::ControllaRigaMagazzino:
        return u"Controllate la riga nel magazzino, ed eliminatela se non è voluta."_s;
    case Rimedio::ControllaArticolo:
        return u"Contate la merce e correggete giacenza e venduto nella scheda dell'articolo."_s;
    case Rimedio::RicostruisciIndici:
        return u"Ricostruite gli indici con il programma di manutenzione."_s;
    case Rimedio::AvviaProgramma:
        return u"Avviate il programma su questa azienda: all'avvio completa la registrazione."_s;
    case Rimedio::ConfrontaDato:
        return u"Avviate il programma, poi confrontate questo dato con il documento e correggetelo."_s;
    case Rimedio::CorreggiContatore:
        return u"Non registrate altri documenti prima che l'assistenza abbia corretto borlano.tot."_s;
    case Rimedio::RipristinaCopia:
        return u"Ripristinate l'azienda dall'ultima copia di sicurezza."_s;
    case Rimedio::Assistenza:
        break;
    }
    return u"Non modificate né eliminate i documenti prima che l'assistenza abbia separato i riferimenti."_s;
}

} // namespace bor::verifica
