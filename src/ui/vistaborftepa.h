// The electronic invoice of a document on screen.
#pragma once

#include "einvoice/borftepa.h"
#include "ui/vista.h"

#include <array>

class QComboBox;
class QGridLayout;
class QLineEdit;

namespace bor {

class FinestraRilievi;

class VistaBorftepa : public Vista {
public:
    explicit VistaBorftepa(Borftepa& form, QWidget* parent = nullptr);

    void attiva() override;
    void lascia() override;
    QString titolo() const override;

protected:
    void hideEvent(QHideEvent* evento) override;

private:
    /// The four boxes of a reference.
    struct CaselleRiferimento {
        TestoFpa numero;
        DataFpa data;
        TestoFpa item;
        TestoFpa commessa;
    };

    /// The customer's boxes, `Text2(17)` to `Text2(24)`.
    enum class CasellaCliente {
        Nazione = numeroTestiFpa,
        CodiceFiscale,
        PartitaIva,
        Ragione1,
        Ragione2,
        Indirizzo,
        Cap,
        Citta
    };

    QWidget* creaCliente();
    QWidget* creaEstremi();
    QLayout* creaDocumento();
    QLayout* creaRiferimenti();
    QLayout* creaPagamento();
    QWidget* creaComandi();
    void creaRiferimento(QGridLayout* griglia, int riga, const QString& nome,
                         const CaselleRiferimento& caselle);
    QLineEdit* creaTesto(TestoFpa quale, const QString& descrizione, int caratteri);
    QWidget* creaData(DataFpa quale, const QString& descrizione);
    void lega(QLineEdit* campo, PostoFpa posto);
    QComboBox* creaLista(ListaFpa lista, const QString& descrizione);
    QComboBox* creaVettori();
    QWidget* creaSpunta(const QString& nome, const QString& testo, bool Borftepa::*dato);
    void mostraCliente(QGridLayout* griglia, int riga, int colonna, CasellaCliente quale,
                       const QString& descrizione, int caratteri,
                       const std::function<QString(const Cli&)>& leggi);
    void genera();
    void controlla();
    void chiudiRilievi();

    Borftepa& m_form;
    std::array<QLineEdit*, numeroPostiFpa> m_caselle{};
    QComboBox* m_vettori = nullptr;
    FinestraRilievi* m_rilievi = nullptr; ///< from the first check on
};

} // namespace bor
