#include "lanciatore/pannellocopia.h"

#include "lanciatore/aziende.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>

namespace bor::lancia {

using namespace Qt::StringLiterals;

PannelloCopia::PannelloCopia(const QString& cartellaProgrammi, std::function<void()> finita)
    : m_cartellaProgrammi(cartellaProgrammi), m_finita(std::move(finita)), m_testo(new QLabel),
      m_avanzamento(new QProgressBar), m_annulla(new QPushButton(u"A&nnulla"_s)) {
    m_testo->setObjectName(u"esitoCopia"_s);
    m_testo->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_testo->setWordWrap(true);
    m_avanzamento->setObjectName(u"avanzamentoCopia"_s);
    m_avanzamento->setAccessibleName(u"Avanzamento della copia"_s);
    m_annulla->setObjectName(u"annullaCopia"_s);
    m_annulla->setToolTip(u"Interrompe la copia, che non lascia nulla (Alt+N)"_s);
    connect(m_annulla, &QPushButton::clicked, this, &PannelloCopia::ferma);
    auto* disposizione = new QHBoxLayout(this);
    disposizione->setContentsMargins(0, 0, 0, 0);
    disposizione->addWidget(m_testo, 1);
    disposizione->addWidget(m_avanzamento);
    disposizione->addWidget(m_annulla);
    connect(&m_borcopia, &QProcess::readyReadStandardOutput, this, &PannelloCopia::leggi);
    connect(&m_borcopia, &QProcess::finished, this, [this] { concludi(true); });
    connect(&m_borcopia, &QProcess::errorOccurred, this, [this](QProcess::ProcessError errore) {
        if (errore == QProcess::FailedToStart)
            concludi(false);
    });
    hide();
}

PannelloCopia::~PannelloCopia() {
    m_borcopia.disconnect(this);
    ferma();
    m_borcopia.waitForFinished();
}

void PannelloCopia::avvia(const QString& unita, int codiceazienda, const QString& cartella) {
    m_codice = codiceazienda;
    m_fermata = false;
    m_detto.clear();
    m_testo->setText(u"Copio l'azienda %1 in %2"_s.arg(codiceazienda).arg(cartella));
    m_avanzamento->setValue(0);
    m_avanzamento->show();
    m_annulla->setEnabled(true);
    m_annulla->show();
    show();
    const Comando comando = comandoCopia(m_cartellaProgrammi, unita, codiceazienda, cartella);
    m_borcopia.start(comando.programma, comando.argomenti, QIODevice::ReadOnly);
}

void PannelloCopia::dimentica() {
    if (!inCorso())
        hide();
}

void PannelloCopia::leggi() {
    while (m_borcopia.canReadLine()) {
        const QString linea = QString::fromUtf8(m_borcopia.readLine()).trimmed();
        const QString avanzamento = u"avanzamento "_s;
        if (linea.startsWith(avanzamento))
            m_avanzamento->setValue(linea.mid(avanzamento.size()).toInt());
        else
            m_detto.append(linea);
    }
}

/// The tool takes a moment to clear away what it has written.
void PannelloCopia::ferma() {
    m_fermata = true;
    m_annulla->setEnabled(false);
    m_borcopia.terminate();
}

void PannelloCopia::concludi(bool partita) {
    leggi();
    m_avanzamento->hide();
    m_annulla->hide();
    const bool fatta =
        partita && m_borcopia.exitStatus() == QProcess::NormalExit && m_borcopia.exitCode() <= 1;
    const QString azienda = u"dell'azienda %1"_s.arg(m_codice);
    m_testo->setText(
        fatta       ? u"Copia %1 fatta: %2"_s.arg(azienda, m_detto.isEmpty() ? QString() : m_detto.last())
              : m_fermata ? u"Copia %1 interrotta: non ne resta nulla."_s.arg(azienda)
                    : u"La copia %1 non è stata fatta."_s.arg(azienda));
    m_finita();
    const QString motivo = QString::fromUtf8(m_borcopia.readAllStandardError()).trimmed();
    if (fatta && m_borcopia.exitCode() == 1)
        QMessageBox::warning(
            this, u"Attenzione"_s,
            u"La copia %1 è intera, ma la verifica vi ha trovato errori, che sono anche nell'azienda. "
            "Le copie precedenti vanno conservate.\n\n"_s.arg(azienda) +
                m_detto.mid(0, 10).join(u'\n'));
    else if (!fatta && !m_fermata)
        QMessageBox::critical(this, u"Attenzione"_s,
                              m_testo->text() + u"\n\n"_s +
                                  (motivo.isEmpty() ? m_borcopia.errorString() : motivo));
}

} // namespace bor::lancia
