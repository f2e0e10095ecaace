// The launcher's window: the companies of a drive, of which one is opened.
#pragma once

#include "lanciatore/aziende.h"

#include <QDialog>
#include <QProcess>

#include <functional>
#include <optional>

class QLabel;
class QPushButton;
class QStackedWidget;
class QTreeWidget;

namespace bor::lancia {

class PannelloCopia;

class SceltaAzienda : public QDialog {
public:
    /// Opens a company of the drive; false when the module did not start.
    using Apri = std::function<bool(const Percorsi& percorsi, int codiceazienda)>;

    SceltaAzienda(const QString& unita, const QString& cartellaProgrammi, Apri apri);
    ~SceltaAzienda() override;

    void cambiaUnita(const QString& unita);
    void aggiorna();
    /// Starts the copy of the chosen company into a folder of this machine, unless one is being made.
    void copia(const QString& cartella);

    /// Asks first while a copy is being made.
    void reject() override;

private:
    QWidget* costruisciTestata();
    QWidget* costruisciElenco();
    QWidget* costruisciInvito();
    QWidget* costruisciCopia();
    QWidget* costruisciComandi();
    void invita();
    void apriScelta();
    void chiediUnita();
    void mostraGuida();
    void chiediCopia();
    std::optional<int> scelta() const;
    void creaDimostrazione();
    void finitaDimostrazione(bool riuscita);

    Percorsi m_percorsi;
    QString m_cartellaProgrammi;
    Apri m_apri;
    QProcess m_borcrea;
    QLabel* m_unita = nullptr;
    QStackedWidget* m_pagine = nullptr;
    QTreeWidget* m_elenco = nullptr;
    QLabel* m_invito = nullptr;
    QPushButton* m_crea = nullptr;
    QPushButton* m_altra = nullptr;
    QPushButton* m_apriBottone = nullptr;
    QPushButton* m_copiaBottone = nullptr;
    PannelloCopia* m_copia = nullptr;
};

} // namespace bor::lancia
