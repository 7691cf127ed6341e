#include "NumberedName.h"

#include <QRegularExpression>

namespace TechDB::NumberedName {

QString base(const QString& name) {
    static const QRegularExpression number(QStringLiteral(R"( \(([2-9]|[1-9][0-9]+)\)\z)"));
    const QRegularExpressionMatch match = number.match(name);
    return match.hasMatch() && match.capturedStart() > 0 ? name.left(match.capturedStart()) : name;
}

QString firstFree(const QString& name, const std::function<bool(const QString& candidate)>& isTaken) {
    const QString start = base(name);
    QString free = name;
    for (int number = 2; isTaken(free); ++number) {
        free = QStringLiteral("%1 (%2)").arg(start, QString::number(number));
    }
    return free;
}

} // namespace TechDB::NumberedName
