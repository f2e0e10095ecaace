// What a saved document entails beyond its own records. The document declares it here; the posting does it.
#pragma once

namespace bor {

struct Documento;
struct Gio;
class Raffica;

/// What is to be written is planned in the caller's burst, which also holds what failed.
class Registrazioni {
public:
    virtual ~Registrazioni() = default;

    /// Marks the document's warehouse rows as deleted and takes them back out of the stock figures.
    virtual void togliscarico(const Documento& documento, Raffica& raffica) = 0;

    /// Adds a warehouse row for each goods line with an article, and moves the stock.
    virtual void mettiscarico(const Documento& documento, Raffica& raffica) = 0;

    /// Takes the amounts of a movement that is deleted with its document out of their accounts.
    virtual void stornaconti(const Gio& movimento, Raffica& raffica) = 0;

    /// Fills the movement editor with the accounting movement of the document.
    virtual void preparaMovimento(const Documento& documento) = 0;
};

} // namespace bor
