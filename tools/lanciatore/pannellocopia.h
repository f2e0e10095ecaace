// The copy of a company at work behind the launcher's window: how far it is, a way to stop it, how it ended.
#pragma once

#include <QProcess>
#include <QWidget>

#include <functional>

class QLabel;
class QProgressBar;
class QPushButton;

namespace bor::lancia {

class PannelloCopia : public QWidget {
public:
    /// `finita` is called when a copy was made, was stopped or has failed.
    PannelloCopia(const QString& cartellaProgrammi, std::function<void()> finita);
    /// Stops a copy that is being made, which leaves nothing.
    ~PannelloCopia() override;

    bool inCorso() const { return m_borcopia.state() != QProcess::NotRunning; }
    /// Starts the copy of a company of this drive into a folder of this machine.
    void avvia(const QString& unita, int codiceazienda, const QString& cartella);
    /// Takes away how the last copy ended; one that is being made stays in view.
    void dimentica();

private:
    void leggi();
    void ferma();
    void concludi(bool partita);

    QString m_cartellaProgrammi;
    std::function<void()> m_finita;
    QProcess m_borcopia;
    int m_codice = 0;
    bool m_fermata = false;
    QStringList m_detto; ///< lines of the tool that are no progress
    QLabel* m_testo;
    QProgressBar* m_avanzamento;
    QPushButton* m_annulla;
};

} // namespace bor::lancia
