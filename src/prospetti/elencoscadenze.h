// The instalments of the documents: kept small, chosen, put in groups and added up.
#pragma once

#include "archive/archivio.h"
#include "document/identita.h"

#include <QDate>
#include <QList>

#include <algorithm>
#include <optional>
#include <vector>

namespace bor {

/// What the list is ordered by, and adds up by.
enum class GruppiScadenze { PerGiorno, PerCliente, PerPagamento };

enum class SceltaRiba { Tutte, SoloRiba, SenzaRiba };

/// Which instalments are listed. Those without a valid due date are listed whatever the period.
struct SceltaScadenze {
    std::optional<QDate> dal;
    std::optional<QDate> al;
    QString cliente;    ///< any part of the name; empty for all
    int pagamento = -1; ///< payment type from 1, 0 for documents that name none; -1 for all
    SceltaRiba riba = SceltaRiba::Tutte;
    GruppiScadenze gruppi = GruppiScadenze::PerGiorno;
};

/// What is known of a document that has instalments.
struct DocumentoARate {
    Identita identita;
    std::int8_t pagamento; ///< payment type from 1; 0 when the document names none
    std::int8_t rate;      ///< instalments with an amount
    bool riba;
    bool nota;
    bool parcella;

    int cliente() const { return std::max(identita.cliente, 0); } ///< `cli` record; 0 for nobody
};

/// An amount of a document and the day it is due. Those of a credit note are negative.
struct RataDovuta {
    double importo;
    int giorno;         ///< Julian day; 0 where the due date is no date
    int documento;      ///< its place among the documents
    std::int8_t numero; ///< of the instalment, from 1; 0 for the net of a document without instalments
    Text<8> scadenza;   ///< as on file, `ddmmyyyy`
};

struct ContoRate {
    int rate = 0;
    double importo = 0;

    void aggiungi(double altro) {
        ++rate;
        importo += altro;
    }
};

class ElencoScadenze {
public:
    void svuota();
    /// Takes in the instalments of a document that is not deleted. Where it has none, its net to pay counts
    /// as one without a due date, so that no document vanishes.
    void aggiungi(int record, const Fte& fte, const F2e& f2e);
    /// After the last document: reads the names of the customers.
    void completa(const Archivio& archivio);

    /// Chooses, orders and adds up anew.
    void mostra(const SceltaScadenze& scelta);

    /// A row of the list: an instalment, or the total of a group behind its instalments.
    struct Riga {
        int rata;   ///< place among the instalments; for a total that of the group's last one
        int gruppo; ///< for a total its place among the groups; -1 for an instalment
        bool totale() const { return gruppo >= 0; }
    };
    const std::vector<Riga>& righe() const { return m_righe; }
    const RataDovuta& rata(const Riga& riga) const;
    const DocumentoARate& documento(const Riga& riga) const;
    const ContoRate& totale(const Riga& riga) const;
    const QString& nome(int cliente) const;
    /// Which instalment it is, for finding it again in another order.
    struct Chi {
        int record = 0;
        int rata = 0;
        friend bool operator==(const Chi&, const Chi&) = default;
    };
    Chi chi(const Riga& riga) const { return {documento(riga).identita.record, rata(riga).numero}; }
    /// Payment types that documents have, listed or not, in order.
    const QList<int>& pagamenti() const { return m_pagamenti; }
    /// The first row due on this day or later; -1 when there is none, or the list is not ordered by day.
    int primaDal(QDate giorno) const;

    /// Of all that is listed.
    const ContoRate& conData() const { return m_conData; }
    const ContoRate& senzaData() const { return m_senzaData; }
    ContoRate inTutto() const {
        return {m_conData.rate + m_senzaData.rate, m_conData.importo + m_senzaData.importo};
    }
    /// Any instalment due on this day or later, listed or not.
    bool dovute(QDate dal) const;

private:
    bool passa(const RataDovuta& rata, const SceltaScadenze& scelta, const std::vector<bool>& clienti) const;
    quint64 chiave(std::size_t rata, GruppiScadenze gruppi) const;

    std::vector<DocumentoARate> m_documenti;
    std::vector<RataDovuta> m_rate;
    QList<int> m_pagamenti;
    std::vector<QString> m_nomi;    ///< of the customers, by record number
    std::vector<QString> m_piegati; ///< the same as a search compares them
    std::vector<int> m_ranghi;      ///< place of the customers in the order of their names
    std::vector<Riga> m_righe;
    std::vector<ContoRate> m_gruppi;
    GruppiScadenze m_ordine = GruppiScadenze::PerGiorno;
    ContoRate m_conData;
    ContoRate m_senzaData;
};

} // namespace bor
