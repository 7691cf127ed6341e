#include "TcmFile.h"

#include "TFileBuffer.h"
#include "VKError.h"

#include <QCryptographicHash>
#include <QDir>
#include <QSaveFile>
#include <QtEndian>

#include <limits>
#include <utility>

namespace {

constexpr auto magic = "TavrelCM";
constexpr int magicSize = 8;
constexpr quint32 presentVersion = 1;
constexpr quint32 channelCount = 2;
constexpr int numberSize = 4;
constexpr int digestSize = 32;
constexpr int smallestSize = magicSize + 4 * numberSize + digestSize;

static_assert(sizeof(float) == numberSize && std::numeric_limits<float>::is_iec559);

QString shown(const QString& path) {
    return QDir::toNativeSeparators(path).toHtmlEscaped();
}

QByteArray digestOf(const QByteArray& bytes, int size) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(bytes.constData(), size);
    return hash.result();
}

void append(QByteArray& bytes, quint32 number) {
    const quint32 stored = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char*>(&stored), numberSize);
}

void append(QByteArray& bytes, const std::vector<float>& channel) {
    const int at = bytes.size();
    bytes.resize(at + static_cast<int>(channel.size()) * numberSize);
    qToLittleEndian<float>(channel.data(), static_cast<qsizetype>(channel.size()), bytes.data() + at);
}

[[noreturn]] void refuse(const QString& path, const QString& reason) {
    throw VKError(TcmFile::tr("The imported curve <b>%1</b> can't be read: %2.",
                              "La courbe importée <b>%1</b> est illisible : %2.")
                      .arg(shown(path), reason),
                  {}, TcmFile::tr("Import it again.", "Importez-la à nouveau."));
}

/// Takes one part after the other from a file's bytes before its digest.
class Parts {
public:
    Parts(const QByteArray& bytes, const QString& path)
        : m_bytes(bytes), m_path(path), m_end(bytes.size() - digestSize), m_at(magicSize) {}

    quint32 number() {
        const char* const from = take(numberSize);
        return qFromLittleEndian<quint32>(from);
    }

    QString text() {
        const quint32 size = number();
        const char* const from = take(size);
        return QString::fromUtf8(from, static_cast<int>(size));
    }

    std::vector<float> channel(quint32 count) {
        const char* const from = take(qint64{count} * numberSize);
        std::vector<float> values(count);
        qFromLittleEndian<float>(from, static_cast<qsizetype>(count), values.data());
        return values;
    }

    void expectEnd() const { expect(m_at == m_end); }

    void expect(bool fits) const {
        if (!fits) {
            refuse(m_path, TcmFile::tr("its parts don't fit together", "ses parties ne vont pas ensemble"));
        }
    }

private:
    const char* take(qint64 size) {
        expect(size <= m_end - m_at);
        const char* const from = m_bytes.constData() + m_at;
        m_at += size;
        return from;
    }

    const QByteArray& m_bytes;
    const QString& m_path;
    const qint64 m_end;
    qint64 m_at;
};

void checkVersion(quint32 version, const QString& path) {
    if (version > presentVersion) {
        throw VKError(
            TcmFile::tr("The imported curve <b>%1</b> was written by a newer version of this program.",
                        "La courbe importée <b>%1</b> a été écrite par une version plus récente de ce "
                        "programme.")
                .arg(shown(path)),
            TcmFile::tr("(Its format is %1, this version knows %2.)",
                        "(Son format est %1, cette version connaît %2.)")
                .arg(version)
                .arg(presentVersion),
            TcmFile::tr("Use that version, or import the curve again.",
                        "Utilisez cette version, ou importez à nouveau la courbe."));
    }
}

} // namespace

TcmFile::TcmFile(const QString& analysisType, TAnalysisData curve)
    : m_analysisType(analysisType), m_curve(std::move(curve)) {}

TcmFile TcmFile::read(const QString& path) {
    return decoded(TFileBuffer(path, true).data(), path);
}

TcmFile TcmFile::decoded(const QByteArray& bytes, const QString& path) {
    if (!bytes.startsWith(magic)) {
        refuse(path, tr("this is another kind of file", "c'est un fichier d'une autre sorte"));
    }
    if (bytes.size() < smallestSize) {
        refuse(path, tr("it is cut off", "elle est tronquée"));
    }
    Parts parts(bytes, path);
    const quint32 version = parts.number();
    // Before the digest: a newer version may have another one.
    checkVersion(version, path);
    if (digestOf(bytes, bytes.size() - digestSize) != bytes.right(digestSize)) {
        refuse(path,
               tr("it was altered or cut off, its digest says", "elle a été altérée ou tronquée, d'après sa "
                                                                "somme de contrôle"));
    }
    const QString analysisType = parts.text();
    parts.expect(version == presentVersion && parts.number() == channelCount);
    const quint32 points = parts.number();
    parts.expect(points > 0);
    std::vector<float> x = parts.channel(points);
    std::vector<float> y = parts.channel(points);
    parts.expectEnd();
    TcmFile file(analysisType, TAnalysisData(std::move(x), std::move(y)));
    const QString reason = file.curve().whyUnusable();
    if (!reason.isEmpty()) {
        refuse(path, reason);
    }
    return file;
}

QByteArray TcmFile::encoded() const {
    const QByteArray type = m_analysisType.toUtf8();
    const qint64 size = smallestSize + type.size() + qint64{2} * numberSize * m_curve.dataSize();
    QByteArray bytes;
    bytes.reserve(static_cast<int>(size));
    bytes.append(magic, magicSize);
    append(bytes, presentVersion);
    append(bytes, static_cast<quint32>(type.size()));
    bytes.append(type);
    append(bytes, channelCount);
    append(bytes, static_cast<quint32>(m_curve.dataSize()));
    append(bytes, m_curve.x());
    append(bytes, m_curve.y());
    bytes.append(digestOf(bytes, bytes.size()));
    return bytes;
}

void TcmFile::write(const QString& path) const {
    const QByteArray bytes = encoded();
    const auto refuseWriting = [&path](const QString& reason) {
        throw VKError(tr("The imported curve <b>%1</b> can't be written: %2.",
                         "La courbe importée <b>%1</b> ne peut pas être écrite : %2.")
                          .arg(shown(path), reason),
                      {},
                      tr("Check the space on the disk and the permissions of the folder.",
                         "Vérifiez la place sur le disque et les permissions du dossier."));
    };
    if (bytes.size() > TFileBuffer::maxSize) { // it could not be read again
        refuseWriting(tr("it is too large", "elle est trop grande"));
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        refuseWriting(file.errorString().toHtmlEscaped());
    }
}
