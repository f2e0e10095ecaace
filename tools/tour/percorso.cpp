#include "tour/giro.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace bor::tour {

namespace {

/// Opens a document of the register by its row, counted from 1.
void apri(Giro& giro, int riga) {
    giro.vaiSu(u"elenco"_s);
    giro.tasto(Qt::Key_Home, Qt::ControlModifier);
    for (int i = 1; i < riga; ++i)
        giro.tasto(Qt::Key_Down);
    giro.tasto(Qt::Key_Return);
}

/// The documents of the demo company that show what a print can look like.
void stampe(Giro& giro) {
    struct Stampa {
        QStringView nome;
        int riga;
        bool parcella;
    };
    for (const auto& [nome, riga, parcella] :
         {Stampa{u"fattura", 100, false}, {u"nota-di-credito", 8, false}, {u"parcella", 4, true}}) {
        apri(giro, riga);
        giro.tasto(Qt::Key_F7);
        giro.pdf(nome.toString(), parcella);
        giro.tasto(Qt::Key_Escape);
    }
}

/// A fee bill and its lines.
void parcella(Giro& giro) {
    apri(giro, 4);
    giro.foto(u"parcella"_s);
    giro.tasto(Qt::Key_F3);
    giro.foto(u"righe-parcella"_s);
    giro.tasto(Qt::Key_Escape);
    giro.tasto(Qt::Key_Escape);
}

/// What the customer has paid for an article, from the row of an invoice that has it.
void storico(Giro& giro) {
    apri(giro, 128);
    giro.tasto(Qt::Key_F3);
    giro.vaiSu(u"artic(1)"_s);
    giro.tasto(Qt::Key_H, Qt::ControlModifier);
    giro.controlla(u"venditeArticolo"_s);
    giro.foto(u"storico"_s);
    giro.tasto(Qt::Key_Escape);
    giro.tasto(Qt::Key_Escape);
    giro.tasto(Qt::Key_Escape);
}

/// What the register is to list.
void vista(Giro& giro) {
    giro.tasto(Qt::Key_L, Qt::ControlModifier);
    giro.foto(u"vista"_s);
    giro.tasto(Qt::Key_Escape);
}

/// Some documents chosen at once, the commands on them, and what became of each.
void scelti(Giro& giro) {
    giro.vaiSu(u"elenco"_s);
    giro.tasto(Qt::Key_Home);
    for (int i = 0; i < 7; ++i)
        giro.tasto(Qt::Key_Down, Qt::ShiftModifier);
    giro.foto(u"registro-scelti"_s);
    giro.tasto(Qt::Key_F4);
    giro.foto(u"menu-scelti"_s);
    giro.tasto(Qt::Key_Escape);
    giro.tasto(Qt::Key_E, Qt::ControlModifier);
    giro.foto(u"scelti-domanda"_s);
    giro.tasto(Qt::Key_Return);
    giro.aspetta(u"finestraRapporto"_s);
    giro.foto(u"scelti-rapporto"_s);
    giro.tasto(Qt::Key_Escape);
}

/// The lists over all documents.
void prospetti(Giro& giro) {
    giro.tasto(Qt::Key_S, Qt::ControlModifier);
    giro.controlla(u"elenco"_s);
    giro.foto(u"scadenzario"_s);
    giro.tasto(Qt::Key_Escape);
    giro.tasto(Qt::Key_G, Qt::ControlModifier);
    giro.controlla(u"grafico"_s);
    giro.foto(u"dati-mensili"_s);
    giro.tasto(Qt::Key_Escape);
}

void registro(Giro& giro) {
    giro.premi(u"visua(1)"_s);
    giro.tasto(Qt::Key_F6);
    giro.foto(u"registro-riordino"_s);
    giro.tasto(Qt::Key_F9);
    giro.foto(u"registro-ordinato"_s);
}

void testata(Giro& giro) {
    giro.tasto(Qt::Key_F2);
    giro.premi(u"b_lista"_s);
    giro.foto(u"elenco-clienti"_s);
    giro.tasto(Qt::Key_Escape);
    giro.vaiSu(u"nome"_s);
    giro.riga(u"Mangimi"_s);
    giro.foto(u"cliente"_s);
    giro.premi(u"bottone"_s);
}

/// A new invoice, from its lines to its movement.
void fatturaNuova(Giro& giro) {
    giro.foto(u"fattura-nuova"_s);
    giro.tasto(Qt::Key_F3);
    giro.tasto(Qt::Key_Return); // no article: the description
    giro.riga(u"Assistenza al montaggio"_s);
    giro.riga(u"h"_s);
    giro.riga(u"8"_s);
    giro.riga(u"10"_s);
    giro.riga({});
    giro.riga(u"42,50"_s);
    giro.foto(u"righe"_s);
    giro.tasto(Qt::Key_F10);
    giro.foto(u"fattura-totali"_s);
    giro.tasto(Qt::Key_F10);
    giro.foto(u"movimento"_s);
    giro.tasto(Qt::Key_F10);
    giro.foto(u"registro-con-fattura"_s);
}

/// The invoice just made, opened again from the register, in each of its panels.
void fatturaEsistente(Giro& giro) {
    giro.vaiSu(u"elenco"_s);
    giro.tasto(Qt::Key_Return);
    giro.foto(u"fattura"_s);
    struct Prospetto {
        Qt::Key tasto;
        QString controllo;
        QString nome;
    };
    for (const auto& [tasto, controllo, nome] : {Prospetto{Qt::Key_2, u"Frame5"_s, u"ritenute"_s},
                                                 {Qt::Key_3, u"ivadiff"_s, u"iva-differita"_s},
                                                 {Qt::Key_4, u"Frame6"_s, u"spesometro"_s}}) {
        giro.tasto(tasto, Qt::ControlModifier);
        giro.controlla(controllo);
        giro.foto(u"fattura-"_s + nome);
    }
    giro.tasto(Qt::Key_Escape);
}

/// A credit note made from that invoice, and rows of a spreadsheet that are pasted into it.
void notaDallaFattura(Giro& giro) {
    giro.tasto(Qt::Key_F3, Qt::ControlModifier);
    giro.foto(u"nota-da-fattura"_s);
    giro.tasto(Qt::Key_F3);
    giro.foto(u"righe-nota-da-fattura"_s);
    QGuiApplication::clipboard()->setText(u"Articolo\tDescrizione\tUM\tQuantità\tSconti\t\tPrezzo\tIva\n"
                                          "ARR001\t\t\t2\n"
                                          "ARC001\t\t\t1.250\t\t\t2,50\t1\n"
                                          "XX99\tMontaggio in sede\th\ttre\t5\t\t42,50\t37\n"
                                          "\tConsegna al piano, come da accordi\n"_s);
    giro.tasto(Qt::Key_V, Qt::ControlModifier);
    giro.foto(u"righe-da-incollare"_s);
    giro.tasto(Qt::Key_Escape);
    giro.tasto(Qt::Key_Escape);
    giro.tasto(Qt::Key_Escape);
}

void fatturaPa(Giro& giro) {
    giro.vaiSu(u"Combo1"_s);
    giro.tasto(Qt::Key_Down);
    giro.tasto(Qt::Key_Down);
    apri(giro, 1);
    giro.foto(u"fattura-pa"_s);
    giro.tasto(Qt::Key_F8);
    giro.foto(u"dati-fattura-pa"_s);
    giro.tasto(Qt::Key_Escape);
    giro.tasto(Qt::Key_Escape);
}

/// Today's electronic invoice of the document that has the cursor.
void fatturaElettronica(Giro& giro) {
    giro.tasto(Qt::Key_F9);
    giro.foto(u"fattura-elettronica"_s);
    giro.tasto(Qt::Key_2, Qt::ControlModifier);
    giro.foto(u"fattura-elettronica-righe"_s);
    giro.tasto(Qt::Key_3, Qt::ControlModifier);
    giro.foto(u"fattura-elettronica-azienda"_s);
    giro.tasto(Qt::Key_F7);
    giro.foto(u"fattura-elettronica-lettura"_s);
    giro.tasto(Qt::Key_Escape);
    giro.tasto(Qt::Key_F10);
    giro.tasto(Qt::Key_Escape);
}

} // namespace

void percorri(Giro& giro) {
    giro.foto(u"registro"_s);
    prospetti(giro);
    stampe(giro);
    parcella(giro);
    storico(giro);
    vista(giro);
    scelti(giro);
    registro(giro);
    testata(giro);
    fatturaNuova(giro);
    fatturaEsistente(giro);
    notaDallaFattura(giro);
    fatturaPa(giro);
    fatturaElettronica(giro);
}

} // namespace bor::tour
