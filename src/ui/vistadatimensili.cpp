#include "ui/vistadatimensili.h"

#include "common/numeri.h"
#include "common/posti.h"
#include "prospetti/datimensili.h"
#include "ui/campilegati.h"
#include "ui/flusso.h"
#include "ui/graficomesi.h"
#include "ui/tinte.h"

#include <QComboBox>
#include <QTableView>
#include <QVBoxLayout>

#include <array>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// Shown in the order of `ColonnaMese`.
constexpr std::array<ColonnaGriglia, colonneMese> colonne = {{
    {u"Mese", 3000, Qt::AlignLeft, 1500},
    {u"Registro IVA", 1200, Qt::AlignHCenter},
    {u"Documenti", 1000, Qt::AlignRight},
    {u"Imponibile", 1400, Qt::AlignRight},
    {u"Imposta", 1400, Qt::AlignRight},
    {u"Esente", 1400, Qt::AlignRight},
    {u"Totale", 1400, Qt::AlignRight},
    {u"Ritenute", 1400, Qt::AlignRight},
}};

constexpr double altezzaGrafico = 60; ///< millimetres of paper

const QString spiegazione =
    u"Per data di registrazione. Le note di credito sono in meno, i documenti eliminati non ci sono; le "
    "anticipazioni delle parcelle non sono né imponibile né esente."_s;

} // namespace

VistaDatiMensili::VistaDatiMensili(DatiMensili& form)
    : VistaProspetto(
          form, u"Dati mensili"_s, u"dati-mensili"_s, colonne,
          [&form](int riga, int colonna) { return form.testo(riga, enumeratore<ColonnaMese>(colonna)); }),
      m_form(form), m_grafico(new GraficoMesi) {
    auto* sopra = new QWidget;
    auto* layout = new QVBoxLayout(sopra);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(creaScelte());
    layout->addWidget(m_grafico, 1);
    componi(sopra, spiegazione, 1);
    legami.altro([this] { aggiornaGrafico(); });
}

QWidget* VistaDatiMensili::creaScelte() {
    auto* barra = new QWidget;
    auto* layout = new Flusso(barra);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* anno = lista(u"anno"_s, u"Anno"_s,
                       [this] {
                           QStringList anni;
                           for (const int quale : m_form.anni())
                               anni.append(QString::number(quale));
                           return anni;
                       },
                       {[this] { return m_form.postoAnno(); }, [this](int i) { m_form.cambiaAnno(i); }});
    auto* registro =
        lista(u"registro"_s, u"Registro IVA"_s, [this] { return m_form.registri(); },
              {[this] { return m_form.postoRegistro(); }, [this](int i) { m_form.cambiaRegistro(i); }});
    layout->addWidget(conDidascalia(u"Anno"_s, anno));
    layout->addWidget(conDidascalia(u"Registro IVA"_s, registro));
    invio.catena({anno, registro, elenco()});
    return barra;
}

void VistaDatiMensili::aggiornaGrafico() {
    DodiciMesi mesi;
    QStringList parole;
    for (int m = 1; m <= quantiIn(mesi); ++m) {
        const SommeDocumenti somme = m_form.mese(m);
        const QString nome = DatiMensili::nomeMese(m);
        elemento(mesi, m - 1) = {nome.left(3), somme.imponibile, somme.imposta};
        if (somme.documenti > 0)
            parole.append(u"%1: imponibile %2, imposta %3"_s.arg(nome, testoItaliano(somme.imponibile, 2),
                                                                 testoItaliano(somme.imposta, 2)));
    }
    m_grafico->mostra(mesi, parole.join(u"; "_s));
}

Figura VistaDatiMensili::figura() const {
    return {altezzaGrafico, [mesi = m_grafico->mesi()](QPainter& penna, const QRectF& posto) {
                disegnaMesi(penna, posto, mesi, tavolozza(Tono::Chiaro));
            }};
}

int VistaDatiMensili::rigaCorrente() const {
    return std::max(elenco()->currentIndex().row(), 0);
}

} // namespace bor
