// The one place that turns the suite's DOS paths into paths of this machine.
#pragma once

#include <QString>
#include <optional>

namespace bor {

/// Maps the suite's DOS paths. "\a\b" and "a\b" start at the root of the current drive, "c:\a" at drive c:;
/// each is a folder of this machine. A part of the path is found without regard to case; no part may climb
/// out of its drive.
class Percorsi {
public:
    /// `radiceCorrente`: folder that plays the root of the current drive; `radiceC`: the one that plays drive
    /// c:. What the user's cache holds then lies beside drive c:.
    Percorsi(QString radiceCorrente, QString radiceC);

    /// The working directory as current drive, and for c: a folder of the user's own data ("borfte/c" under
    /// the XDG data directory).
    static Percorsi predefiniti();
    /// The same with another folder as current drive.
    static Percorsi predefiniti(const QString& radiceCorrente);
    /// Makes the folder of drive c: when it is missing.
    void creaRadiceC() const;

    /// The file or folder of this machine, existing or not; nothing when the path names another drive, climbs
    /// out with "..", or holds a character that a DOS file name cannot hold.
    std::optional<QString> reale(QStringView dos) const;

    /// The DOS path of a file of this machine; nothing when it lies on neither drive.
    std::optional<QString> dos(const QString& reale) const;

    const QString& radiceCorrente() const { return m_radiceCorrente; }

    /// Folder of this machine, existing or not, for what the user has typed and not yet stored in a company
    /// of the current drive. It lies beside drive c:, among the user's own data.
    QString cartellaBozze(double codiceazienda) const;
    /// File of this machine, existing or not, for what the user's programs remember about such a company:
    /// when it was checked, where its copies go. It lies among the user's own data too.
    QString promemoria(double codiceazienda) const;

    /// File of this machine, existing or not, in which the user's programs keep what they have read of the
    /// documents' lines files of such a company. It lies in his cache: nothing is lost with it.
    QString indiceStorico(double codiceazienda) const;

private:
    QString nomeUtente(double codiceazienda) const;

    QString m_radiceCorrente;
    QString m_radiceC;
    QString m_cache;
};

/// The suite's root folder on the current drive, with its closing backslash.
inline constexpr QStringView radiceSuite = u"\\suprok\\suprok\\";

/// DOS path of a company's folder, without closing backslash: company 7 gives "\suprok\suprok\boraz0.007".
/// Only the last three digits of the code count.
QString cartellaAzienda(double codiceazienda);

} // namespace bor
