#include "ui/vistascadenzario.h"

#include "common/posti.h"
#include "prospetti/scadenzario.h"
#include "ui/campilegati.h"
#include "ui/flusso.h"

#include <QComboBox>
#include <QTableView>

#include <array>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// Shown in the order of `ColonnaScadenze`.
constexpr std::array<ColonnaGriglia, colonneScadenze> colonne = {{
    {u"Scadenza", 1000},
    {u"Cliente", 5000, Qt::AlignLeft, 2000},
    {u"Documento", 1000},
    {u"Data", 1000},
    {u"Genere", 1300},
    {u"Rata", 900},
    {u"Pagamento", 3000, Qt::AlignLeft, 1500},
    {u"Ri.Ba.", 600},
    {u"Importo", 1300, Qt::AlignRight},
}};

const QString spiegazione =
    u"L'archivio non dice che cosa è già stato pagato: qui c'è tutto quel che è in scadenza. Le note di "
    "credito sono in meno, alla loro scadenza. Le rate senza una data valida ci sono in ogni periodo."_s;

/// Entries that never change.
std::function<QStringList()> sempre(const QStringList& voci) {
    return [voci] { return voci; };
}

} // namespace

VistaScadenzario::VistaScadenzario(Scadenzario& form)
    : VistaProspetto(
          form, u"Scadenzario"_s, u"scadenzario"_s, colonne,
          [&form](int riga, int colonna) { return form.testo(riga, enumeratore<ColonnaScadenze>(colonna)); }),
      m_form(form) {
    componi(creaScelte(), spiegazione);
    connect(elenco()->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& cella) { m_form.cambiaRiga(cella.row()); });
    const auto apri = [this] { legami.esegui([this] { m_form.apri(elenco()->currentIndex().row()); }); };
    connect(elenco(), &QTableView::doubleClicked, this, apri);
    invio.passo(elenco(), apri);
    altriTasti = {{u"Invio"_s, u"Nell'elenco: apre il documento della rata"_s}};
}

QWidget* VistaScadenzario::creaScelte() {
    auto* barra = new QWidget;
    auto* layout = new Flusso(barra);
    layout->setContentsMargins(0, 0, 0, 0);
    const CampiLegati campi(legami, m_form.bordata());
    LimitiScadenze& limiti = m_form.limiti();
    std::vector<QWidget*> passi;
    const auto metti = [&](const QString& testo, QWidget* campo) {
        layout->addWidget(conDidascalia(testo, campo));
        passi.push_back(campo->focusProxy() ? campo->focusProxy() : campo);
    };
    metti(u"Periodo"_s,
          lista(u"periodo"_s, u"Periodo"_s,
                sempre({u"Da oggi"_s, u"Questo mese"_s, u"Mese prossimo"_s, u"Tutte"_s, u"Dal … al …"_s}),
                {[&limiti] { return ordinale(limiti.periodo()); },
                 [&limiti](int i) { limiti.cambiaPeriodo(enumeratore<PeriodoScadenze>(i)); }}));
    metti(u"Dal"_s, campi.data(u"dal"_s, u"calendarioDal"_s, u"Dal"_s,
                               {[&limiti] { return limiti.dal(); },
                                [&limiti](const QString& testo) { limiti.cambiaDal(testo); }}));
    metti(u"Al"_s, campi.data(u"al"_s, u"calendarioAl"_s, u"Al"_s,
                              {[&limiti] { return limiti.al(); },
                               [&limiti](const QString& testo) { limiti.cambiaAl(testo); }}));
    auto* cliente = campi.testo(u"cliente"_s, u"Cliente"_s, 20,
                                {[this] { return m_form.scelta().cliente; },
                                 [this](const QString& testo) { m_form.cambiaCliente(testo); }});
    cliente->setPlaceholderText(u"parte del nome"_s);
    cliente->offriSvuota();
    metti(u"Cliente"_s, cliente);
    metti(u"Pagamento"_s,
          lista(u"pagamento"_s, u"Pagamento"_s, [this] { return m_form.pagamenti(); },
                {[this] { return m_form.postoPagamento(); }, [this](int i) { m_form.cambiaPagamento(i); }}));
    metti(u"Ri.Ba."_s,
          lista(u"riba"_s, u"Ri.Ba."_s, sempre({u"Tutte"_s, u"Solo Ri.Ba."_s, u"Senza Ri.Ba."_s}),
                {[this] { return ordinale(m_form.scelta().riba); },
                 [this](int i) { m_form.cambiaRiba(enumeratore<SceltaRiba>(i)); }}));
    metti(u"Totali"_s,
          lista(u"gruppi"_s, u"Totali"_s, sempre({u"Per giorno"_s, u"Per cliente"_s, u"Per pagamento"_s}),
                {[this] { return ordinale(m_form.scelta().gruppi); },
                 [this](int i) { m_form.cambiaGruppi(enumeratore<GruppiScadenze>(i)); }}));
    passi.push_back(elenco());
    invio.catena(passi);
    return barra;
}

int VistaScadenzario::rigaCorrente() const {
    return m_form.rigaCorrente();
}

QString VistaScadenzario::riepilogo() const {
    return m_form.riepilogo();
}

} // namespace bor
