#pragma once

#include <QProcess>
#include <QUrl>

#include <stdexcept>

/// A way to the tests' server that can be cut after a number of bytes.
class CuttingProxy {
public:
    explicit CuttingProxy(const QString& address) : m_address(address) {
        m_process.start("python3", {VORN_CUTTING_PROXY, QString::number(m_address.port())});
        m_address.setPort(answer().toInt());
    }
    ~CuttingProxy() {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }

    QString address() const { return m_address.toString(); }
    void cutAfter(int bytes) { command("cut " + QByteArray::number(bytes)); }
    void letPass() { command("pass"); }

private:
    void command(const QByteArray& line) {
        m_process.write(line + '\n');
        answer();
    }
    QByteArray answer() {
        if (!m_process.canReadLine() && !m_process.waitForReadyRead()) {
            throw std::runtime_error("the proxy does not answer");
        }
        return m_process.readLine().trimmed();
    }

    QUrl m_address;
    QProcess m_process;
};
