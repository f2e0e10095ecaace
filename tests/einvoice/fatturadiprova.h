// A company ready for electronic invoices, its customer and a document of one line, for the tests to vary.
#pragma once

#include "einvoice/borftepa.h"
#include "support/azienda.h"

#include <QDir>
#include <QFile>

#include <cstring>

namespace bor {

inline Fpa fpaBianca() {
    Fpa fpa = vuoto<Fpa>();
    std::memset(&fpa, ' ', sizeof fpa);
    return fpa;
}

inline Fpa fpaSocieta() {
    Fpa a = fpaBianca();
    a.statoquadri.set(u"999");
    a.idpaese.set(u"IT");
    a.idcodice.set(u"01234567890");
    a.codfiscale.set(u"09876543210");
    a.partitaiva.set(u"01234567890");
    a.regimefiscale.set(u"0");
    a.formasocieta.set(u"2");
    a.iscrizionerea.set(u"1");
    a.reaufficio.set(u"RM");
    a.reanumero.set(u"123456");
    a.capitalesociale.set(u"10000.00");
    a.sociounico.set(u"SM");
    a.statoliquidazione.set(u"LN");
    a.denominazione.set(u"Caffè & Figli S.r.l.");
    a.sede.indirizzo.set(u"Via Roma 1");
    a.sede.cap.set(u"00184");
    a.sede.comune.set(u"Roma");
    a.sede.provincia.set(u"rm");
    a.sede.nazione.set(u"it");
    a.telefono.set(u"0612345678");
    a.fax.set(u"0687654321");
    a.email.set(u"info@caffe.example");
    a.progressivoinvio.set(u"41");
    a.cartellaxml.set(u"\\xml");
    return a;
}

inline Cli clienteComune() {
    Cli c = clienteDi(QStringLiteral("Comune di Cantù"));
    c.sede.indirizzo.set(u"Piazza Parini 4");
    c.sede.cap.set(u"22063");
    c.sede.citta.set(u"Cantù");
    c.partitaiva.set(u"00123450987");
    c.codicefiscale.set(u"80012345678");
    c.nazione.blank();
    c.clix2.set(u"UFABCD");
    return c;
}

inline QByteArray bytesDi(const Fpa& fpa) {
    return {reinterpret_cast<const char*>(&fpa), sizeof fpa};
}

inline Disco& discoSano() {
    static Disco disco;
    return disco;
}

struct FatturaDiProva {
    explicit FatturaDiProva(const Fpa& societa = fpaSocieta(), const Cli& cliente = clienteComune(),
                            Disco& disco = discoSano())
        : prova(azienda, disco) {
        azienda.scrivi(QStringLiteral("borlano.fpa"), bytesDi(societa));
        QDir(azienda.percorsi().radiceCorrente()).mkdir(QStringLiteral("xml"));
        documento.recordcliente = aggiungi(prova.archivio, prova.archivio.cli, Conta::Cli, cliente);
        prova.impostazioni.valuta.euro = true;
        tabelle.aliquote[1].aliquota = QStringLiteral("22");
        tabelle.aliquote[2] = {QStringLiteral("22"), QStringLiteral("20"), {}, {}};
        tabelle.aliquote[3].aliquota = QStringLiteral("10");
        tabelle.esenzioni[2] = {QStringLiteral("Art. 41 DL 331/93"),
                                QStringLiteral("Cessioni intracomunitarie")};
        tabelle.esenzioni[8] = {QStringLiteral("Art. 10 DPR 633/72"),
                                QStringLiteral("Esente").leftJustified(100) + u'3'};
        tabelle.vettori[4].vettore[0] = QStringLiteral("Trasporti Rapidi");
        tabelle.vettori[4].codici = QStringLiteral("*IT04455667788     VTTMRA70A01H501X*");
        tabelle.vettori[5].vettore[0] = QStringLiteral("Corriere senza codici");
        documento.estremi.numero = QStringLiteral("12");
        documento.estremi.data = QStringLiteral("15/03/2015");
        documento.ddd[0] = {.descrizione = QStringLiteral(" Carta A4 "),
                            .um = QStringLiteral("rs."),
                            .iva = 1,
                            .quantita = 10,
                            .prezzo = 10};
        rata(0, QStringLiteral("30/04/2015"), QStringLiteral("122"));
    }

    void rata(std::size_t i, const QString& scadenza, const QString& importo) {
        documento.scadenze.rate[i] = {scadenza, importo};
    }
    /// A payment type whose code tells the given kind.
    void tipoPagamento(QChar tipo) {
        tabelle.tipopagamenti[1].codice = QString(22, u'0') + tipo;
        documento.scadenze.pagamento = 0;
    }
    QString percorsoXml(const QString& nome) const {
        return azienda.percorsi().radiceCorrente() + QStringLiteral("/xml/") + nome;
    }
    QByteArray xml() const {
        QFile file(percorsoXml(QStringLiteral("IT01234567890_12.xml")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    Fpa fpaScritta(const QString& nome) const {
        Fpa fpa = vuoto<Fpa>();
        const QByteArray bytes = azienda.leggi(nome);
        if (bytes.size() == qsizetype{sizeof fpa})
            std::memcpy(&fpa, bytes.data(), sizeof fpa);
        return fpa;
    }

    AziendaDiProva azienda;
    ContestoDiProva prova;
    Tabelle& tabelle = prova.tabelle;
    Documento documento;
    Borftepa form{prova.contesto, documento};
};

} // namespace bor
