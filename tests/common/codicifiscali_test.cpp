#include "common/codicifiscali.h"

#include <gtest/gtest.h>

namespace bor {
namespace {

TEST(CodiciFiscali, LeCifreDiControlloTornano) {
    struct Caso {
        bool (*valido)(QStringView);
        std::initializer_list<QStringView> giusti;
        std::initializer_list<QStringView> sbagliati;
    };
    for (const Caso& caso : {
             Caso{partitaIvaValida,
                  {u"12345678903", u"01234567897"},
                  {u"12345678904", u"01234567898", u"1234567890", u"0123456789"}},
             Caso{codiceFiscaleValido,
                  {u"RSSMRA80A01H501U"},
                  {u"RSSMRA80A01H501V", u"RSSMRA80A01-501U", u"RSSMRA80A01H501è"}},
             Caso{ibanValido, {u"IT60X0542811101000000123456"}, {u"IT06X0542811101000000123456"}},
             Caso{ean13Valido, {u"4006381333931"}, {u"4006381333932"}},
         }) {
        for (const QStringView codice : caso.giusti)
            EXPECT_TRUE(caso.valido(codice)) << qPrintable(codice.toString());
        for (const QStringView codice : caso.sbagliati)
            EXPECT_FALSE(caso.valido(codice)) << qPrintable(codice.toString());
    }
}

} // namespace
} // namespace bor
