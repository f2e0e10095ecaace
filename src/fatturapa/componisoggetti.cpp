#include "common/numeri.h"
#include "common/testo.h"
#include "document/clienti.h"
#include "fatturapa/caratteri.h"
#include "fatturapa/composizione.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// RF03 stands at 2 in the record; the regime ended and its code went out of the format.
constexpr int regimeCessato = 2;

bool corrisponde(const QString& testo, const QString& forma) {
    return QRegularExpression(QRegularExpression::anchoredPattern(forma)).match(testo).hasMatch();
}

QString latino(const QString& testo, qsizetype massimo) {
    return testoLatino(testo).left(massimo).trimmed();
}

QString paese(const QString& testo, const QString& altrimenti) {
    const QString sigla = testoAscii(testo).toUpper();
    return corrisponde(sigla, u"[A-Z]{2}"_s) ? sigla : altrimenti;
}

IndirizzoFel indirizzo(const SedeFpa& sede, const QString& nazione) {
    return {.indirizzo = latino(sede.indirizzo.text(), 60),
            .cap = testoAscii(sede.cap.text()),
            .comune = latino(sede.comune.text(), 60),
            .provincia = testoAscii(sede.provincia.text()).toUpper(),
            .nazione = paese(sede.nazione.text(), nazione)};
}

/// Share capital as text of either country: "50.000,00", "50000.00", "50.000".
std::optional<double> capitale(const QString& testo) {
    const QString netto = testo.trimmed();
    if (netto.isEmpty())
        return std::nullopt;
    const bool italiano = netto.contains(u',') || corrisponde(netto, u"[0-9]{1,3}(\\.[0-9]{3})+"_s);
    return italiano ? valoretesto(netto) : valore(netto);
}

/// Telephone and e-mail that the format cannot hold are better left out than refused.
QString telefono(const QString& testo) {
    const QString ascii = testoAscii(testo);
    return ascii.size() >= 5 && ascii.size() <= 12 ? ascii : QString();
}

QString email(const QString& testo) {
    const QString ascii = testoAscii(testo);
    return corrisponde(ascii, u".+@.+[.]+.+"_s) && ascii.size() >= 7 && ascii.size() <= 256 ? ascii
                                                                                            : QString();
}

QString codiceFiscale(const QString& testo) {
    const QString codice = testoAscii(testo).toUpper();
    return corrisponde(codice, u"[A-Z0-9]{11,16}"_s) ? codice : QString();
}

std::optional<ReaFel> rea(const Fpa& azienda) {
    if (valore(azienda.iscrizionerea.text()) != 1)
        return std::nullopt;
    const bool societa = valore(azienda.formasocieta.text()) == 2;
    return ReaFel{.ufficio = testoAscii(azienda.reaufficio.text()).toUpper(),
                  .numero = testoAscii(azienda.reanumero.text()),
                  .capitale = societa ? capitale(azienda.capitalesociale.text()) : std::nullopt,
                  .sociounico = societa ? azienda.sociounico.trimmed() : QString(),
                  .liquidazione = azienda.statoliquidazione.trimmed()};
}

/// The customer's country, Italy where his record names none.
QString nazioneCliente(const DatiCliente& cliente) {
    return paese(cliente.nazione, u"IT"_s);
}

} // namespace

void componiTrasmissione(Composizione& c) {
    const Fpa& azienda = c.fonti.azienda;
    const ClienteFel& proprio = c.fonti.propri.cliente;
    TrasmissioneFel& t = c.fattura.trasmissione;
    t.paese = paese(azienda.idpaese.text(), u"IT"_s);
    t.codice = testoAscii(azienda.idcodice.text()).left(28);
    t.progressivo = c.fonti.pa ? testoAscii(c.fonti.pa->progressivoinvio.text()) : QString();
    if (t.progressivo.isEmpty())
        t.progressivo = c.fonti.progressivo;
    const QString ufficio = testoAscii(c.fonti.documento.cliente.clix2.text());
    t.pubblica = corrisponde(ufficio, u"[A-Z0-9]{6}"_s);
    if (t.pubblica) {
        t.destinatario = ufficio;
    } else if (nazioneCliente(c.fonti.documento.testata.cliente) != u"IT") {
        t.destinatario = u"XXXXXXX"_s;
    } else if (!proprio.codice.isEmpty()) {
        t.destinatario = testoAscii(proprio.codice).toUpper();
    } else {
        t.destinatario = u"0000000"_s;
        t.pec = testoAscii(proprio.pec);
    }
}

void componiCedente(Composizione& c) {
    const Fpa& azienda = c.fonti.azienda;
    CedenteFel& cedente = c.fattura.cedente;
    SoggettoFel& s = cedente.soggetto;
    s.paese = paese(azienda.idpaese.text(), u"IT"_s);
    s.codice = testoAscii(azienda.partitaiva.text());
    s.codicefiscale = codiceFiscale(azienda.codfiscale.text());
    s.denominazione = latino(azienda.denominazione.text(), 80);
    s.nome = latino(azienda.nome.text(), 60);
    s.cognome = latino(azienda.cognome.text(), 60);
    s.sede = indirizzo(azienda.sede, s.paese);
    const int regime = valoreIntero(azienda.regimefiscale.text());
    cedente.regime = u"RF"_s + zeriDavanti(QString::number(regime + 1), 2);
    if (regime == regimeCessato)
        c.rifiuta(u"FatturaElettronicaHeader/CedentePrestatore/DatiAnagrafici/RegimeFiscale"_s,
                  cedente.regime, u"Il regime fiscale RF03 non esiste più."_s,
                  u"Scegliere il regime di oggi nei quadri azienda del \"Kit Fatture elettroniche PA\"."_s);
    if (!azienda.stabile.indirizzo.trimmed().isEmpty() || !azienda.stabile.comune.trimmed().isEmpty())
        cedente.stabile = indirizzo(azienda.stabile, s.paese);
    cedente.rea = rea(azienda);
    cedente.telefono = telefono(azienda.telefono.text());
    cedente.fax = telefono(azienda.fax.text());
    cedente.email = email(azienda.email.text());
}

void componiCessionario(Composizione& c) {
    const DatiCliente& cliente = c.fonti.documento.testata.cliente;
    SoggettoFel& s = c.fattura.cessionario;
    s.paese = nazioneCliente(cliente);
    s.codice = testoAscii(cliente.partitaiva).left(28);
    s.codicefiscale = codiceFiscale(cliente.codicefiscale);
    s.denominazione = latino(cliente.sede.ragione1 + u' ' + cliente.sede.ragione2, 80);
    s.sede.indirizzo = latino(cliente.sede.indirizzo, 60);
    s.sede.cap = s.paese == u"IT" ? testoAscii(cliente.sede.cap) : u"00000"_s;
    s.sede.comune = latino(cliente.sede.citta, 60);
    s.sede.nazione = s.paese;
}

} // namespace bor
