#include "borcopia/nastro.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <archive.h>
#include <archive_entry.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

using namespace Qt::StringLiterals;

namespace bor::copia {

namespace {

constexpr std::size_t blocco = std::size_t{1} << 18;

using VoceArchivio = std::unique_ptr<archive_entry, void (*)(archive_entry*)>;

} // namespace

QString motivoErrore(int errore) {
    switch (errore) {
    case ENOSPC:
    case EDQUOT:
        return u"il disco è pieno"_s;
    case EFBIG:
        return u"il disco non accetta file così grandi"_s;
    case EACCES:
    case EPERM:
        return u"manca il permesso"_s;
    case EROFS:
        return u"il disco è di sola lettura"_s;
    case ENOENT:
        return u"non c'è"_s;
    default:
        return QString::fromLocal8Bit(std::strerror(errore));
    }
}

NastroScritto::NastroScritto(int descrittore) : m_archivio(archive_write_new(), archive_write_free) {
    archive* a = m_archivio.get();
    archive_write_set_format_pax_restricted(a);
    archive_write_add_filter_zstd(a);
    // The last block is not filled up: what lies behind the packed bytes would only be read in vain.
    archive_write_set_bytes_per_block(a, static_cast<int>(blocco));
    archive_write_set_bytes_in_last_block(a, 1);
    esito(archive_write_open_fd(a, descrittore));
}

bool NastroScritto::inizia(const Voce& voce) {
    const VoceArchivio testa(archive_entry_new(), archive_entry_free);
    archive_entry_update_pathname_utf8(testa.get(), voce.nome.toUtf8().constData());
    archive_entry_set_filetype(testa.get(), AE_IFREG);
    archive_entry_set_perm(testa.get(), 0644);
    archive_entry_set_size(testa.get(), voce.lunghezza);
    archive_entry_set_mtime(testa.get(), voce.quando, 0);
    return esito(archive_write_header(m_archivio.get(), testa.get()));
}

bool NastroScritto::scrivi(QByteArrayView bytes) {
    if (!m_errore.isEmpty())
        return false;
    const auto scritti =
        archive_write_data(m_archivio.get(), bytes.data(), static_cast<std::size_t>(bytes.size()));
    return esito(scritti == bytes.size() ? ARCHIVE_OK : ARCHIVE_FATAL);
}

bool NastroScritto::chiudi() {
    return m_errore.isEmpty() && esito(archive_write_close(m_archivio.get()));
}

bool NastroScritto::esito(int codice) {
    // A warning is about a name that another system might not show as it is.
    if (codice < ARCHIVE_WARN && m_errore.isEmpty())
        m_errore = motivoErrore(archive_errno(m_archivio.get()));
    return m_errore.isEmpty();
}

NastroLetto::NastroLetto() : m_archivio(archive_read_new(), archive_read_free) {
    archive_read_support_format_tar(m_archivio.get());
    archive_read_support_filter_zstd(m_archivio.get());
}

bool NastroLetto::apri(const QString& percorso) {
    m_percorso = percorso;
    const QByteArray nome = QFile::encodeName(percorso);
    if (archive_read_open_filename(m_archivio.get(), nome.constData(), blocco) == ARCHIVE_OK)
        return true;
    m_errore = QFileInfo::exists(percorso) ? u"il file non si può leggere, o non è una copia"_s
                                           : motivoErrore(ENOENT);
    return false;
}

void NastroLetto::guasta() {
    m_errore = u"il file è tagliato o guasto"_s;
}

bool NastroLetto::prossima(Voce& voce) {
    archive_entry* testa = nullptr;
    const int codice = archive_read_next_header(m_archivio.get(), &testa);
    if (codice == ARCHIVE_EOF)
        return false;
    const char* nome = codice == ARCHIVE_OK ? archive_entry_pathname_utf8(testa) : nullptr;
    if (!nome || archive_entry_filetype(testa) != AE_IFREG || archive_entry_hardlink(testa)) {
        guasta();
        return false;
    }
    voce = {QString::fromUtf8(nome), archive_entry_size(testa), archive_entry_mtime(testa)};
    return true;
}

qint64 NastroLetto::leggi(std::span<char> bytes) {
    const auto letti = archive_read_data(m_archivio.get(), bytes.data(), bytes.size());
    if (letti < 0)
        guasta();
    return std::max<qint64>(letti, -1);
}

int NastroLetto::percento() const {
    const qint64 lunghezza = std::max<qint64>(QFileInfo(m_percorso).size(), 1);
    return static_cast<int>(
        std::min<qint64>(archive_filter_bytes(m_archivio.get(), -1) * 100 / lunghezza, 100));
}

} // namespace bor::copia
