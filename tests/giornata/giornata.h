// A day at the keyboard: forty invoices typed on the screens of the program, with slips, with the wheel
// turned over everything and with every command key held down. What the day left on file has to agree to the
// cent with the sums that the test makes by itself.
#pragma once

#include "giornata/dattilografa.h"
#include "giornata/ditta.h"
#include "giornata/fattura.h"
#include "support/programmaintero.h"

namespace bor {

class Giornata : public testing::Test, protected ProgrammaIntero {
protected:
    static constexpr int fatture = 40;

    Giornata();

    bool inVista(Schermo schermo) { return vista(schermo).isVisible(); }

    void scriviFattura(int numero);
    void scriviTesta(const FatturaScritta& fattura, int numero);
    void scriviRighe(const FatturaScritta& fattura);
    void scriviRiga(const FatturaScritta& fattura, const RigaScritta& riga);
    void scriviMovimento(FatturaScritta& fattura);
    void correggi(FatturaScritta& fattura);
    void registraDiNuovo(bool corretta);
    void rotellaSuTutto();
    void provaComandi();
    void chiudiLaGiornata();
    void tieniTutti(const QList<QKeyCombination>& tasti);

    void controllaDocumenti(const Archivio& archivio) const;
    void controllaRate(const FatturaScritta& fattura, const CoppiaFte& coppia) const;
    void controllaRighe(const FatturaScritta& fattura, const QByteArray& file) const;
    void controllaGiornale(const Archivio& archivio) const;
    void controllaMagazzino(const Archivio& archivio) const;

    std::mt19937 caso{20150131};
    Dattilografa mani{finestra, caso};
    std::vector<FatturaScritta> scritte;
    int girate = 0; ///< widgets that the wheel was turned over
};

} // namespace bor
