#include "archive/archivio.h"

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

Tot Archivio::leggiTot(Conta quale) const {
    return tot.leggi(static_cast<int>(quale));
}

bool Archivio::scriviTot(Conta quale, const Tot& contatore) {
    return tot.scrivi(static_cast<int>(quale), contatore);
}

int Archivio::prossimo(const Tot& contatore) {
    const int n = std::max<int>(contatore.numero, 0) + 1;
    return n > massimo ? 0 : n;
}

CoppiaFte Archivio::leggi(int n) const {
    CoppiaFte coppia;
    fte.leggi(n, coppia.fte);
    f2e.leggi(n, coppia.f2e);
    if (coppia.f2e.marca != F2e::marcaValida)
        inizializza2(coppia.f2e);
    return coppia;
}

bool Archivio::scrivi(int n, const CoppiaFte& coppia) {
    return fte.scrivi(n, coppia.fte) && f2e.scrivi(n, coppia.f2e);
}

} // namespace bor
