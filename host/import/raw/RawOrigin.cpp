#include "RawOrigin.h"

#include <QCryptographicHash>

AnalysisOrigin RawOrigin::of(const QString& path, const QByteArray& bytes,
                             const std::vector<rockeval::Warning>& warnings) {
    AnalysisOrigin origin;
    origin.file = path;
    origin.sha256 = QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
    for (const rockeval::Warning& warning : warnings) {
        origin.warnings.append(QString::fromStdString(rockeval::warningText(warning)));
    }
    return origin;
}
