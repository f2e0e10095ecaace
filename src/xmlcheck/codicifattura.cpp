#include "xmlcheck/codicifattura.h"

#include <algorithm>

namespace bor {

namespace {

// The kinds that a seller issues for his own sales stand first, the buyer's behind them.
constexpr VoceCodice tipi[] = {{u"TD01", u"Fattura"},
                               {u"TD02", u"Acconto su fattura"},
                               {u"TD03", u"Acconto su parcella"},
                               {u"TD04", u"Nota di credito"},
                               {u"TD05", u"Nota di debito"},
                               {u"TD06", u"Parcella"},
                               {u"TD24", u"Fattura differita"},
                               {u"TD25", u"Fattura differita, triangolare"},
                               {u"TD26", u"Cessione di beni ammortizzabili"},
                               {u"TD27", u"Autoconsumo o cessione gratuita"},
                               {u"TD16", u"Integrazione, inversione contabile interna"},
                               {u"TD17", u"Integrazione o autofattura, servizi dall'estero"},
                               {u"TD18", u"Integrazione, beni intracomunitari"},
                               {u"TD19", u"Integrazione o autofattura, beni art. 17 c. 2"},
                               {u"TD20", u"Autofattura, regolarizzazione"},
                               {u"TD21", u"Autofattura, splafonamento"},
                               {u"TD22", u"Estrazione di beni da deposito IVA"},
                               {u"TD23", u"Estrazione da deposito IVA con versamento"},
                               {u"TD28", u"Acquisti da San Marino con IVA"},
                               {u"TD29", u"Omessa o irregolare fatturazione"}};
constexpr std::size_t tipiEmessi = 10;

constexpr VoceCodice bolli[] = {{u"SI", u"con bollo virtuale di 2 euro"}, {u"NO", u"senza bollo"}};

constexpr VoceCodice nature[] = {{u"N1", u"Escluse, art. 15"},
                                 {u"N2.1", u"Non soggette, artt. da 7 a 7-septies"},
                                 {u"N2.2", u"Non soggette, altri casi"},
                                 {u"N3.1", u"Non imponibili, esportazioni"},
                                 {u"N3.2", u"Non imponibili, cessioni intracomunitarie"},
                                 {u"N3.3", u"Non imponibili, verso San Marino"},
                                 {u"N3.4", u"Non imponibili, assimilate a esportazioni"},
                                 {u"N3.5", u"Non imponibili, dichiarazione di intento"},
                                 {u"N3.6", u"Non imponibili, senza plafond"},
                                 {u"N4", u"Esenti"},
                                 {u"N5", u"Regime del margine, IVA non esposta"},
                                 {u"N6.1", u"Inversione contabile, rottami"},
                                 {u"N6.2", u"Inversione contabile, oro e argento"},
                                 {u"N6.3", u"Inversione contabile, subappalto edile"},
                                 {u"N6.4", u"Inversione contabile, fabbricati"},
                                 {u"N6.5", u"Inversione contabile, telefoni cellulari"},
                                 {u"N6.6", u"Inversione contabile, prodotti elettronici"},
                                 {u"N6.7", u"Inversione contabile, servizi edili"},
                                 {u"N6.8", u"Inversione contabile, settore energetico"},
                                 {u"N6.9", u"Inversione contabile, altri casi"},
                                 {u"N7", u"IVA assolta in altro stato UE"}};

// Without subcode, as in files of before 2021.
constexpr VoceCodice natureDiPrima[] = {
    {u"N2", u"Non soggette"}, {u"N3", u"Non imponibili"}, {u"N6", u"Inversione contabile"}};

constexpr VoceCodice regimi[] = {{u"RF01", u"Ordinario"},
                                 {u"RF02", u"Contribuenti minimi"},
                                 {u"RF03", u"Nuove iniziative produttive"},
                                 {u"RF04", u"Agricoltura e pesca"},
                                 {u"RF05", u"Vendita di sali e tabacchi"},
                                 {u"RF06", u"Commercio di fiammiferi"},
                                 {u"RF07", u"Editoria"},
                                 {u"RF08", u"Telefonia pubblica"},
                                 {u"RF09", u"Rivendita di documenti di viaggio"},
                                 {u"RF10", u"Intrattenimenti e giochi"},
                                 {u"RF11", u"Agenzie di viaggi e turismo"},
                                 {u"RF12", u"Agriturismo"},
                                 {u"RF13", u"Vendite a domicilio"},
                                 {u"RF14", u"Beni usati, arte, antiquariato"},
                                 {u"RF15", u"Agenzie di vendite all'asta"},
                                 {u"RF16", u"IVA per cassa, pubblica amministrazione"},
                                 {u"RF17", u"IVA per cassa"},
                                 {u"RF18", u"Altro"},
                                 {u"RF19", u"Forfettario"},
                                 {u"RF20", u"Franchigia IVA transfrontaliera"}};

constexpr VoceCodice esigibilita[] = {
    {u"I", u"immediata"}, {u"D", u"differita"}, {u"S", u"scissione dei pagamenti"}};

constexpr VoceCodice casse[] = {{u"TC01", u"Avvocati"},
                                {u"TC02", u"Dottori commercialisti"},
                                {u"TC03", u"Geometri"},
                                {u"TC04", u"Ingegneri e architetti"},
                                {u"TC05", u"Notai"},
                                {u"TC06", u"Ragionieri e periti commerciali"},
                                {u"TC07", u"ENASARCO"},
                                {u"TC08", u"Consulenti del lavoro (ENPACL)"},
                                {u"TC09", u"Medici (ENPAM)"},
                                {u"TC10", u"Farmacisti (ENPAF)"},
                                {u"TC11", u"Veterinari (ENPAV)"},
                                {u"TC12", u"Impiegati in agricoltura (ENPAIA)"},
                                {u"TC13", u"Spedizionieri e agenzie marittime"},
                                {u"TC14", u"Giornalisti (INPGI)"},
                                {u"TC15", u"Orfani sanitari (ONAOSI)"},
                                {u"TC16", u"Giornalisti, cassa integrativa (CASAGIT)"},
                                {u"TC17", u"Periti industriali (EPPI)"},
                                {u"TC18", u"Pluricategoriale (EPAP)"},
                                {u"TC19", u"Biologi (ENPAB)"},
                                {u"TC20", u"Infermieri (ENPAPI)"},
                                {u"TC21", u"Psicologi (ENPAP)"},
                                {u"TC22", u"INPS"}};

constexpr VoceCodice ritenute[] = {
    {u"RT01", u"Ritenuta, persone fisiche"}, {u"RT02", u"Ritenuta, persone giuridiche"},
    {u"RT03", u"Contributo INPS"},           {u"RT04", u"Contributo ENASARCO"},
    {u"RT05", u"Contributo ENPAM"},          {u"RT06", u"Altro contributo"}};

constexpr VoceCodice causali[] = {{u"A", u"Lavoro autonomo, professione abituale"},
                                  {u"B", u"Opere dell'ingegno, dall'autore"},
                                  {u"C", u"Utili di associazione in partecipazione"},
                                  {u"D", u"Utili ai soci promotori e fondatori"},
                                  {u"E", u"Levata di protesti, segretari comunali"},
                                  {u"G", u"Cessazione di attività sportiva"},
                                  {u"H", u"Cessazione di rapporti di agenzia"},
                                  {u"I", u"Cessazione di funzioni notarili"},
                                  {u"L", u"Opere dell'ingegno, da altri"},
                                  {u"L1", u"Opere dell'ingegno, da chi le ha acquistate"},
                                  {u"M", u"Lavoro autonomo non abituale"},
                                  {u"M1", u"Obblighi di fare, non fare, permettere"},
                                  {u"M2", u"Non abituale, gestione separata"},
                                  {u"N", u"Trasferte e premi, attività dilettantistiche"},
                                  {u"O", u"Non abituale, senza gestione separata"},
                                  {u"O1", u"Obblighi, senza gestione separata"},
                                  {u"P", u"Attrezzature, a non residenti"},
                                  {u"Q", u"Provvigioni, agente monomandatario"},
                                  {u"R", u"Provvigioni, agente plurimandatario"},
                                  {u"S", u"Provvigioni, commissionario"},
                                  {u"T", u"Provvigioni, mediatore"},
                                  {u"U", u"Provvigioni, procacciatore"},
                                  {u"V", u"Vendite a domicilio"},
                                  {u"V1", u"Attività commerciali non abituali"},
                                  {u"W", u"Appalti, condomini"},
                                  {u"X", u"Canoni UE del 2004"},
                                  {u"Y", u"Canoni UE fino al luglio 2005"},
                                  {u"ZO", u"Titolo diverso dai precedenti"}};

constexpr VoceCodice modalita[] = {{u"MP01", u"Contanti"},
                                   {u"MP02", u"Assegno"},
                                   {u"MP03", u"Assegno circolare"},
                                   {u"MP04", u"Contanti presso tesoreria"},
                                   {u"MP05", u"Bonifico"},
                                   {u"MP06", u"Vaglia cambiario"},
                                   {u"MP07", u"Bollettino bancario"},
                                   {u"MP08", u"Carta di pagamento"},
                                   {u"MP09", u"RID"},
                                   {u"MP10", u"RID utenze"},
                                   {u"MP11", u"RID veloce"},
                                   {u"MP12", u"Ricevuta bancaria"},
                                   {u"MP13", u"MAV"},
                                   {u"MP14", u"Quietanza erario"},
                                   {u"MP15", u"Giroconto contabilità speciale"},
                                   {u"MP16", u"Domiciliazione bancaria"},
                                   {u"MP17", u"Domiciliazione postale"},
                                   {u"MP18", u"Bollettino postale"},
                                   {u"MP19", u"SDD"},
                                   {u"MP20", u"SDD CORE"},
                                   {u"MP21", u"SDD B2B"},
                                   {u"MP22", u"Trattenuta su somme già riscosse"},
                                   {u"MP23", u"PagoPA"}};

} // namespace

std::span<const VoceCodice> vociCodici(ListaCodici lista) {
    switch (lista) {
    case ListaCodici::TipoDocumento:
        return tipi;
    case ListaCodici::TipoEmesso:
        return std::span(tipi).first(tipiEmessi);
    case ListaCodici::Bollo:
        return bolli;
    case ListaCodici::Natura:
        return nature;
    case ListaCodici::NaturaDiPrima:
        return natureDiPrima;
    case ListaCodici::Cassa:
        return casse;
    case ListaCodici::TipoRitenuta:
        return ritenute;
    case ListaCodici::CausaleRitenuta:
        return causali;
    case ListaCodici::Regime:
        return regimi;
    case ListaCodici::Esigibilita:
        return esigibilita;
    case ListaCodici::Modalita:
        break;
    }
    return modalita;
}

QString testoCodice(ListaCodici lista, QStringView codice) {
    const auto voci = vociCodici(lista);
    const auto trovata = std::ranges::find(voci, codice, &VoceCodice::codice);
    return trovata == voci.end() ? QString() : trovata->testo.toString();
}

QString codiceInParole(ListaCodici lista, QStringView codice) {
    const QString testo = testoCodice(lista, codice);
    return testo.isEmpty() ? codice.toString() : codice.toString() + u' ' + testo;
}

} // namespace bor
