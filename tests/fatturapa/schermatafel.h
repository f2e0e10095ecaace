// A company with two customers and three stored documents, two of the first customer and one of the second,
// and the screen of today's electronic invoice on the first of them.
#pragma once

#include "document/righeinsospeso.h"
#include "fatturapa/borftel.h"
#include "fatturapa/documentofel.h"
#include "support/azienda.h"

#include <QDir>
#include <QFile>

namespace bor {

struct SchermataFel {
    SchermataFel() {
        Fpa societa = societaFel();
        societa.cartellaxml.set(u"\\xml");
        azienda.scrivi(QStringLiteral("borlano.fpa"),
                       {reinterpret_cast<const char*>(&societa), sizeof societa});
        QDir(azienda.percorsi().radiceCorrente()).mkdir(QStringLiteral("xml"));
        Cli altro = clienteFel();
        altro.partitaiva.set(u"01234567897");
        for (const Cli& cli : {clienteFel(), altro})
            azienda.cliente(cli);
        int giorno = 0;
        for (const int cliente : {1, 1, 2}) {
            CoppiaFte coppia = documentoDi(cliente, QString::number(++giorno), 100, 22);
            coppia.fte.stamp = 42078 + giorno;
            azienda.documento(coppia);
        }
        DocumentoDiProva modello;
        prova.tabelle = modello.tabelle;
        prova.impostazioni.valuta.euro = true;
        apri(1);
    }

    void apri(int record) {
        documento = {};
        documento.recordfattura = record;
        form.attiva();
    }
    QString xml(const QString& nome = QStringLiteral("IT01234567897_00001.xml")) const {
        return azienda.percorsi().radiceCorrente() + QStringLiteral("/xml/") + nome;
    }
    QByteArray contenuto() const {
        QFile file(xml());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QByteArray archivio() const {
        QByteArray tutto;
        for (const QString& nome : {QStringLiteral("borlano.fte"), QStringLiteral("borlano.f2e"),
                                    QStringLiteral("borlano.cli"), QStringLiteral("borlano.tot")})
            tutto += azienda.leggi(nome);
        return tutto;
    }

    AziendaDiProva azienda;
    ContestoDiProva prova{azienda};
    RigheInSospeso sospese;
    Documento documento;
    Borftel form{prova.contesto, documento, sospese, [] { return QStringLiteral("\\pdf"); }};
};

} // namespace bor
