// The launcher's window: the companies of a drive, of which one is opened.
#pragma once

#include "lanciatore/aziende.h"

#include <QDialog>
#include <QProcess>

#include <functional>

class QLabel;
class QPushButton;
class QStackedWidget;
class QTreeWidget;

namespace bor::lancia {

class SceltaAzienda : public QDialog {
public:
    /// Opens a company of the drive; false when the module did not start.
    using Apri = std::function<bool(const Percorsi& percorsi, int codiceazienda)>;

    SceltaAzienda(const QString& unita, const QString& cartellaProgrammi, Apri apri);
    ~SceltaAzienda() override;

    void cambiaUnita(const QString& unita);
    void aggiorna();

private:
    QWidget* costruisciTestata();
    QWidget* costruisciElenco();
    QWidget* costruisciInvito();
    QWidget* costruisciComandi();
    void apriScelta();
    void chiediUnita();
    void mostraGuida();
    void creaDimostrazione();
    void finitaDimostrazione(bool riuscita);

    Percorsi m_percorsi;
    QString m_cartellaProgrammi;
    Apri m_apri;
    QProcess m_borcrea;
    QLabel* m_unita = nullptr;
    QStackedWidget* m_pagine = nullptr;
    QTreeWidget* m_elenco = nullptr;
    QPushButton* m_crea = nullptr;
    QPushButton* m_apriBottone = nullptr;
};

} // namespace bor::lancia
