#include "StoredName.h"

#include "VKError.h"

#include <QCoreApplication>

#include <algorithm>

namespace TechDB {

namespace {

QString whyNoName(const QString& name) {
    const auto translated = [](const char* english, const char* french) {
        return QCoreApplication::translate("TechDB::StoredName", english, french);
    };
    if (name.trimmed().isEmpty()) {
        return translated("it is empty.", "il est vide.");
    }
    if (name.trimmed() != name) {
        return translated("it begins or ends with a blank.", "il commence ou finit par un blanc.");
    }
    if (name.size() > maximumNameLength) {
        return translated("it has more than %1 characters.", "il a plus de %1 caractères.")
            .arg(maximumNameLength);
    }
    const bool printable = std::none_of(
        name.begin(), name.end(), [](QChar letter) { return letter.category() == QChar::Other_Control; });
    if (!printable || QString::fromUtf8(name.toUtf8()) != name) {
        return translated("it holds characters that can't be shown.",
                          "il contient des caractères qui ne peuvent pas être affichés.");
    }
    return {};
}

} // namespace

QString tidiedName(QString name) {
    std::replace_if(
        name.begin(), name.end(), [](QChar letter) { return letter.category() == QChar::Other_Control; },
        QLatin1Char(' '));
    return name.trimmed();
}

void checkName(const QString& name) {
    const QString reason = whyNoName(name);
    if (reason.isEmpty()) {
        return;
    }
    throw VKError(QCoreApplication::translate("TechDB::StoredName", "<b>%1</b> can't be a name:",
                                              "<b>%1</b> ne peut pas être un nom :")
                      .arg(name.left(maximumNameLength).toHtmlEscaped()),
                  reason,
                  QCoreApplication::translate("TechDB::StoredName", "Choose another name.",
                                              "Choisissez un autre nom."));
}

} // namespace TechDB
