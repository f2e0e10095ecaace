#include "archive/recupero.h"
#include "borverifica/verifica.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor::verifica {

namespace {

QByteArray leggiDiario(const QString& percorso) {
    QFile file(percorso);
    return file.open(QIODevice::ReadOnly) ? file.read(massimoDiario) : QByteArray();
}

/// An emptied log keeps its length and begins with zeros.
bool vuoto(const QByteArray& diario) {
    const auto testa = diario.first(std::min(diario.size(), qsizetype{diarioVuoto.size()}));
    return std::ranges::all_of(testa, [](char c) { return c == '\0'; });
}

Discordanze verificaDiario(const Archivio& archivio) {
    const QString nome = u"borlano.rip"_s;
    const QByteArray bytes = leggiDiario(archivio.reale(archivio.borlano(u"rip")));
    if (vuoto(bytes))
        return {};
    const auto diario = decodifica(bytes);
    // The log is on disk whole before the first write: a torn one stands for a burst that had not begun.
    if (!diario)
        return {{Gravita::Avviso, nome, u"è a metà: la registrazione che prepara non era cominciata"_s,
                 Rimedio::AvviaProgramma}};
    const QString cosa = diario->documento.isEmpty() ? QString() : u" ("_s + diario->documento + u')';
    Discordanze trovate{
        {Gravita::Errore, nome,
         u"una registrazione è rimasta a metà%1: archivio e contatori la aspettano"_s.arg(cosa),
         Rimedio::AvviaProgramma}};
    for (const QString& record : recordEstranei(archivio, *diario))
        trovate.append({Gravita::Errore, record,
                        u"un altro programma lo ha cambiato dopo la registrazione rimasta a metà, che non lo "
                        "toccherà"_s,
                        Rimedio::ConfrontaDato});
    return trovate;
}

} // namespace

Discordanze verificaResti(const Archivio& archivio, const ElencoFile& file) {
    Discordanze trovate = verificaDiario(archivio);
    // What replaces a file is written beside it first, under its name and six letters.
    static const QRegularExpression provvisorio(u"^(borlano\\.[^.]{3}|[fp][0-9]+|fpa[0-9]+)\\.[a-z]{6}$"_s,
                                                QRegularExpression::CaseInsensitiveOption);
    QStringList nomi = file.keys();
    nomi.sort();
    for (const QString& nome : nomi) {
        if (provvisorio.match(nome).hasMatch())
            trovate.append(
                {Gravita::Avviso, nome, u"è rimasto da una scrittura interrotta"_s, Rimedio::MettiDaParte});
    }
    return trovate;
}

} // namespace bor::verifica
