// An electronic invoice as a page that a person reads: a window of its own with print and PDF.
#pragma once

#include <QDialog>

class QTextBrowser;

namespace bor {

class FinestraFattura : public QDialog {
public:
    /// `xml`: any bytes; those of no invoice give a page that says so. `percorso`: where its file lies, or
    /// would lie; its PDF is offered beside it. May be empty.
    FinestraFattura(const QByteArray& xml, QString percorso, QWidget* parent = nullptr);

    /// False when the file could not be written.
    bool scriviPdf(const QString& percorso) const;

private:
    void stampa();
    void salvaPdf();

    QTextBrowser* m_pagina;
    QString m_percorso;
};

} // namespace bor
