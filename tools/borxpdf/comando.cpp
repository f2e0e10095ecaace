#include "borxpdf/comando.h"

#include "borxpdf/pdf.h"
#include "borxpdf/spedizione.h"
#include "common/lottopdf.h"
#include "common/percorsi.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace bor::pdf {
namespace {

constexpr qint64 kMassimoLayout = 1024 * 1024;

} // namespace

std::optional<QByteArray> leggiFile(const Percorsi& percorsi, const QString& dos, qint64 massimo) {
    const auto nome = percorsi.reale(dos);
    QFile file(nome.value_or(QString()));
    if (!nome || !file.open(QIODevice::ReadOnly) || file.size() > massimo)
        return std::nullopt;
    return file.read(massimo);
}

QString sulDisco(const Percorsi& percorsi, const QString& dos) {
    return percorsi.reale(dos).value_or(dos);
}

QString primoNonVuoto(std::initializer_list<QString> testi) {
    for (const QString& testo : testi)
        if (!testo.isEmpty())
            return testo;
    return {};
}

LayoutPdf leggiLayout(const QString& layout, const Percorsi& percorsi) {
    const auto byte = leggiFile(percorsi, layout, kMassimoLayout);
    return byte ? LayoutPdf(FileIni(*byte)) : LayoutPdf();
}

Disegnatore disegnatoreDi(const QString& layout, const Percorsi& percorsi) {
    const QString azienda = layout.first(layout.lastIndexOf(u'\\') + 1);
    return Disegnatore([percorsi, azienda](const QString& nome) {
        // A name without a folder is a picture of the company's own.
        return percorsi.reale(nome.contains(u'\\') ? nome : azienda + nome).value_or(QString());
    });
}

QByteArray scriviPdf(const QString& pdf, const PagineStampate& stampa, const LayoutPdf& layout,
                     Disegnatore& disegnatore, const Percorsi& percorsi, QString& errore) {
    // The name comes from settings and a document number: nothing but a PDF may be replaced.
    const auto file = percorsi.reale(pdf);
    if (!file || !pdf.endsWith(".pdf"_L1, Qt::CaseInsensitive)) {
        errore = u"Il nome del PDF non è valido: %1"_s.arg(pdf);
        return {};
    }
    const QString titolo = conNumero(primoNonVuoto({layout.titolo, nomeBreve(pdf)}), pdf);
    const QByteArray byte = componiPdf(stampa, layout, titolo, disegnatore);
    if (!byte.isEmpty() && scriviIntero(*file, byte))
        return byte;
    errore = u"Non si può scrivere il PDF %1: controllare la cartella e lo spazio su disco."_s.arg(*file);
    return {};
}

std::optional<DocumentoPdf> apri(const ComandoPdf& comando, const Percorsi& percorsi, QString& errore) {
    const auto byte = leggiFile(percorsi, comando.rapporto, massimoRapporto);
    if (!byte) {
        errore = u"Non si può leggere il file di stampa %1: stampare prima il documento."_s.arg(
            sulDisco(percorsi, comando.rapporto));
        return std::nullopt;
    }
    auto stampa = PagineStampate::leggi(*byte, errore);
    if (!stampa)
        return std::nullopt;
    return DocumentoPdf{leggiLayout(comando.layout, percorsi), std::move(*stampa),
                        disegnatoreDi(comando.layout, percorsi)};
}

bool esegui(const ComandoPdf& comando, const Percorsi& percorsi, QString& errore) {
    auto documento = apri(comando, percorsi, errore);
    if (!documento)
        return false;
    const LayoutPdf& layout = documento->layout;
    const QByteArray pdf =
        scriviPdf(comando.pdf, documento->stampa, layout, documento->disegnatore, percorsi, errore);
    if (pdf.isEmpty())
        return false;
    const Spedizione spedizione{.layout = comando.layout,
                                .indirizzo = comando.indirizzo,
                                .testo = comando.testo,
                                .pdf = {{comando.pdf, pdf}}};
    if (comando.indirizzo == senzaPosta || spedisciPdf(spedizione, layout, percorsi, errore))
        return true;
    errore = u"Il PDF %1 è pronto ma non è stato spedito: "_s.arg(sulDisco(percorsi, comando.pdf)) + errore;
    return false;
}

} // namespace bor::pdf
