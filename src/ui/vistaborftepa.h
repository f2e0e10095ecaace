// The electronic invoice of a document on screen.
#pragma once

#include "einvoice/borftepa.h"
#include "ui/vista.h"

#include <array>

class QComboBox;
class QGridLayout;
class QLineEdit;

namespace bor {

class VistaBorftepa : public Vista {
public:
    explicit VistaBorftepa(Borftepa& form, QWidget* parent = nullptr);

    void attiva() override;
    void lascia() override;
    QString titolo() const override;

private:
    QWidget* creaCliente();
    QWidget* creaEstremi();
    QLayout* creaDocumento();
    QLayout* creaRiferimenti();
    QLayout* creaPagamento();
    QWidget* creaComandi();
    void creaRiferimento(QGridLayout* griglia, int riga, const QString& nome, int primoTesto,
                         int dataRiferimento);
    QLineEdit* creaTesto(int indice, const QString& descrizione, int caratteri);
    QWidget* creaData(int indice, const QString& descrizione);
    QComboBox* creaLista(ListaFpa lista, const QString& descrizione);
    QComboBox* creaVettori();
    QWidget* creaSpunta(const QString& nome, const QString& testo, bool Borftepa::*dato);
    void mostraCliente(QGridLayout* griglia, int riga, int colonna, int indice, const QString& descrizione,
                       int caratteri, const std::function<QString(const Cli&)>& leggi);
    void vai(Borftepa::Posto posto);
    void controlla();

    Borftepa& m_form;
    std::array<QLineEdit*, Borftepa::numeroTesti> m_testi{};
    std::array<QLineEdit*, Borftepa::numeroDate> m_date{};
    QComboBox* m_vettori = nullptr;
};

} // namespace bor
