#include "lotto/strumentopdf.h"

#include "common/lottopdf.h"

#include <QProcess>

namespace bor {

namespace {

class ProcessoPdf : public StrumentoPdf {
public:
    ProcessoPdf(const QString& programma, const QString& cartella) {
        m_processo.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_processo.setWorkingDirectory(cartella);
        m_processo.start(programma, {opzioneLotto.toString()});
    }
    /// Without a command in hand it ends by itself when no more can come.
    ~ProcessoPdf() override {
        constexpr int millisecondi = 1000;
        m_processo.closeWriteChannel();
        if (!finito() && !m_processo.waitForFinished(millisecondi))
            m_processo.kill();
    }

    /// At once, as far as the tool takes it: it would wait until the next document is prepared, which comes
    /// before the events do.
    void scrivi(const QByteArray& bytes) override {
        m_processo.write(bytes);
        if (m_processo.state() == QProcess::Running)
            m_processo.waitForBytesWritten(0);
    }
    std::optional<QByteArray> linea() override {
        return m_processo.canReadLine() ? std::optional(m_processo.readLine()) : std::nullopt;
    }
    bool finito() const override { return m_processo.state() == QProcess::NotRunning; }

private:
    QProcess m_processo;
};

} // namespace

StrumentoPdf::~StrumentoPdf() = default;

std::unique_ptr<StrumentoPdf> avviaStrumentoPdf(const QString& programma, const QString& cartella) {
    return std::make_unique<ProcessoPdf>(programma, cartella);
}

} // namespace bor
