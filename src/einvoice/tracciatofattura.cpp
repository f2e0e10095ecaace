#include "einvoice/tracciatofattura.h"

#include "common/codicifiscali.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

using enum Volte;
using Figli = std::vector<Elemento>;

const QString quadriAzienda = u"nei quadri azienda del \"Kit Fatture elettroniche PA\""_s;
const QString cliente = u"nella maschera \"Selezione cliente\" (anagrafica del cliente)"_s;
const QString righe = u"nelle righe, maschera \"Estremi del documento\""_s;
const QString documento = u"nella maschera del documento (modifica dati fattura)"_s;
const QString scadenze = u"nelle scadenze della maschera del documento"_s;

QString campoPa(const QString& campo) {
    return u"nella maschera \"Fattura elettronica PA\", campo \"%1\""_s.arg(campo);
}

Forma forma(const QString& regola, const QString& attesa) {
    return {QRegularExpression(QRegularExpression::anchoredPattern(regola)), attesa};
}

Forma testo(int massimo) {
    return forma(u"[\\x{00}-\\x{FF}]{1,%1}"_s.arg(massimo),
                 u"da 1 a %1 caratteri, senza segni come € o le virgolette inclinate"_s.arg(massimo));
}

Forma codice(int minimo, int massimo) {
    return forma(u"[\\x{00}-\\x{7F}]{%1,%2}"_s.arg(minimo).arg(massimo),
                 minimo == massimo ? u"%1 caratteri senza accenti"_s.arg(minimo)
                                   : u"da %1 a %2 caratteri senza accenti"_s.arg(minimo).arg(massimo));
}

Forma unoFra(const QString& scelte, const QString& attesa) {
    return forma(scelte, attesa);
}

Forma data() {
    return forma(u"[0-9]{4}-(0[1-9]|1[0-2])-(0[1-9]|[12][0-9]|3[01])"_s,
                 u"una data nella forma aaaa-mm-gg"_s);
}

Forma importo(int decimaliMassimi = 2) {
    return forma(u"-?[0-9]{1,11}\\.[0-9]{2,%1}"_s.arg(decimaliMassimi),
                 decimaliMassimi == 2
                     ? u"un numero con il punto e due decimali"_s
                     : u"un numero con il punto e da 2 a %1 decimali"_s.arg(decimaliMassimi));
}

Forma percento() {
    return forma(u"[0-9]{1,3}\\.[0-9]{2}"_s, u"una percentuale con il punto e due decimali"_s);
}

Forma intero(int cifre) {
    return forma(u"[0-9]{1,%1}"_s.arg(cifre), u"un numero intero di %1 cifre al massimo"_s.arg(cifre));
}

Forma lettere(int quante) {
    return forma(u"[A-Z]{%1}"_s.arg(quante), u"%1 lettere maiuscole"_s.arg(quante));
}

Forma natura() {
    return unoFra(u"N[1-7]"_s, u"un codice da N1 a N7"_s);
}

Forma codiceFiscale() {
    Forma f = forma(u"[A-Z0-9]{11,16}"_s, u"da 11 a 16 lettere maiuscole e cifre"_s);
    f.cifreControllo = codiceFiscaleValido;
    return f;
}

Forma iban() {
    Forma f = forma(u"[A-Z]{2}[0-9]{2}[A-Za-z0-9]{11,30}"_s, u"da 15 a 34 lettere e cifre"_s);
    f.cifreControllo = ibanValido;
    return f;
}

Elemento idFiscale(const QString& nome, Volte volte = Una) {
    return {.nome = nome,
            .volte = volte,
            .figli = {{.nome = u"IdPaese"_s, .forma = lettere(2)},
                      {.nome = u"IdCodice"_s, .forma = codice(1, 28)}}};
}

Elemento anagrafica() {
    return {.nome = u"Anagrafica"_s,
            .figli = {{.nome = u"Denominazione"_s, .volte = AlPiuUna, .forma = testo(80)},
                      {.nome = u"Nome"_s, .volte = AlPiuUna, .forma = testo(60)},
                      {.nome = u"Cognome"_s, .volte = AlPiuUna, .forma = testo(60)},
                      {.nome = u"Titolo"_s, .volte = AlPiuUna, .forma = testo(10)},
                      {.nome = u"CodEORI"_s, .volte = AlPiuUna, .forma = codice(13, 17)}}};
}

