#include "borverifica/verifica.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor::verifica {

namespace {

/// An emptied log keeps its length and begins with zeros.
bool diarioPieno(const QString& percorso) {
    constexpr qint64 marca = 8;
    QFile file(percorso);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray testa = file.read(marca);
    return std::ranges::any_of(testa, [](char c) { return c != '\0'; });
}

} // namespace

Discordanze verificaResti(const Archivio& archivio) {
    Discordanze trovate;
    const QString diario = archivio.borlano(u"rip");
    if (diarioPieno(archivio.reale(diario)))
        trovate.append({Gravita::Errore, u"borlano.rip"_s,
                        u"una registrazione è rimasta a metà: archivio e contatori la aspettano"_s,
                        Rimedio::AvviaProgramma});
    // What replaces a file is written beside it first, under its name and six letters.
    static const QRegularExpression provvisorio(u"^(borlano\\.[^.]{3}|[fp][0-9]+|fpa[0-9]+)\\.[a-z]{6}$"_s,
                                                QRegularExpression::CaseInsensitiveOption);
    const QDir cartella(archivio.reale(archivio.file(u"")));
    for (const QString& nome : cartella.entryList(QDir::Files | QDir::Hidden, QDir::Name)) {
        if (provvisorio.match(nome).hasMatch())
            trovate.append(
                {Gravita::Avviso, nome, u"è rimasto da una scrittura interrotta"_s, Rimedio::MettiDaParte});
    }
    return trovate;
}

} // namespace bor::verifica
