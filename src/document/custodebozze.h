// Keeps a draft of the open document in the user's own folder while something is typed that is not stored,
// and takes up what a run that did not end by itself has left there.
#pragma once

#include "common/navigatore.h"
#include "document/bozza.h"
#include "document/cartellabozze.h"

namespace bor {

class Borftea;
class Borftek;
class Borftem;
class Borftex;
struct Contesto;

class CustodeBozze {
public:
    /// The forms between which a document is written.
    struct Forme {
        Borftem& borftem;
        Borftea& borftea;
        Borftex& borftex;
        Borftek& borftek;
    };

    CustodeBozze(Contesto& contesto, Documento& documento, Forme forme, const QString& cartella);

    /// Writes the draft anew where something was typed since the last time. To be called within two seconds
    /// of every key; costs little when there is nothing new.
    void conserva();
    /// At the start of the program, with the register in view: tells of each draft that no running program
    /// has, and asks whether to take it up. Yes opens it as it was. After a No it is dropped once a second
    /// question is answered with Yes; else it waits for the next start, as do those behind the one taken up.
    void riprendi();

    /// The window is about to show a screen, and has shown it. A document is open from its first screen until
    /// the register or the movement editor comes into view: then it is stored, or left on purpose, and its
    /// draft goes.
    void prima(Schermo schermo);
    void dopo(Schermo schermo);

private:
    Bozza bozza() const;
    QByteArray contenuto() const { return codifica(bozza()); }
    bool prendiPosto();
    void abbandona();
    bool accetta(const Bozza& bozza) const;
    bool rinuncia() const;
    void apri(Bozza bozza);
    void riprendiRighe(Bozza& bozza);

    Contesto& m_contesto;
    Documento& m_documento;
    Forme m_forme;
    CartellaBozze m_cartella;
    Schermo m_schermo = Schermo::Borfte;
    bool m_intatto = true;            ///< nothing was typed when the next screen was asked for
    std::optional<QByteArray> m_base; ///< the open document before anything was typed; none for none open
    QByteArray m_scritta;             ///< what the draft on disk holds; empty for none
    CoppiaFte m_suFile = vuoto<CoppiaFte>();
    QString m_nome;                        ///< file of the draft
    std::unique_ptr<FileCasuale> m_blocco; ///< of that file
};

/// Shows screens as another navigator does, and lets the keeper of drafts know.
class NavigatoreConBozze : public Navigatore {
public:
    explicit NavigatoreConBozze(Navigatore& vero) : m_vero(vero) {}
    void affida(CustodeBozze& custode) { m_custode = &custode; }

    void mostra(Schermo schermo) override;
    void termina() override { m_vero.termina(); }

private:
    Navigatore& m_vero;
    CustodeBozze* m_custode = nullptr;
};

} // namespace bor