Elemento indirizzo(const QString& nome, Volte volte = Una) {
    return {.nome = nome,
            .volte = volte,
            .figli = {{.nome = u"Indirizzo"_s, .forma = testo(60)},
                      {.nome = u"NumeroCivico"_s, .volte = AlPiuUna, .forma = codice(1, 8)},
                      {.nome = u"CAP"_s, .forma = forma(u"[0-9]{5}"_s, u"5 cifre"_s)},
                      {.nome = u"Comune"_s, .forma = testo(60)},
                      {.nome = u"Provincia"_s, .volte = AlPiuUna, .forma = lettere(2)},
                      {.nome = u"Nazione"_s, .forma = lettere(2)}}};
}

Elemento telefono() {
    return {.nome = u"Telefono"_s, .volte = AlPiuUna, .forma = codice(5, 12)};
}

Elemento email() {
    return {.nome = u"Email"_s, .volte = AlPiuUna, .forma = codice(7, 256)};
}

Elemento datiTrasmissione() {
    return {.nome = u"DatiTrasmissione"_s,
            .figli = {idFiscale(u"IdTrasmittente"_s),
                      {.nome = u"ProgressivoInvio"_s,
                       .forma = codice(1, 10),
                       .dove = campoPa(u"Numero progressivo invio"_s)},
                      {.nome = u"FormatoTrasmissione"_s, .forma = unoFra(u"SDI10"_s, u"la sigla SDI10"_s)},
                      {.nome = u"CodiceDestinatario"_s,
                       .forma = forma(u"[A-Z0-9]{6}"_s, u"6 lettere maiuscole o cifre (codice ufficio)"_s),
                       .dove = u"nell'anagrafica del cliente, codice ufficio"_s},
                      {.nome = u"ContattiTrasmittente"_s, .volte = AlPiuUna, .figli = {telefono(), email()}}},
            .dove = quadriAzienda};
}

Elemento iscrizioneRea() {
    return {.nome = u"IscrizioneREA"_s,
            .volte = AlPiuUna,
            .figli = {
                {.nome = u"Ufficio"_s, .forma = lettere(2)},
                {.nome = u"NumeroREA"_s, .forma = codice(1, 20)},
                {.nome = u"CapitaleSociale"_s, .volte = AlPiuUna, .forma = importo()},
                {.nome = u"SocioUnico"_s, .volte = AlPiuUna, .forma = unoFra(u"SU|SM"_s, u"SU oppure SM"_s)},
                {.nome = u"StatoLiquidazione"_s, .forma = unoFra(u"LS|LN"_s, u"LS oppure LN"_s)}}};
}

Elemento cedente() {
    const Figli datiAnagrafici = {
        idFiscale(u"IdFiscaleIVA"_s),
        {.nome = u"CodiceFiscale"_s, .volte = AlPiuUna, .forma = codiceFiscale()},
        anagrafica(),
        {.nome = u"AlboProfessionale"_s, .volte = AlPiuUna, .forma = testo(60)},
        {.nome = u"ProvinciaAlbo"_s, .volte = AlPiuUna, .forma = lettere(2)},
        {.nome = u"NumeroIscrizioneAlbo"_s, .volte = AlPiuUna, .forma = codice(1, 60)},
        {.nome = u"DataIscrizioneAlbo"_s, .volte = AlPiuUna, .forma = data()},
        {.nome = u"RegimeFiscale"_s, .forma = unoFra(u"RF(0[1-9]|1[0-9])"_s, u"un codice da RF01 a RF19"_s)}};
    return {.nome = u"CedentePrestatore"_s,
            .figli = {{.nome = u"DatiAnagrafici"_s, .figli = datiAnagrafici},
                      indirizzo(u"Sede"_s),
                      indirizzo(u"StabileOrganizzazione"_s, AlPiuUna),
                      iscrizioneRea(),
                      {.nome = u"Contatti"_s,
                       .volte = AlPiuUna,
                       .figli = {telefono(),
                                 {.nome = u"Fax"_s, .volte = AlPiuUna, .forma = codice(5, 12)},
                                 email()}},
                      {.nome = u"RiferimentoAmministrazione"_s, .volte = AlPiuUna, .forma = codice(1, 20)}},
            .dove = quadriAzienda};
}

