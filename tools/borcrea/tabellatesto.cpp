#include "borcrea/tabellatesto.h"

#include "common/date.h"
#include "common/posti.h"
#include "common/testo.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

namespace bor::crea {

using namespace Qt::StringLiterals;

QStringList leggiLinee(const QString& percorso, const QString& nome, Problemi& problemi) {
    QFile file(percorso);
    if (!file.open(QIODevice::ReadOnly)) {
        problemi.append({nome, 0, u"il file non si può leggere."_s});
        return {};
    }
    QString testo = QString::fromUtf8(file.readAll());
    testo.remove(u'\r');
    if (testo.startsWith(QChar(QChar::ByteOrderMark)))
        testo.remove(0, 1);
    if (testo.endsWith(u'\n'))
        testo.chop(1);
    const QStringList linee = testo.split(u'\n');
    for (int i = 0; i < linee.size(); ++i) {
        const auto estraneo = std::ranges::find_if_not(linee[i], inCodePage);
        if (estraneo != linee[i].end())
            problemi.append({nome, i + 1, u"il carattere \"%1\" non esiste nell'archivio."_s.arg(*estraneo)});
    }
    return linee;
}

RigaTabella::RigaTabella(TabellaTesto& tabella, int numero, QStringList valori)
    : m_tabella(&tabella), m_numero(numero), m_valori(std::move(valori)) {}

void RigaTabella::problema(const QString& motivo) const {
    m_tabella->m_problemi.append({m_tabella->m_nome, m_numero, motivo});
}

QString RigaTabella::testo(QStringView colonna, int larghezza) const {
    const QString valore = m_valori.value(m_tabella->m_posti.value(colonna.toString(), -1)).trimmed();
    if (valore.size() > larghezza)
        problema(u"%1: \"%2\" ha %3 caratteri, ne sono ammessi %4."_s.arg(colonna, valore)
                     .arg(valore.size())
                     .arg(larghezza));
    return valore;
}

QString RigaTabella::obbligatorio(QStringView colonna, int larghezza) const {
    const QString valore = testo(colonna, larghezza);
    if (valore.isEmpty())
        problema(u"%1: manca."_s.arg(colonna));
    return valore;
}

bool RigaTabella::vuoto(QStringView colonna) const {
    return testo(colonna, senzaLimite).isEmpty();
}

int RigaTabella::intero(QStringView colonna, int minimo, int massimo, int predefinito) const {
    const QString valore = testo(colonna, senzaLimite);
    if (valore.isEmpty())
        return predefinito;
    bool numero = false;
    const int n = valore.toInt(&numero);
    if (numero && n >= minimo && n <= massimo)
        return n;
    problema(
        u"%1: \"%2\" non è un numero intero da %3 a %4."_s.arg(colonna, valore).arg(minimo).arg(massimo));
    return predefinito;
}

double RigaTabella::numero(QStringView colonna, double predefinito) const {
    static const QRegularExpression forma(u"^-?[0-9]{1,12}([.,][0-9]{1,6})?$"_s);
    QString valore = testo(colonna, senzaLimite);
    if (valore.isEmpty())
        return predefinito;
    if (!forma.match(valore).hasMatch()) {
        problema(u"%1: \"%2\" non è un numero (per esempio 1250,50)."_s.arg(colonna, valore));
        return predefinito;
    }
    return valore.replace(u',', u'.').toDouble();
}

bool RigaTabella::segno(QStringView colonna) const {
    return intero(colonna, 0, 1) == 1;
}

QDate RigaTabella::data(QStringView colonna) const {
    const QString valore = obbligatorio(colonna, 10);
    const auto data = dataValida(valore);
    if (!valore.isEmpty() && !data)
        problema(u"%1: \"%2\" non è una data (gg/mm/aaaa)."_s.arg(colonna, valore));
    return data.value_or(QDate());
}

TabellaTesto::TabellaTesto(const QString& cartella, const QString& nome, const QStringList& colonne,
                           Problemi& problemi, bool necessario)
    : m_nome(nome), m_problemi(problemi) {
    const QString percorso = cartella + u'/' + nome;
    if (!necessario && !QFile::exists(percorso))
        return;
    const QStringList linee = leggiLinee(percorso, nome, problemi);
    for (int i = 0; i < linee.size(); ++i) {
        const int numero = i + 1;
        if (linee[i].trimmed().isEmpty() || linee[i].startsWith(u'#'))
            continue;
        if (m_colonne == 0) {
            leggiIntestazione(numero, linee[i], colonne);
            continue;
        }
        QStringList valori;
        if (dividi(numero, linee[i], valori))
            m_righe.append(RigaTabella(*this, numero, valori));
    }
}

void TabellaTesto::leggiIntestazione(int numero, const QString& linea, const QStringList& colonne) {
    const QStringList nomi = linea.split(u';');
    m_colonne = quantiIn(nomi);
    for (int i = 0; i < m_colonne; ++i) {
        const QString nome = nomi[i].trimmed();
        if (!colonne.contains(nome))
            m_problemi.append(
                {m_nome, numero,
                 u"la colonna \"%1\" non esiste; le colonne sono: %2."_s.arg(nome, colonne.join(u", "_s))});
        if (m_posti.contains(nome))
            m_problemi.append({m_nome, numero, u"la colonna \"%1\" è ripetuta."_s.arg(nome)});
        m_posti.insert(nome, i);
    }
}

bool TabellaTesto::dividi(int numero, const QString& linea, QStringList& valori) {
    QString valore;
    bool virgolette = false;
    for (qsizetype i = 0; i < linea.size(); ++i) {
        const QChar c = linea[i];
        if (c == u'"' && virgolette && i + 1 < linea.size() && linea[i + 1] == u'"') {
            valore += c;
            ++i;
        } else if (c == u'"') {
            virgolette = !virgolette;
        } else if (c == u';' && !virgolette) {
            valori.append(valore);
            valore.clear();
        } else {
            valore += c;
        }
    }
    valori.append(valore);
    if (virgolette)
        m_problemi.append({m_nome, numero, u"le virgolette non sono chiuse."_s});
    else if (valori.size() > m_colonne)
        m_problemi.append(
            {m_nome, numero, u"ci sono %1 valori per %2 colonne."_s.arg(valori.size()).arg(m_colonne)});
    else
        return true;
    return false;
}

} // namespace bor::crea
