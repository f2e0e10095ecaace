#include "borverifica/verifica.h"

using namespace Qt::StringLiterals;

namespace bor::verifica {

namespace {

class ControlloLunghezze {
public:
    explicit ControlloLunghezze(const Archivio& archivio) : m_archivio(archivio) {}

    template <class R>
    void confronta(QStringView estensione, Conta quale, const RecordFile<R>& file,
                   Gravita seCorto = Gravita::Errore) {
        const QString nome = u"borlano."_s + estensione.toString();
        const int numero = m_archivio.leggiTot(quale).numero;
        const qint64 interi = file.lunghezza() / qint64{sizeof(R)};
        const qint64 resto = file.lunghezza() % qint64{sizeof(R)};
        if (numero < 0)
            m_trovate.append({Gravita::Errore, nome, u"il contatore è negativo (%1)"_s.arg(numero),
                              Rimedio::RipristinaCopia});
        else if (interi < numero)
            m_trovate.append(
                {seCorto, nome,
                 u"il contatore dice %1 record, il file ne contiene %2"_s.arg(numero).arg(interi),
                 Rimedio::RipristinaCopia});
        else if (interi > numero)
            m_trovate.append({Gravita::Informazione, nome,
                              u"%1 record oltre il contatore (%2): resti di un riordino o di un salvataggio "
                              u"interrotto, che nessuno legge"_s.arg(interi - numero)
                                  .arg(numero),
                              Rimedio::Nessuno});
        if (resto != 0)
            m_trovate.append({Gravita::Avviso, nome,
                              u"il file termina con %1 byte di un record incompleto"_s.arg(resto),
                              Rimedio::Nessuno});
    }

    const Discordanze& trovate() const { return m_trovate; }

private:
    const Archivio& m_archivio;
    Discordanze m_trovate;
};

} // namespace

Discordanze verificaContatori(const Archivio& archivio) {
    ControlloLunghezze controllo(archivio);
    controllo.confronta(u"cli", Conta::Cli, archivio.cli);
    controllo.confronta(u"src", Conta::Cli, archivio.src);
    controllo.confronta(u"art", Conta::Art, archivio.art);
    controllo.confronta(u"srb", Conta::Art, archivio.srb);
    controllo.confronta(u"con", Conta::Con, archivio.con);
    controllo.confronta(u"fte", Conta::Fte, archivio.fte);
    // Documents from before the second half existed have none until they are saved again.
    controllo.confronta(u"f2e", Conta::Fte, archivio.f2e, Gravita::Avviso);
    controllo.confronta(u"mag", Conta::Mag, archivio.mag);
    controllo.confronta(u"gio", Conta::Gio, archivio.gio);
    controllo.confronta(u"age", Conta::Age, archivio.age);
    return controllo.trovate();
}

} // namespace bor::verifica