Elemento cessionario() {
    return {.nome = u"CessionarioCommittente"_s,
            .figli = {{.nome = u"DatiAnagrafici"_s,
                       .figli = {idFiscale(u"IdFiscaleIVA"_s, AlPiuUna),
                                 {.nome = u"CodiceFiscale"_s, .volte = AlPiuUna, .forma = codiceFiscale()},
                                 anagrafica()}},
                      indirizzo(u"Sede"_s)},
            .dove = cliente};
}

Elemento testataFattura() {
    return {.nome = u"FatturaElettronicaHeader"_s,
            .figli = {datiTrasmissione(),
                      cedente(),
                      {.nome = u"RappresentanteFiscale"_s, .volte = AlPiuUna, .liberi = true},
                      cessionario(),
                      {.nome = u"TerzoIntermediarioOSoggettoEmittente"_s, .volte = AlPiuUna, .liberi = true},
                      {.nome = u"SoggettoEmittente"_s,
                       .volte = AlPiuUna,
                       .forma = unoFra(u"CC|TZ"_s, u"CC oppure TZ"_s)}}};
}

Elemento siglaSi(const QString& nome, const QString& dove = {}) {
    return {.nome = nome, .volte = AlPiuUna, .forma = unoFra(u"SI"_s, u"la parola SI"_s), .dove = dove};
}

Elemento datiRitenuta() {
    return {.nome = u"DatiRitenuta"_s,
            .volte = AlPiuUna,
            .figli = {{.nome = u"TipoRitenuta"_s,
                       .forma = unoFra(u"RT0[12]"_s, u"RT01 oppure RT02"_s),
                       .dove = campoPa(u"Tipo ritenuta"_s)},
                      {.nome = u"ImportoRitenuta"_s, .forma = importo()},
                      {.nome = u"AliquotaRitenuta"_s, .forma = percento()},
                      {.nome = u"CausalePagamento"_s,
                       .forma = unoFra(u"[A-EG-IL-Z]"_s, u"una lettera del modello 770S"_s),
                       .dove = campoPa(u"Causale pagamanto"_s)}},
            .dove = righe};
}

Elemento datiCassa() {
    return {.nome = u"DatiCassaPrevidenziale"_s,
            .volte = Libere,
            .figli = {{.nome = u"TipoCassa"_s,
                       .forma = unoFra(u"TC(0[1-9]|1[0-9]|2[0-2])"_s, u"un codice da TC01 a TC22"_s)},
                      {.nome = u"AlCassa"_s, .forma = percento()},
                      {.nome = u"ImportoContributoCassa"_s, .forma = importo()},
                      {.nome = u"ImponibileCassa"_s, .volte = AlPiuUna, .forma = importo()},
                      {.nome = u"AliquotaIVA"_s, .forma = percento()},
                      siglaSi(u"Ritenuta"_s),
                      {.nome = u"Natura"_s, .volte = AlPiuUna, .forma = natura()},
                      {.nome = u"RiferimentoAmministrazione"_s, .volte = AlPiuUna, .forma = codice(1, 20)}},
            .dove = righe};
}

