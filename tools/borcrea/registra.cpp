// Stores and posts the documents of a new company, by the program's own procedures.
#include "borcrea/registra.h"

#include "common/date.h"
#include "common/numeri.h"
#include "document/filerighe.h"
#include "document/recorddoc.h"
#include "posting/borftec.h"
#include "posting/scarico.h"
#include "posting/setfat.h"

#include <QDateTime>
#include <QFile>

#include <algorithm>

namespace bor::crea {

using namespace Qt::StringLiterals;

namespace {

const QDate giornoPredefinito(2015, 1, 1);

/// In the older files amounts have a decimal comma.
QByteArray allAntica(const QByteArray& file) {
    constexpr qsizetype primaRiga = 14;
    constexpr qsizetype celle = 10;
    QList<QByteArray> linee = file.split('\n');
    for (qsizetype i = primaRiga; i < linee.size(); ++i) {
        if ((i - primaRiga) % celle >= celle - 2)
            linee[i].replace('.', ',');
    }
    return linee.join('\n');
}

/// Gives the document's lines the older file name, or takes them away.
bool invecchia(Archivio& archivio, const Documento& d, bool conFile) {
    const QString percorso = archivio.reale(percorsoRighe(archivio, d.coppia.fte));
    QFile file(percorso);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QString vecchio =
        u"ftr%1.a%2"_s.arg(testoDecimale(valore(d.estremi.numero)), pezzo(d.estremi.data, postoAnnoBreve));
    return (!conFile ||
            archivio.disco().scriviFile(archivio.reale(archivio.file(vecchio)), allAntica(file.readAll()))) &&
           archivio.disco().elimina(percorso);
}

/// The opening stock of the articles as loads of the first day of the books, so that the rows of the
/// warehouse explain every stock.
bool caricaGiacenze(Archivio& archivio, const std::vector<DocumentoPronto>& documenti) {
    QDate giorno = giornoPredefinito;
    for (const DocumentoPronto& pronto : documenti)
        giorno = std::min(giorno, dataValida(pronto.documento.estremi.datareg).value_or(giorno));
    bool riuscito = true;
    Tot contatore = archivio.leggiTot(Conta::Mag);
    archivio.art.scorri(1, archivio.leggiTot(Conta::Art).numero, [&](int n, const Art& art) {
        if (art.giacenza == 0.0)
            return true;
        Mag mag = vuoto<Mag>();
        mag.data.set(QDate(giorno.year(), 1, 1).toString(u"yyyyMMdd"_s));
        mag.descrizione.set(u"Giacenza iniziale");
        mag.riferimento.blank();
        mag.articolo = breve(n);
        mag.quantita = art.giacenza;
        contatore.numero += 1;
        riuscito = archivio.mag.scrivi(contatore.numero, mag);
        return riuscito;
    });
    contatore.modificato = 1;
    return riuscito && archivio.scriviTot(Conta::Mag, contatore);
}

} // namespace

bool Registratore::registra(const Documento& d) {
    // The movement that an operator would confirm without a change.
    Borftec editor(m_contesto, d);
    editor.prepara(d.parcella() ? setpar(d, m_contesto) : setfat(d, m_contesto));
    editor.salva();
    if (!m_rifiuti.isEmpty())
        return false;
    Raffica raffica(m_contesto.archivio, {});
    if (!d.parcella())
        mettiscarico(d, m_contesto, raffica);
    return raffica.esegui() == EsitoRaffica::Riuscita;
}

bool Registratore::scrivi(DocumentoPronto& pronto, int n) {
    Documento& d = pronto.documento;
    Archivio& archivio = m_contesto.archivio;
    m_ultimo = u"documento n. %1 del %2"_s.arg(d.estremi.numero, d.estremi.data);
    const QDate data = dataValida(d.estremi.datareg).value_or(giornoPredefinito);
    m_orologio.momento = QDateTime(data, QTime(8, 0)).addSecs(n);
    const Intero parcella = d.coppia.fte.parcella;
    d.coppia = riempiRecord(d, timbro(m_orologio.momento, n));
    // The program itself begins no fee bill: a record that is one keeps its mark.
    d.coppia.fte.parcella = parcella;
    d.coppia.fte.nfile = static_cast<float>(n);
    d.coppia.fte.annullata = pronto.eliminato ? 1 : 0;
    if (!pronto.eliminato && !scrividoc(d, archivio))
        return false;
    if (!pronto.eliminato && pronto.righe != FileRighe::Numerato) {
        if (!invecchia(archivio, d, pronto.righe == FileRighe::NomeVecchio))
            return false;
        d.coppia.fte.nfile = 0.0F;
    }
    if (!archivio.scrivi(n, d.coppia))
        return false;
    if (pronto.fpa && !scriviFpa(archivio, u"fpa"_s + testoDecimale(d.recordfpa), *pronto.fpa))
        return false;
    return pronto.eliminato || registra(d);
}

bool Registratore::scrivi(std::vector<DocumentoPronto>& documenti) {
    Tot tot = vuoto<Tot>();
    Tot fpa = vuoto<Tot>();
    if (!caricaGiacenze(m_contesto.archivio, documenti))
        return false;
    int n = 0;
    for (DocumentoPronto& pronto : documenti) {
        ++n;
        if (!scrivi(pronto, n))
            return false;
        tot.numero = breve(n);
        tot.ultimonumero = breve(valoreIntero(pronto.documento.estremi.numero));
        tot.progressivo = static_cast<float>(n);
        fpa.numero = std::max<std::int16_t>(fpa.numero, breve(static_cast<int>(pronto.documento.recordfpa)));
    }
    return m_contesto.archivio.scriviTot(Conta::Fte, tot) && m_contesto.archivio.scriviTot(Conta::Fpa, fpa);
}

bool ripetiDocumenti(Archivio& archivio, int quanti) {
    Tot tot = archivio.leggiTot(Conta::Fte);
    const int originali = tot.numero;
    const int clienti = archivio.leggiTot(Conta::Cli).numero;
    if (originali == 0 || quanti <= originali)
        return true;
    for (int n = originali + 1; n <= quanti; ++n) {
        CoppiaFte coppia = archivio.leggi((n - 1) % originali + 1);
        coppia.fte.cliente = breve((n - 1) % clienti + 1);
        coppia.fte.numero.set(QString::number(n));
        coppia.fte.stamp = coppia.fte.stamp + (n - (n - 1) % originali - 1) / 86400.0;
        coppia.fte.nfile = 0;
        if (!archivio.scrivi(n, coppia))
            return false;
    }
    tot.numero = breve(quanti);
    tot.ultimonumero = tot.numero;
    return archivio.scriviTot(Conta::Fte, tot);
}

} // namespace bor::crea
