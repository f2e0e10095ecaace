// Today's electronic invoice of a document on screen.
#pragma once

#include "fatturapa/borftel.h"
#include "ui/campilegati.h"
#include "ui/griglia.h"
#include "ui/vista.h"
#include "xmlcheck/codicifattura.h"

#include <array>
#include <map>
#include <span>
#include <vector>

class QGridLayout;
class QLabel;
class QStackedWidget;
class QTableView;

namespace bor {

class VistaBorftel : public Vista {
public:
    explicit VistaBorftel(Borftel& form, QWidget* parent = nullptr);

    void attiva() override;
    void lascia() override;
    QString titolo() const override;

private:
    using Prospetto = Borftel::Prospetto;

    QWidget* creaStato();
    QWidget* creaScelta();
    QWidget* creaComandi();
    void mostraProspetto(Prospetto prospetto);
    void leggi();
    void copiaPercorso();
    void seguiFuoco();

    // The panels.
    QWidget* creaDocumento();
    QWidget* creaDestinatario();
    QWidget* creaPagamento();
    QWidget* creaDati();
    QWidget* creaRighe();
    QWidget* creaAzienda();
    QWidget* creaDatiAzienda();
    QWidget* creaNature();

    // What the panels are made of.
    template <class... Passi>
    QLineEdit* testo(const QString& nome, const QString& didascalia, int caratteri, Passi... passi);
    template <class... Passi>
    QWidget* data(const QString& nome, const QString& didascalia, Passi... passi);
    template <class... Passi>
    QWidget* spunta(const QString& nome, const QString& didascalia, Passi... passi);
    /// A list of codes with `niente` above them, for none.
    template <class... Passi>
    QComboBox* lista(const QString& nome, const QString& didascalia, ListaCodici voci, const QString& niente,
                     Passi... passi);
    /// Caption, fields side by side, and below the findings.
    void riga(QGridLayout* griglia, PostoFel posto, const std::vector<QWidget*>& campi);
    /// With what goes out beside the fields.
    void rigaConUscita(QGridLayout* griglia, PostoFel posto, const std::vector<QWidget*>& campi);
    /// A field that no finding speaks of.
    void rigaSola(QGridLayout* griglia, const QString& didascalia, QWidget* campo);
    QLabel* rilievi(PostoFel posto);
    bool siScriveIn(PostoFel posto) const;
    QTableView* tabella(const QString& nome, const QString& descrizione,
                        std::span<const ColonnaGriglia> colonne, QList<QStringList> UscitaFel::*righe);
    /// Enter walks the fields made so far, those in view, and from the last one to the command that makes the
    /// file.
    void chiudiPercorso(Prospetto prospetto);
    void vaiAlPrimo(const std::vector<QWidget*>& campi);

    Borftel& m_form;
    CampiLegati m_campi;
    PerPosto<QWidget*> m_posti;                   ///< what has the focus when the operator is sent to a place
    std::map<const QWidget*, PostoFel> m_scritti; ///< the place that each text box belongs to
    std::vector<QWidget*> m_nature;               ///< the place of the natures, one list a VAT code
    std::vector<QWidget*> m_percorso;             ///< fields of the panel being made, in the order of Enter
    std::array<std::vector<QWidget*>, 3> m_percorsi; ///< of each panel, in the order of `Prospetto`
    QStackedWidget* m_pila = nullptr;
    QWidget* m_genera = nullptr;
};

} // namespace bor