Elemento datiDocumento() {
    return {.nome = u"DatiGeneraliDocumento"_s,
            .figli = {{.nome = u"TipoDocumento"_s,
                       .forma = unoFra(u"TD0[1-6]"_s, u"un codice da TD01 a TD06"_s),
                       .dove = campoPa(u"Tipo documento"_s)},
                      {.nome = u"Divisa"_s, .forma = lettere(3)},
                      {.nome = u"Data"_s, .forma = data(), .dove = campoPa(u"Data"_s)},
                      {.nome = u"Numero"_s,
                       .forma = forma(u"(?=.*[0-9])[\\x{00}-\\x{7F}]{1,20}"_s,
                                      u"da 1 a 20 caratteri, con almeno una cifra"_s),
                       .dove = campoPa(u"Numero"_s)},
                      datiRitenuta(),
                      {.nome = u"DatiBollo"_s, .volte = AlPiuUna, .liberi = true},
                      datiCassa(),
                      {.nome = u"ScontoMaggiorazione"_s, .volte = Libere, .liberi = true},
                      {.nome = u"ImportoTotaleDocumento"_s, .volte = AlPiuUna, .forma = importo()},
                      {.nome = u"Arrotondamento"_s, .volte = AlPiuUna, .forma = importo()},
                      {.nome = u"Causale"_s, .volte = Libere, .forma = testo(200)},
                      siglaSi(u"Art73"_s, campoPa(u"Documento emesso ai sensi art.73 DPR 633/72"_s))}};
}

Elemento riferimento(const QString& nome, const QString& riquadro) {
    return {.nome = nome,
            .volte = Libere,
            .figli = {{.nome = u"RiferimentoNumeroLinea"_s, .volte = Libere, .forma = intero(4)},
                      {.nome = u"IdDocumento"_s, .forma = codice(1, 20)},
                      {.nome = u"Data"_s, .volte = AlPiuUna, .forma = data()},
                      {.nome = u"NumItem"_s, .volte = AlPiuUna, .forma = codice(1, 20)},
                      {.nome = u"CodiceCommessaConvenzione"_s, .volte = AlPiuUna, .forma = testo(100)},
                      {.nome = u"CodiceCUP"_s,
                       .volte = AlPiuUna,
                       .forma = codice(1, 15),
                       .dove = campoPa(u"Codice CUP"_s)},
                      {.nome = u"CodiceCIG"_s,
                       .volte = AlPiuUna,
                       .forma = codice(1, 15),
                       .dove = campoPa(u"Codice CIG"_s)}},
            .dove = campoPa(riquadro)};
}

Elemento datiTrasporto() {
    const Elemento vettore = {
        .nome = u"DatiAnagraficiVettore"_s,
        .volte = AlPiuUna,
        .figli = {idFiscale(u"IdFiscaleIVA"_s),
                  {.nome = u"CodiceFiscale"_s, .volte = AlPiuUna, .forma = codiceFiscale()},
                  anagrafica(),
                  {.nome = u"NumeroLicenzaGuida"_s, .volte = AlPiuUna, .forma = codice(1, 20)}}};
    Elemento trasporto = {
        .nome = u"DatiTrasporto"_s,
        .volte = AlPiuUna,
        .figli = {vettore},
        .dove = u"nella tabella dei vettori, scelti nella maschera \"Fattura elettronica PA\""_s};
    for (const QString& nome :
         {u"MezzoTrasporto"_s, u"CausaleTrasporto"_s, u"NumeroColli"_s, u"Descrizione"_s,
          u"UnitaMisuraPeso"_s, u"PesoLordo"_s, u"PesoNetto"_s, u"DataOraRitiro"_s, u"DataInizioTrasporto"_s,
          u"TipoResa"_s, u"IndirizzoResa"_s, u"DataOraConsegna"_s})
        trasporto.figli.push_back({.nome = nome, .volte = AlPiuUna, .liberi = true});
    return trasporto;
}

Elemento datiGenerali() {
    return {.nome = u"DatiGenerali"_s,
            .figli = {datiDocumento(),
                      riferimento(u"DatiOrdineAcquisto"_s, u"Ordine"_s),
                      riferimento(u"DatiContratto"_s, u"Contratto"_s),
                      riferimento(u"DatiConvenzione"_s, u"Convenzione"_s),
                      riferimento(u"DatiRicezione"_s, u"Ricezione"_s),
                      {.nome = u"DatiFattureCollegate"_s, .volte = Libere, .liberi = true},
                      {.nome = u"DatiSAL"_s, .volte = Libere, .liberi = true},
                      {.nome = u"DatiDDT"_s,
                       .volte = Libere,
                       .figli = {{.nome = u"NumeroDDT"_s, .forma = codice(1, 20)},
                                 {.nome = u"DataDDT"_s, .forma = data()},
                                 {.nome = u"RiferimentoNumeroLinea"_s, .volte = Libere, .forma = intero(4)}},
                       .dove = campoPa(u"Documento"_s)},
                      datiTrasporto(),
                      {.nome = u"NormaDiRiferimento"_s, .volte = AlPiuUna, .liberi = true},
                      {.nome = u"FatturaPrincipale"_s, .volte = AlPiuUna, .liberi = true}}};
}

