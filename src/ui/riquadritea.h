// The frames of the document form, each made by a function of its own.
#pragma once

#include "document/borftea.h"
#include "ui/campilegati.h"

class QGroupBox;

namespace bor {

/// What a frame is made with.
struct BancoTea {
    Borftea& form;
    Legami& legami;
    PercorsoInvio& invio;
    CampiLegati campi{legami, form.bordata()};
};

/// A frame and the ends of its Enter walk.
struct RiquadroTea {
    QGroupBox* gruppo;
    QWidget* primo;
    QWidget* ultimo;
};

/// An empty frame.
QGroupBox* gruppoDi(const QString& nome, const QString& titolo);

RiquadroTea creaEstremi(const BancoTea& banco);
RiquadroTea creaScadenze(const BancoTea& banco);
RiquadroTea creaRicavi(const BancoTea& banco);

// These share one place.
RiquadroTea creaRigheIva(const BancoTea& banco);
RiquadroTea creaIvaDifferita(const BancoTea& banco);
RiquadroTea creaRitenute(const BancoTea& banco);
RiquadroTea creaSpesometro(const BancoTea& banco);

} // namespace bor
