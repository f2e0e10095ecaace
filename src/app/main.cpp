#include "app/modulo.h"
#include "app/schermi.h"
#include "archive/impostazioni.h"
#include "common/avvertenze.h"
#include "common/avvio.h"
#include "ui/adattatori.h"
#include "ui/aspetto.h"
#include "ui/finestra.h"
#include "ui/guardiabozze.h"
#include "ui/stampanteqt.h"

#include <QApplication>
#include <QThread>

#include <functional>
#include <memory>
#include <sched.h>

namespace {

/// Work in a thread of its own.
class NelFrattempo {
public:
    explicit NelFrattempo(const std::function<void()>& lavoro)
        : m_filo(QThread::create([lavoro] {
              // As work that nobody waits for at the keys, it does not push in before the display's answers.
              const sched_param nessuno{};
              sched_setscheduler(0, SCHED_BATCH, &nessuno);
              lavoro();
          })) {
        m_filo->start();
    }
    ~NelFrattempo() { aspetta(); }
    NelFrattempo(const NelFrattempo&) = delete;
    NelFrattempo& operator=(const NelFrattempo&) = delete;

    void aspetta() { m_filo->wait(); }

private:
    std::unique_ptr<QThread> m_filo;
};

} // namespace

int main(int argc, char* argv[]) {
    using namespace bor;
    QStringList argomenti;
    for (int i = 1; i < argc; ++i)
        argomenti.append(QString::fromLocal8Bit(argv[i]));
    const Avvio avvio = controllaAvvio(argomenti.join(u' '));
    // What no launcher started ends before it asks for a display or touches a folder.
    if (avvio.esito == EsitoAvvio::Rifiutato)
        return 0;
    raccogliAvvertenze();

    OperatoreQt operatore;
    if (avvio.esito == EsitoAvvio::SuiteVecchia) {
        QApplication applicazione(argc, argv);
        applicaAspetto(applicazione);
        Modulo::avvisaSuiteVecchia(operatore);
        return 0;
    }
    OrologioQt orologio;
    SistemaQt sistema;
    StampanteQt stampante;
    NavigatoreQt navigatore;
    const auto modulo = Modulo::apri(avvio.codiceazienda, Percorsi::predefiniti(),
                                     {operatore, orologio, sistema, navigatore, stampante});
    const QString nome = nomeAzienda(modulo->contesto().archivio);
    // What needs no display is done while Qt prepares it. Until its end nobody else looks at the company.
    NelFrattempo lettura([&modulo] {
        preparaCaratteri();
        modulo->borfte().riempi();
    });

    QApplication applicazione(argc, argv);
    Aspetto aspetto(applicazione);
    Finestra finestra;
    operatore.usa(&finestra);
    navigatore.usa(finestra);
    // The desktop adds it to the title of each window: an office may have several companies open.
    QGuiApplication::setApplicationDisplayName(nome);
    aggiungiSchermi(finestra, *modulo);
    finestra.vista(Schermo::Borfte);
    aspetto.completa();
    // On a slow network no empty window stands there meanwhile.
    lettura.aspetta();
    finestra.show();
    finestra.mostra(Schermo::Borfte);
    modulo->avvisa();
    const GuardiaBozze guardia([&modulo] { modulo->bozze().conserva(); });
    modulo->bozze().riprendi();
    return QApplication::exec();
}
