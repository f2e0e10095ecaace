#include "register/vistaregistro.h"

#include "archive/promemoria.h"
#include "common/posti.h"

#include <QSettings>

#include <algorithm>
#include <optional>
#include <set>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr QStringView gruppo = u"registro";

QByteArray cifreDi(QDate data) {
    return data.isValid() ? data.toString(u"yyyyMMdd").toLatin1() : QByteArray();
}

bool delGenere(GenereDocumento genere, const Fte& fte, const F2e& f2e) {
    const bool nota = fte.tipo == 1;
    switch (genere) {
    case GenereDocumento::Tutti:
        return true;
    case GenereDocumento::Fatture:
        return !nota && fte.parcella == 0;
    case GenereDocumento::NoteDiCredito:
        return nota;
    case GenereDocumento::Parcelle:
        return !nota && fte.parcella != 0;
    case GenereDocumento::Pa:
        return f2e.fatturaPa();
    }
    return true;
}

std::vector<ColonnaScelta> colonneDa(const QStringList& testi) {
    std::vector<ColonnaScelta> colonne;
    std::set<Colonna> viste;
    for (const QString& testo : testi) {
        const auto colonna = colonnaDi(testo.section(u':', 0, 0));
        const int caratteri = testo.section(u':', 1).toInt();
        if (colonna && viste.insert(*colonna).second)
            colonne.push_back({*colonna, std::clamp(caratteri, 0, massimaLarghezzaColonna)});
    }
    return colonne;
}

} // namespace

Vaglio::Vaglio(const DocumentiScelti& documenti)
    : m_data(documenti.data), m_genere(documenti.genere), m_eliminati(documenti.eliminati) {
    const Giorni giorni = giorniDi(documenti.periodo);
    m_dal = cifreDi(giorni.dal);
    m_al = cifreDi(giorni.al);
}

bool Vaglio::passa(const Fte& fte, const F2e& f2e) const {
    return (m_eliminati || fte.annullata != 1) && delGenere(m_genere, fte, f2e) &&
           ((m_dal.isEmpty() && m_al.isEmpty()) ||
            nelPeriodo(m_data == DataPeriodo::Documento ? fte.datadoc : fte.datareg));
}

/// What is no day lies in no period.
bool Vaglio::nelPeriodo(const Text<8>& giorno) const {
    const QByteArrayView cifre = giorno.raw();
    return std::ranges::all_of(cifre, [](char c) { return c >= '0' && c <= '9'; }) &&
           (m_dal.isEmpty() || cifre >= m_dal) && (m_al.isEmpty() || cifre <= m_al);
}

QString DocumentiScelti::descrizione() const {
    QStringList parti;
    if (const QString quando = bor::descrizione(periodo); !quando.isEmpty())
        parti.append(data == DataPeriodo::Documento ? quando : quando + u" (data di registrazione)"_s);
    if (genere != GenereDocumento::Tutti) {
        const QString nome = generiDocumento().value(ordinale(genere));
        parti.append(nome.left(1).toLower() + nome.sliced(1));
    }
    if (!eliminati)
        parti.append(u"senza eliminati"_s);
    return parti.join(u", "_s);
}

std::vector<ColonnaScelta> VistaRegistro::mostrate() const {
    if (!colonne.empty())
        return colonne;
    std::vector<ColonnaScelta> sue;
    for (Colonna c = Colonna::Registrazione; c <= Colonna::Pdf; c = prossimo(c))
        sue.push_back({c, 0});
    return sue;
}

MemoriaVista::MemoriaVista(const Percorsi& percorsi, double codiceazienda)
    : m_file(percorsi.promemoria(codiceazienda)) {}

VistaRegistro MemoriaVista::leggi() const {
    QSettings file(m_file, QSettings::IniFormat);
    file.beginGroup(gruppo);
    VistaRegistro vista;
    DocumentiScelti& documenti = vista.documenti;
    documenti.periodo = {sceltaRicordata(file, u"periodo", Periodo::Genere::DalAl),
                         file.value(u"anno").toInt(),
                         file.value(u"quale", 1).toInt(),
                         {QDate::fromString(file.value(u"dal").toString(), Qt::ISODate),
                          QDate::fromString(file.value(u"al").toString(), Qt::ISODate)}};
    documenti.data = sceltaRicordata(file, u"data", DataPeriodo::Registrazione);
    documenti.genere = sceltaRicordata(file, u"genere", GenereDocumento::Pa);
    documenti.eliminati = file.value(u"eliminati", true).toBool();
    vista.colonne = colonneDa(file.value(u"colonne").toStringList());
    return vista;
}

void MemoriaVista::segna(const VistaRegistro& vista) const {
    QSettings file(m_file, QSettings::IniFormat);
    file.remove(gruppo);
    if (vista == VistaRegistro())
        return;
    const DocumentiScelti& documenti = vista.documenti;
    file.beginGroup(gruppo);
    file.setValue(u"periodo", ordinale(documenti.periodo.genere));
    file.setValue(u"anno", documenti.periodo.anno);
    file.setValue(u"quale", documenti.periodo.quale);
    file.setValue(u"dal", documenti.periodo.dalAl.dal.toString(Qt::ISODate));
    file.setValue(u"al", documenti.periodo.dalAl.al.toString(Qt::ISODate));
    file.setValue(u"data", ordinale(documenti.data));
    file.setValue(u"genere", ordinale(documenti.genere));
    file.setValue(u"eliminati", documenti.eliminati);
    QStringList colonne;
    for (const ColonnaScelta& scelta : vista.colonne)
        colonne.append(u"%1:%2"_s.arg(datiColonna(scelta.colonna).chiave).arg(scelta.caratteri));
    file.setValue(u"colonne", colonne);
}

QStringList generiDocumento() {
    return {u"Tutti i documenti"_s, u"Fatture"_s, u"Note di credito"_s, u"Parcelle"_s, u"Fatture PA"_s};
}

} // namespace bor
