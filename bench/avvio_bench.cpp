// From the menu to the settled list of 32,000 documents on an X server, beside an empty window started the
// same way. docs/performance.md tells how it is run under a virtual one.
#include <QCoreApplication>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <optional>
#include <poll.h>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

using Orologio = std::chrono::steady_clock;

/// A window counts as settled when nothing was drawn in it for this long; a blinking caret is slower. The
/// next start waits as long.
constexpr auto quiete = std::chrono::milliseconds(400);
/// No start takes longer, unless there is none.
constexpr auto pazienza = std::chrono::seconds(20);

struct LiberaEvento {
    void operator()(xcb_generic_event_t* evento) const { std::free(evento); }
};
using Evento = std::unique_ptr<xcb_generic_event_t, LiberaEvento>;

/// Watches the windows that come up on the X server, as somebody before the screen does.
class Schermo {
public:
    Schermo() : m_x(xcb_connect(nullptr, nullptr)) {
        if (xcb_connection_has_error(m_x))
            return;
        const auto* danni = xcb_get_extension_data(m_x, &xcb_damage_id);
        m_disegnato = danni->first_event + XCB_DAMAGE_NOTIFY;
        std::free(xcb_damage_query_version_reply(m_x, xcb_damage_query_version(m_x, 1, 1), nullptr));
        const uint32_t interesse = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        const xcb_window_t fondo = xcb_setup_roots_iterator(xcb_get_setup(m_x)).data->root;
        xcb_change_window_attributes(m_x, fondo, XCB_CW_EVENT_MASK, &interesse);
        xcb_flush(m_x);
    }
    ~Schermo() { xcb_disconnect(m_x); }
    Schermo(const Schermo&) = delete;
    Schermo& operator=(const Schermo&) = delete;

    bool aperto() const { return !xcb_connection_has_error(m_x); }

    /// When the last thing was drawn in the window that comes up next, which is then closed.
    std::optional<Orologio::time_point> assestamento() {
        const auto inizio = Orologio::now();
        xcb_window_t finestra = XCB_NONE;
        Orologio::time_point ultimo = inizio;
        bool disegnata = false;
        while (Orologio::now() - inizio < pazienza && !(disegnata && Orologio::now() - ultimo > quiete)) {
            while (const Evento evento{xcb_poll_for_event(m_x)}) {
                const int tipo = evento->response_type & 0x7f;
                if (tipo == XCB_MAP_NOTIFY && finestra == XCB_NONE) {
                    finestra = reinterpret_cast<xcb_map_notify_event_t*>(evento.get())->window;
                    xcb_damage_create(m_x, xcb_generate_id(m_x), finestra,
                                      XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
                    xcb_flush(m_x);
                } else if (tipo == m_disegnato) {
                    ultimo = Orologio::now();
                    disegnata = true;
                }
            }
            pollfd attesa{xcb_get_file_descriptor(m_x), POLLIN, 0};
            poll(&attesa, 1, 20);
        }
        if (finestra != XCB_NONE)
            xcb_kill_client(m_x, finestra);
        // Its answer tells that the server has got that far: what it has not read when a client leaves is
        // lost.
        std::free(xcb_get_input_focus_reply(m_x, xcb_get_input_focus(m_x), nullptr));
        return disegnata ? std::optional(ultimo) : std::nullopt;
    }

private:
    xcb_connection_t* m_x;
    int m_disegnato = 0;
};

/// The drive with the company, made once.
const QString& unita() {
    static const QTemporaryDir cartella;
    static const QString radice = [] {
        qputenv("XDG_DATA_HOME", (cartella.path() + u"/dati"_s).toLocal8Bit());
        const QString borcrea = QCoreApplication::applicationDirPath() + u"/borcrea"_s;
        if (QProcess::execute(borcrea, {u"--unita"_s, cartella.path(), u"--documenti"_s, u"32000"_s}) != 0)
            qFatal("borcrea has failed");
        return cartella.path();
    }();
    return radice;
}

void avvia(benchmark::State& stato, const QString& programma, const QStringList& argomenti) {
    Schermo schermo;
    if (!schermo.aperto()) {
        stato.SkipWithError("there is no X server");
        return;
    }
    for (auto _ : stato) {
        QProcess processo;
        processo.setProcessChannelMode(QProcess::ForwardedOutputChannel);
        processo.setWorkingDirectory(unita());
        const auto inizio = Orologio::now();
        processo.start(QCoreApplication::applicationDirPath() + u'/' + programma, argomenti);
        const auto fine = schermo.assestamento();
        if (!fine)
            stato.SkipWithError("no window came up");
        stato.SetIterationTime(std::chrono::duration<double>(fine.value_or(inizio) - inizio).count());
        processo.waitForFinished();
        std::this_thread::sleep_for(quiete); // for a module that ends after its launcher
    }
}

void Pavimento_FinestraVuota(benchmark::State& stato) {
    avvia(stato, u"finestra_vuota"_s, {});
}

void DalMenuAllElenco(benchmark::State& stato) {
    avvia(stato, u"lanciatore"_s, {u"--azienda"_s, u"1"_s});
}

double minimo(const std::vector<double>& tempi) {
    return *std::min_element(tempi.begin(), tempi.end());
}

void comeSiMisura(benchmark::internal::Benchmark* misura) {
    misura->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(15);
    misura->ComputeStatistics("min", minimo)->ReportAggregatesOnly();
}

BENCHMARK(Pavimento_FinestraVuota)->Apply(comeSiMisura);
BENCHMARK(DalMenuAllElenco)->Apply(comeSiMisura);

} // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication applicazione(argc, argv);
    unita();
    // In turn, so that what else the machine does falls on both.
    std::vector<char*> argomenti(argv, argv + argc);
    char alternate[] = "--benchmark_enable_random_interleaving=true";
    argomenti.push_back(alternate);
    int quanti = static_cast<int>(argomenti.size());
    benchmark::Initialize(&quanti, argomenti.data());
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
