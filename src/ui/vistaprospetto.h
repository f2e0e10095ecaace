// What the screens of the lists over all documents have in common: the list, the bar while it is read, what
// could not be read, print and export.
#pragma once

#include "ui/griglia.h"
#include "ui/legame.h"
#include "ui/stampatabella.h"
#include "ui/vista.h"

#include <QTimer>

class QComboBox;
class QTableView;

namespace bor {

class Prospetto;

class VistaProspetto : public Vista {
public:
    void attiva() override;
    void lascia() override;
    QString titolo() const override { return m_titolo; }

protected:
    /// `colonne` outlives the view. `file` is the name proposed for what leaves the program.
    VistaProspetto(Prospetto& prospetto, const QString& titolo, const QString& file,
                   std::span<const ColonnaGriglia> colonne,
                   std::function<QString(int riga, int colonna)> testo);

    /// Puts the list and all that stands below it under `sopra`, which gets `parti` parts of the room that a
    /// large screen has, the list two.
    void componi(QWidget* sopra, const QString& spiegazione, int parti = 0);
    QTableView* elenco() const { return m_elenco; }
    /// A list whose entries change with what was read.
    QComboBox* lista(const QString& nome, const QString& didascalia, std::function<QStringList()> voci,
                     const Legame<int>& dato);
    /// The row that the list shows after a change.
    virtual int rigaCorrente() const = 0;
    /// A sum of what is shown, below the list; empty for none.
    virtual QString riepilogo() const { return {}; }
    /// What the printed list has above its rows.
    virtual Figura figura() const { return {}; }

private:
    QWidget* creaPiede(const QString& spiegazione);
    QWidget* creaComandi();
    void leggi();
    void aggiornaElenco();

    Prospetto& m_prospetto;
    QString m_titolo;
    QString m_file;
    ModelloGriglia* m_modello;
    QTableView* m_elenco;
    QTimer m_lettura;
    int m_edizione = -1;
};

} // namespace bor
