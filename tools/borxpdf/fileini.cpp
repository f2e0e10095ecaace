#include "borxpdf/fileini.h"

#include "common/testo.h"

#include <QStringDecoder>

#include <cmath>

namespace bor::pdf {

FileIni::FileIni(QByteArrayView dati) {
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString tutto = utf8(dati);
    if (utf8.hasError())
        tutto = daCp1252(dati);

    QString sezione;
    for (const QStringView grezza : QStringView(tutto).split(u'\n')) {
        const QStringView riga = grezza.trimmed();
        if (riga.isEmpty() || riga.startsWith(u';') || riga.startsWith(u'#'))
            continue;
        if (riga.startsWith(u'[') && riga.endsWith(u']')) {
            sezione = riga.sliced(1, riga.size() - 2).trimmed().toString().toLower();
            continue;
        }
        const qsizetype uguale = riga.indexOf(u'=');
        if (uguale > 0)
            m_valori.insert(sezione + u'/' + riga.first(uguale).trimmed().toString().toLower(),
                            riga.sliced(uguale + 1).trimmed().toString());
    }
}

QString FileIni::testo(const QString& chiave, const QString& predefinito) const {
    const QString valore = m_valori.value(chiave);
    return valore.isEmpty() ? predefinito : valore;
}

double FileIni::numero(const QString& chiave, double predefinito) const {
    bool letto = false;
    const double valore = testo(chiave).replace(u',', u'.').toDouble(&letto);
    return letto && std::isfinite(valore) ? valore : predefinito;
}

} // namespace bor::pdf
