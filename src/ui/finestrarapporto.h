// The window with what became of each document of a command on many. It stays while the operator works on.
#pragma once

#include "lotto/rapportolotto.h"

#include <QDialog>

#include <functional>

class QCheckBox;
class QLabel;
class QTableView;

namespace bor {

class ModelloGriglia;
struct Tabella;

class FinestraRapporto : public QDialog {
public:
    using Apri = std::function<void(const Identita&)>;

    /// `apri` opens a document that the operator chooses.
    FinestraRapporto(RapportoLotto rapporto, Apri apri, QWidget* parent);

private:
    QWidget* creaElenco();
    QWidget* creaBottoni();
    void scegliMostrate();
    QString cella(int riga, int colonna) const;
    void apriCorrente();
    void copia() const;
    Tabella tabella() const;

    RapportoLotto m_rapporto;
    Apri m_apri;
    std::vector<std::size_t> m_mostrate;
    ModelloGriglia* m_modello;
    QTableView* m_elenco = nullptr;
    QLabel* m_intero = nullptr; ///< the text of the row with the cursor, whole
    QCheckBox* m_soloRilievi = nullptr;
};

} // namespace bor