Elemento dettaglioLinee() {
    const Elemento sconto = {.nome = u"ScontoMaggiorazione"_s,
                             .volte = Libere,
                             .figli = {{.nome = u"Tipo"_s, .forma = unoFra(u"SC|MG"_s, u"SC oppure MG"_s)},
                                       {.nome = u"Percentuale"_s, .volte = AlPiuUna, .forma = percento()},
                                       {.nome = u"Importo"_s, .volte = AlPiuUna, .forma = importo()}}};
    return {.nome = u"DettaglioLinee"_s,
            .volte = UnaOPiu,
            .figli = {{.nome = u"NumeroLinea"_s, .forma = intero(4)},
                      {.nome = u"TipoCessionePrestazione"_s,
                       .volte = AlPiuUna,
                       .forma = unoFra(u"SC|PR|AB|AC"_s, u"SC, PR, AB oppure AC"_s)},
                      {.nome = u"CodiceArticolo"_s, .volte = Libere, .liberi = true},
                      {.nome = u"Descrizione"_s, .forma = testo(1000)},
                      {.nome = u"Quantita"_s,
                       .volte = AlPiuUna,
                       .forma = forma(u"[0-9]{1,12}\\.[0-9]{2,8}"_s,
                                      u"un numero non negativo con il punto e da 2 a 8 decimali"_s)},
                      {.nome = u"UnitaMisura"_s, .volte = AlPiuUna, .forma = codice(1, 10)},
                      {.nome = u"DataInizioPeriodo"_s, .volte = AlPiuUna, .forma = data()},
                      {.nome = u"DataFinePeriodo"_s, .volte = AlPiuUna, .forma = data()},
                      {.nome = u"PrezzoUnitario"_s, .forma = importo(8)},
                      sconto,
                      {.nome = u"PrezzoTotale"_s, .forma = importo(8)},
                      {.nome = u"AliquotaIVA"_s, .forma = percento()},
                      siglaSi(u"Ritenuta"_s),
                      {.nome = u"Natura"_s, .volte = AlPiuUna, .forma = natura()},
                      {.nome = u"RiferimentoAmministrazione"_s, .volte = AlPiuUna, .forma = codice(1, 20)},
                      {.nome = u"AltriDatiGestionali"_s, .volte = Libere, .liberi = true}}};
}

Elemento datiRiepilogo() {
    return {.nome = u"DatiRiepilogo"_s,
            .volte = UnaOPiu,
            .figli = {{.nome = u"AliquotaIVA"_s, .forma = percento()},
                      {.nome = u"Natura"_s, .volte = AlPiuUna, .forma = natura()},
                      {.nome = u"SpeseAccessorie"_s, .volte = AlPiuUna, .forma = importo()},
                      {.nome = u"Arrotondamento"_s, .volte = AlPiuUna, .forma = importo()},
                      {.nome = u"ImponibileImporto"_s, .forma = importo()},
                      {.nome = u"Imposta"_s, .forma = importo()},
                      {.nome = u"EsigibilitaIVA"_s,
                       .volte = AlPiuUna,
                       .forma = unoFra(u"[IDS]"_s, u"I, D oppure S"_s),
                       .dove = campoPa(u"Documento con iva ad esigibilità differita"_s)},
                      {.nome = u"RiferimentoNormativo"_s,
                       .volte = AlPiuUna,
                       .forma = testo(100),
                       .dove = u"nella tabella delle esenzioni IVA della suite"_s}}};
}

