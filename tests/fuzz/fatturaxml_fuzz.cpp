// Electronic invoices and own-data files of hostile bytes: the check, the readable page and the text of
// sections come to an end, whatever stands in them.
#include "fatturapa/filefel.h"
#include "xmlcheck/controlloxml.h"
#include "xmlcheck/vistafattura.h"

#include <cstdint>
#include <cstdlib>

using namespace bor;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
    const QByteArray bytes(reinterpret_cast<const char*>(dati), static_cast<qsizetype>(quanti));
    (void)controllaXml(bytes, QStringLiteral("IT01234567897_00001.xml"));
    (void)vistaFattura(bytes);

    FileFel file(bytes);
    file.metti(QStringLiteral("documento 1"), u"bollo", QStringLiteral("SI"));
    if (FileFel(file.bytes()).valore(QStringLiteral("documento 1"), u"bollo") != QStringLiteral("SI"))
        std::abort(); // what was put in must come out again
    return 0;
}
