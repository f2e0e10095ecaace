#include "borverifica/verifica.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace bor::verifica {

QString parola(Gravita gravita) {
    return gravita == Gravita::Errore ? u"ERRORE"_s : gravita == Gravita::Avviso ? u"AVVISO"_s : u"INFO"_s;
}

QString Discordanza::testo() const {
    return parola(gravita).leftJustified(8) + dove + u": "_s + motivo;
}

QByteArray Discordanza::json() const {
    const QJsonObject oggetto{{u"gravita"_s, parola(gravita).toLower()},
                              {u"dove"_s, dove},
                              {u"motivo"_s, motivo},
                              {u"rimedio"_s, verifica::testo(rimedio)}};
    return QJsonDocument(oggetto).toJson(QJsonDocument::Compact);
}

ElencoFile elencoFile(const Archivio& archivio) {
    ElencoFile file;
    const QDir cartella(archivio.reale(archivio.file(u"")));
    for (const QFileInfo& f : cartella.entryInfoList(QDir::Files | QDir::Hidden))
        file.insert(f.fileName(), f.size());
    return file;
}

Discordanze verificaArchivio(const Archivio& archivio) {
    return verificaArchivio(archivio, elencoFile(archivio));
}

Discordanze verificaArchivio(const Archivio& archivio, const ElencoFile& file) {
    return verificaContatori(archivio) + verificaDocumenti(archivio, file) + verificaMovimenti(archivio) +
           verificaConti(archivio) + verificaMagazzino(archivio) + verificaIndici(archivio) +
           verificaNumerazione(archivio) + verificaResti(archivio, file);
}

int quante(const Discordanze& discordanze, Gravita gravita) {
    return static_cast<int>(std::ranges::count(discordanze, gravita, &Discordanza::gravita));
}

QStringList nonLeggibili(const Archivio& archivio) {
    QStringList chiusi;
    for (const FileCasuale* f : std::initializer_list<const FileCasuale*>{
             &archivio.tot, &archivio.cli, &archivio.src, &archivio.art, &archivio.srb, &archivio.con,
             &archivio.fte, &archivio.f2e, &archivio.mag, &archivio.gio, &archivio.age}) {
        if (!f->aperto() && QFileInfo::exists(f->percorso()))
            chiusi.append(f->percorso());
    }
    return chiusi;
}

bool collegato(double stamp) {
    return std::isfinite(stamp) && stamp != 0.0;
}

QString elencoBreve(const QStringList& testi) {
    constexpr qsizetype massimo = 10;
    const QString elenco = testi.mid(0, massimo).join(u", "_s);
    return testi.size() > massimo ? elenco + u" e altri %1"_s.arg(testi.size() - massimo) : elenco;
}

QString nomeDocumento(const Fte& fte, int record) {
    const QString genere = fte.parcella != 0 ? u"parcella"_s
                           : fte.tipo == 1   ? u"nota di credito"_s
                                             : u"fattura"_s;
    return u"%1 n. %2 (record %3)"_s.arg(genere, puliscitesto(fte.numero.text()), QString::number(record));
}

} // namespace bor::verifica