Elemento datiPagamento() {
    Elemento dettaglio = {
        .nome = u"DettaglioPagamento"_s,
        .volte = UnaOPiu,
        .figli = {{.nome = u"Beneficiario"_s, .volte = AlPiuUna, .forma = testo(200)},
                  {.nome = u"ModalitaPagamento"_s,
                   .forma = unoFra(u"MP(0[1-9]|1[0-7])"_s, u"un codice da MP01 a MP17"_s),
                   .dove = campoPa(u"Modalità pagamento"_s)},
                  {.nome = u"DataRiferimentoTerminiPagamento"_s, .volte = AlPiuUna, .forma = data()},
                  {.nome = u"GiorniTerminiPagamento"_s, .volte = AlPiuUna, .forma = intero(3)},
                  {.nome = u"DataScadenzaPagamento"_s, .volte = AlPiuUna, .forma = data()},
                  {.nome = u"ImportoPagamento"_s, .forma = importo()}}};
    for (const QString& nome : {u"CodUfficioPostale"_s, u"CognomeQuietanzante"_s, u"NomeQuietanzante"_s,
                                u"CFQuietanzante"_s, u"TitoloQuietanzante"_s, u"IstitutoFinanziario"_s})
        dettaglio.figli.push_back({.nome = nome, .volte = AlPiuUna, .liberi = true});
    dettaglio.figli.push_back({.nome = u"IBAN"_s,
                               .volte = AlPiuUna,
                               .forma = iban(),
                               .dove = u"nella maschera \"Selezione cliente\", campo \"Banca appoggio\""_s});
    for (const QString& nome :
         {u"ABI"_s, u"CAB"_s, u"BIC"_s, u"ScontoPagamentoAnticipato"_s, u"DataLimitePagamentoAnticipato"_s,
          u"PenalitaPagamentiRitardati"_s, u"DataDecorrenzaPenale"_s, u"CodicePagamento"_s})
        dettaglio.figli.push_back({.nome = nome, .volte = AlPiuUna, .liberi = true});
    return {.nome = u"DatiPagamento"_s,
            .volte = Libere,
            .figli = {{.nome = u"CondizioniPagamento"_s,
                       .forma = unoFra(u"TP0[1-3]"_s, u"un codice da TP01 a TP03"_s),
                       .dove = campoPa(u"Condizioni pagamento"_s)},
                      dettaglio},
            .dove = scadenze};
}

Elemento corpoFattura() {
    return {
        .nome = u"FatturaElettronicaBody"_s,
        .volte = UnaOPiu,
        .figli = {datiGenerali(),
                  {.nome = u"DatiBeniServizi"_s, .figli = {dettaglioLinee(), datiRiepilogo()}, .dove = righe},
                  {.nome = u"DatiVeicoli"_s, .volte = AlPiuUna, .liberi = true},
                  datiPagamento(),
                  {.nome = u"Allegati"_s, .volte = Libere, .liberi = true}},
        .dove = documento};
}

QString senzaNumero(const QString& passo) {
    return passo.first(passo.indexOf(u'[') < 0 ? passo.size() : passo.indexOf(u'['));
}

} // namespace

const Elemento& tracciatoFattura() {
    static const Elemento radice = {.nome = u"FatturaElettronica"_s,
                                    .figli = {testataFattura(),
                                              corpoFattura(),
                                              {.nome = u"Signature"_s, .volte = AlPiuUna, .liberi = true}},
                                    .dove = campoPa(u"Numero"_s)};
    return radice;
}

QString doveSiCompila(const QString& percorso) {
    const Elemento* elemento = &tracciatoFattura();
    QString dove = elemento->dove;
    for (const QString& passo : percorso.split(u'/')) {
        const auto figlio = std::find_if(elemento->figli.begin(), elemento->figli.end(),
                                         [&](const Elemento& e) { return e.nome == senzaNumero(passo); });
        if (figlio == elemento->figli.end())
            break;
        elemento = &*figlio;
        if (!elemento->dove.isEmpty())
            dove = elemento->dove;
    }
    return dove;
}

} // namespace bor
