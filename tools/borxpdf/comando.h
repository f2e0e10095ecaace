// Does what the program is asked on its command line, without any window. Used by main.
#pragma once

#include "borxpdf/disegno.h"
#include "borxpdf/layoutpdf.h"
#include "borxpdf/paginestampate.h"
#include "common/comandopdf.h"

#include <QString>

#include <initializer_list>
#include <optional>

namespace bor {
class Percorsi;
}

namespace bor::pdf {

/// Layout, pages and pictures of one command, read from disk.
struct DocumentoPdf {
    LayoutPdf layout;
    PagineStampate stampa;
    Disegnatore disegnatore;
};

/// The layout of this name, a DOS path; a missing one means A4 and defaults.
LayoutPdf leggiLayout(const QString& layout, const Percorsi& percorsi);

/// Finds pictures without a folder in the company's own, where its layout lies.
Disegnatore disegnatoreDi(const QString& layout, const Percorsi& percorsi);

/// The bytes of a file (a DOS path); nothing when it is missing, cannot be read or is larger than `massimo`.
std::optional<QByteArray> leggiFile(const Percorsi& percorsi, const QString& dos, qint64 massimo);

/// How messages name a file: where it lies on this machine, the DOS path of one that can lie nowhere.
QString sulDisco(const Percorsi& percorsi, const QString& dos);

/// The first text that is not empty.
QString primoNonVuoto(std::initializer_list<QString> testi);

/// Makes the PDF, a DOS path, of these pages, whole or not at all. Its bytes; none on a failure, with
/// `errore` in Italian.
QByteArray scriviPdf(const QString& pdf, const PagineStampate& stampa, const LayoutPdf& layout,
                     Disegnatore& disegnatore, const Percorsi& percorsi, QString& errore);

/// A missing layout means A4 and defaults; a report that cannot be used gives nothing and fills `errore`.
std::optional<DocumentoPdf> apri(const ComandoPdf& comando, const Percorsi& percorsi, QString& errore);

/// Writes the PDF and sends it. False with `errore` in Italian; a PDF that was written stays.
bool esegui(const ComandoPdf& comando, const Percorsi& percorsi, QString& errore);

} // namespace bor::pdf
