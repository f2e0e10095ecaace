// The findings of many files as text or as JSON, and the exit code of the program that lists them. Two
// programs print in this form: the one that checks files and the one that writes them.
#pragma once

#include "xmlcheck/controlloxml.h"

namespace bor::resoconto {

/// Exit code for a wrong command line.
inline constexpr int esitoErrore = 255;

struct RilieviFile {
    QString file;
    std::vector<Rilievo> rilievi;
};

class Resoconto {
public:
    explicit Resoconto(bool json) : m_json(json) {}

    /// What to print of this file at once; file by file, so that thousands need no memory.
    QString aggiungi(const RilieviFile& file);
    /// What to print at the end.
    QString chiudi() const;
    /// Number of files with findings that are no mere hints; 254 stands for more.
    int esito() const;

private:
    bool m_json;
    int m_file = 0;
    int m_conRilievi = 0;
};

} // namespace bor::resoconto
