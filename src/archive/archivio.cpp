#include "archive/archivio.h"

#include "common/posti.h"

#include <utility>

namespace bor {

Archivio::Archivio(const Percorsi& percorsi, Disco& disco, double codiceazienda)
    : m_percorsi(percorsi), m_disco(disco), m_cartella(cartellaAzienda(codiceazienda)), tot(disco),
      cli(disco), src(disco), art(disco), sra(disco), srb(disco), con(disco), fte(disco), f2e(disco),
      mag(disco), gio(disco), age(disco), prx(disco), artBlocchi(disco) {}

void Archivio::apri(Apertura apertura) {
    const auto apriUno = [&](FileCasuale& f, QStringView estensione) {
        f.apri(reale(borlano(estensione)), apertura);
    };
    apriUno(tot, u"tot");
    apriUno(cli, u"cli");
    apriUno(src, u"src");
    apriUno(art, u"art");
    apriUno(sra, u"sra");
    apriUno(srb, u"srb");
    apriUno(con, u"con");
    apriUno(fte, u"fte");
    apriUno(f2e, u"f2e");
    apriUno(mag, u"mag");
    apriUno(gio, u"gio");
    apriUno(age, u"age");
    apriUno(prx, u"prx");
    apriUno(artBlocchi, u"art");
}

void Archivio::chiudi() {
    for (FileCasuale* f : std::initializer_list<FileCasuale*>{&tot, &cli, &src, &art, &sra, &srb, &con, &fte,
                                                              &f2e, &mag, &gio, &age, &prx, &artBlocchi})
        f->chiudi();
}

QString Archivio::file(QStringView nome) const {
    return m_cartella + u'\\' + nome.toString();
}

QString Archivio::borlano(QStringView estensione) const {
    return file(QStringLiteral("borlano.") + estensione.toString());
}

QString Archivio::reale(QStringView dos) const {
    return m_percorsi.reale(dos).value_or(QString());
}

EsitoLettura Archivio::leggiTot(Conta quale, Tot& contatore) const {
    return tot.leggi(ordinale(quale), contatore);
}

Tot Archivio::leggiTot(Conta quale) const {
    return tot.leggi(ordinale(quale));
}

bool Archivio::scriviTot(Conta quale, const Tot& contatore) {
    return tot.scrivi(ordinale(quale), contatore);
}

const FileCasuale& Archivio::fileDiRecord(std::size_t posizione) const {
    const std::array<const FileCasuale*, fileDiRaffica.size()> file{&tot, &art, &con, &fte, &f2e, &mag, &gio};
    return *file[posizione];
}

FileCasuale& Archivio::fileDiRecord(std::size_t posizione) {
    return const_cast<FileCasuale&>(std::as_const(*this).fileDiRecord(posizione));
}

std::size_t Archivio::posizioneFile(const FileCasuale& file) const {
    const std::array<const FileCasuale*, fileDiRaffica.size()> tutti{&tot, &art, &con, &fte,
                                                                     &f2e, &mag, &gio};
    return postoDaZero(std::ranges::find(tutti, &file) - tutti.begin());
}

bool Archivio::leggi(int n, CoppiaFte& coppia) const {
    const bool testa = fte.leggi(n, coppia.fte) != EsitoLettura::Guasta;
    const bool coda = f2e.leggi(n, coppia.f2e) != EsitoLettura::Guasta;
    if (coppia.f2e.marca != F2e::marcaValida)
        inizializza2(coppia.f2e);
    return testa && coda;
}

CoppiaFte Archivio::leggi(int n) const {
    CoppiaFte coppia;
    leggi(n, coppia);
    return coppia;
}

bool Archivio::scrivi(int n, const CoppiaFte& coppia) {
    return fte.scrivi(n, coppia.fte) && f2e.scrivi(n, coppia.f2e);
}

} // namespace bor
