#include "xmlcheck/vistafattura.h"

#include "common/date.h"
#include "common/numeri.h"
#include "xmlcheck/codicifattura.h"
#include "xmlcheck/controllifattura.h"
#include "xmlcheck/paginahtml.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr int vociMassime = 4000;
constexpr qsizetype righeMassime = 2000;

QString tipoInParole(const QString& codice) {
    const QString testo = testoCodice(ListaCodici::TipoDocumento, codice);
    return testo.isEmpty() ? u"Documento %1"_s.arg(codice) : testo;
}

QString unisci(const QStringList& parti, const QString& fra) {
    QStringList piene;
    for (const QString& parte : parti)
        if (!parte.isEmpty())
            piene.append(parte);
    return piene.join(fra);
}

QString nomeDi(const Nodo& anagrafica) {
    return unisci({anagrafica.valore(u"Denominazione"), anagrafica.valore(u"Titolo"),
                   anagrafica.valore(u"Nome"), anagrafica.valore(u"Cognome")},
                  u" "_s);
}

QString indirizzoDi(const Nodo& sede) {
    const QString provincia = sede.valore(u"Provincia");
    return unisci({unisci({sede.valore(u"Indirizzo"), sede.valore(u"NumeroCivico")}, u" "_s),
                   unisci({sede.valore(u"CAP"), sede.valore(u"Comune"),
                           provincia.isEmpty() ? QString() : u'(' + provincia + u')'},
                          u" "_s),
                   sede.valore(u"Nazione")},
                  u" - "_s);
}

void mostraSoggetto(PaginaHtml& pagina, const QString& titolo, const Nodo* soggetto) {
    if (!soggetto)
        return;
    pagina.sezione(titolo);
    if (const Nodo* dati = soggetto->figlio(u"DatiAnagrafici")) {
        if (const Nodo* anagrafica = dati->figlio(u"Anagrafica"))
            pagina.paragrafo(nomeDi(*anagrafica));
        if (const Nodo* id = dati->figlio(u"IdFiscaleIVA"))
            pagina.voce(u"Partita IVA"_s, id->valore(u"IdPaese") + u' ' + id->valore(u"IdCodice"));
        pagina.voce(u"Codice fiscale"_s, dati->valore(u"CodiceFiscale"));
        pagina.voce(u"Regime fiscale"_s, codiceInParole(ListaCodici::Regime, dati->valore(u"RegimeFiscale")));
    }
    if (const Nodo* sede = soggetto->figlio(u"Sede"))
        pagina.voce(u"Sede"_s, indirizzoDi(*sede));
    if (const Nodo* contatti = soggetto->figlio(u"Contatti"))
        pagina.voce(u"Contatti"_s,
                    unisci({contatti->valore(u"Telefono"), contatti->valore(u"Email")}, u" - "_s));
}

void mostraTestata(PaginaHtml& pagina, const Nodo& testata) {
    pagina.affianca();
    mostraSoggetto(pagina, u"Chi vende"_s, testata.figlio(u"CedentePrestatore"));
    pagina.secondaColonna();
    mostraSoggetto(pagina, u"Chi compra"_s, testata.figlio(u"CessionarioCommittente"));
    pagina.fineColonne();
    if (const Nodo* trasmissione = testata.figlio(u"DatiTrasmissione")) {
        pagina.sezione(u"Trasmissione"_s);
        pagina.voce(u"Progressivo"_s, trasmissione->valore(u"ProgressivoInvio"));
        pagina.voce(u"Formato"_s, trasmissione->valore(u"FormatoTrasmissione"));
        pagina.voce(u"Codice destinatario"_s, trasmissione->valore(u"CodiceDestinatario"));
        pagina.voce(u"PEC"_s, trasmissione->valore(u"PECDestinatario"));
    }
}

} // namespace

QString numeroItaliano(const QString& testo) {
    static const QRegularExpression forma(u"\\A-?[0-9]{1,15}(\\.[0-9]{1,8})?\\z"_s);
    if (!forma.match(testo).hasMatch())
        return testo;
    const qsizetype punto = testo.indexOf(u'.');
    return testoItaliano(valore(testo), punto < 0 ? 0 : static_cast<int>(testo.size() - punto - 1));
}

QString dataItaliana(const QString& testo) {
    const QDate data = QDate::fromString(testo, Qt::ISODate);
    return data.isValid() ? testoData(data) : testo;
}

bool PaginaHtml::nonEntra() {
    const bool piena = m_voci >= vociMassime;
    if (piena)
        ++m_fuori;
    else
        ++m_voci;
    return piena;
}

QString PaginaHtml::breve(const QString& testo) {
    constexpr qsizetype massimo = 2000;
    return (testo.size() > massimo ? testo.left(massimo) + u" (...)"_s : testo).toHtmlEscaped();
}

void PaginaHtml::voce(const QString& nome, const QString& valore) {
    if (!valore.isEmpty() && !nonEntra())
        m_corpo += u"<p><b>"_s + breve(nome) + u":</b> "_s + breve(valore) + u"</p>\n"_s;
}

