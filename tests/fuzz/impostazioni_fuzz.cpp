// Settings files of hostile bytes: whatever they hold, the readers come to an end with settings that can be
// used.
#include "archive/archivio.h"
#include "archive/impostazioni.h"
#include "archive/tabelle.h"

#include <QDir>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

void scriviOvunque(const QString& radice, const QString& azienda, QByteArrayView bytes) {
    for (const QString& nome :
         {azienda + u"/borlano.int"_s, azienda + u"/borlano.gnr"_s, azienda + u"/borlano.tab"_s,
          azienda + u"/borlano.tpr"_s, azienda + u"/borlano.trb"_s, radice + u"/borlano.eur"_s,
          radice + u"/borlano.tbl"_s}) {
        QFile file(nome);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes.data(), bytes.size()) != bytes.size())
            std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
    static const QTemporaryDir unita;
    static const QString radice = unita.filePath(u"suprok/suprok"_s);
    static const QString azienda = radice + u"/boraz0.007"_s;
    static const bool pronta = QDir().mkpath(azienda);
    QLoggingCategory::setFilterRules(u"bor.*=false"_s);
    if (!pronta)
        std::abort();
    scriviOvunque(radice, azienda,
                  QByteArrayView(reinterpret_cast<const char*>(dati), static_cast<qsizetype>(quanti)));

    bor::Disco disco;
    const bor::Percorsi percorsi(unita.path(), unita.filePath(u"c"_s));
    bor::Archivio archivio(percorsi, disco, 7);
    const bor::Impostazioni impostazioni = bor::caricaimpostazioni(archivio);
    const bor::Tabelle tabelle = bor::leggiTabelle(archivio);
    for (int codice = -1; codice <= 17; ++codice)
        (void)(tabelle.aliquota(codice) + tabelle.ritenuta(codice));
    (void)impostazioni.valuta;
    (void)bor::leggiIntestazione(archivio);
    (void)bor::leggiPrestazioni(archivio);
    (void)bor::leggiTributi(archivio);
    return 0;
}
