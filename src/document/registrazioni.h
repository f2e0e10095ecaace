// What a saved document entails beyond its own records. The document declares it here; the posting does it.
#pragma once

namespace bor {

struct Documento;
struct Gio;

class Registrazioni {
public:
    virtual ~Registrazioni() = default;

    /// Marks the document's warehouse rows as deleted and takes them back out of the stock figures. False
    /// when a file could not be written: what was done up to there stays.
    virtual bool togliscarico(const Documento& documento) = 0;

    /// Writes a warehouse row for each goods line with an article, and moves the stock. False as above.
    virtual bool mettiscarico(const Documento& documento) = 0;

    /// Fills the movement editor with the accounting movement of the document.
    virtual void preparaMovimento(const Documento& documento) = 0;

    /// Takes the amounts of a movement that is deleted with its document out of their accounts. False as
    /// above.
    virtual bool stornaconti(const Gio& movimento) = 0;
};

} // namespace bor