void PaginaHtml::tabella(const QStringList& colonne, const QList<QStringList>& righe) {
    if (righe.isEmpty() || m_voci >= vociMassime) {
        m_fuori += righe.size();
        return;
    }
    m_corpo += u"<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\" width=\"100%\">\n<tr>";
    for (const QString& nome : colonne)
        m_corpo += u"<th>"_s + (nome.startsWith(u'>') ? nome.mid(1) : nome).toHtmlEscaped() + u"</th>"_s;
    m_corpo += u"</tr>\n";
    m_fuori += std::max(righe.size() - righeMassime, qsizetype{0});
    for (const QStringList& riga : righe.first(std::min(righe.size(), righeMassime))) {
        if (nonEntra())
            continue;
        m_corpo += u"<tr>";
        for (qsizetype i = 0; i < riga.size(); ++i) {
            const bool aDestra = colonne.value(i).startsWith(u'>');
            m_corpo += (aDestra ? u"<td align=\"right\">"_s : u"<td>"_s) + breve(riga[i]) + u"</td>"_s;
        }
        m_corpo += u"</tr>\n";
    }
    m_corpo += u"</table>\n";
}

QString PaginaHtml::html(const QString& nomePagina) const {
    const QString fine =
        m_fuori == 0
            ? QString()
            : u"<p>La pagina non mostra tutto: altre %1 voci del file restano fuori.</p>\n"_s.arg(m_fuori);
    return u"<!DOCTYPE html>\n<html lang=\"it\"><head><meta charset=\"utf-8\"><title>"_s +
           nomePagina.toHtmlEscaped() +
           u"</title>\n<style>p { margin: 2px 0 } h2 { margin: 12px 0 4px } td { vertical-align: top "
           u"}</style></head>\n"
           u"<body>\n"_s +
           m_corpo + fine + u"</body></html>\n"_s;
}

void mostraDocumento(PaginaHtml& pagina, const Nodo& corpo) {
    const Nodo* generali = corpo.figlio(u"DatiGenerali");
    const Nodo* documento = generali ? generali->figlio(u"DatiGeneraliDocumento") : nullptr;
    if (!documento)
        return;
    pagina.titolo(u"%1 n. %2 del %3"_s.arg(tipoInParole(documento->valore(u"TipoDocumento")),
                                           documento->valore(u"Numero"),
                                           dataItaliana(documento->valore(u"Data"))));
    pagina.voce(u"Totale documento"_s, unisci({documento->valore(u"Divisa"),
                                               numeroItaliano(documento->valore(u"ImportoTotaleDocumento"))},
                                              u" "_s));
    for (const Nodo& n : documento->figli) {
        if (n.nome == u"Causale")
            pagina.voce(u"Causale"_s, n.testo.trimmed());
        else if (n.nome == u"DatiBollo")
            pagina.voce(u"Bollo"_s, numeroItaliano(n.valore(u"ImportoBollo")));
        else if (n.nome == u"DatiRitenuta")
            pagina.voce(u"Ritenuta"_s,
                        u"%1 (%2%, %3, causale %4)"_s.arg(
                            numeroItaliano(n.valore(u"ImportoRitenuta")),
                            numeroItaliano(n.valore(u"AliquotaRitenuta")),
                            codiceInParole(ListaCodici::TipoRitenuta, n.valore(u"TipoRitenuta")),
                            codiceInParole(ListaCodici::CausaleRitenuta, n.valore(u"CausalePagamento"))));
        else if (n.nome == u"DatiCassaPrevidenziale")
            pagina.voce(u"Cassa"_s,
                        u"%1 %2%: %3 su %4"_s.arg(codiceInParole(ListaCodici::Cassa, n.valore(u"TipoCassa")),
                                                  numeroItaliano(n.valore(u"AlCassa")),
                                                  numeroItaliano(n.valore(u"ImportoContributoCassa")),
                                                  numeroItaliano(n.valore(u"ImponibileCassa"))));
    }
}

QString vistaFattura(const QByteArray& contenuto) {
    const LetturaXml lettura = leggiXml(contenuto);
    PaginaHtml pagina;
    const QString nome = u"Fattura elettronica"_s;
    if (!lettura.radice || lettura.radice->nome != u"FatturaElettronica") {
        pagina.titolo(nome);
        pagina.paragrafo(u"Il file non è una fattura elettronica."_s);
        for (const Rilievo& r : lettura.rilievi)
            pagina.paragrafo(r.motivo);
        return pagina.html(nome);
    }
    const Nodo* testata = lettura.radice->figlio(u"FatturaElettronicaHeader");
    bool primo = true;
    for (const Nodo& corpo : lettura.radice->figli) {
        if (corpo.nome != u"FatturaElettronicaBody")
            continue;
        mostraDocumento(pagina, corpo);
        if (primo && testata)
            mostraTestata(pagina, *testata);
        primo = false;
        mostraRighe(pagina, corpo);
    }
    return pagina.html(nome);
}

} // namespace bor
