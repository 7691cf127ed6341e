#include "Guide.h"

#include "HelpId.h"

#include <QCoreApplication>
#include <QFile>

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Guide)
};

bool standsInAnchor(QChar character) {
    return character.isLetterOrNumber() || character == QLatin1Char('-') || character == QLatin1Char('_');
}

} // namespace

QString Guide::folder() {
    return QStringLiteral(":/guide/");
}

QString Guide::text() {
    QFile file(folder() + Texts::tr("user-guide.md", "user-guide.fr.md"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString Guide::headingFor(int helpId) {
    switch (helpId) {
    case HelpId::projects:
        return Texts::tr("Projects", "Les projets");
    case HelpId::tree:
        return Texts::tr("The project tree", "L'arbre du projet");
    case HelpId::wizard:
        return Texts::tr("The wizard", "L'assistant");
    case HelpId::curves:
        return Texts::tr("Curves", "Les courbes");
    case HelpId::tables:
        return Texts::tr("Tables", "Les tableaux");
    case HelpId::messages:
        return Texts::tr("Messages", "Les messages");
    case HelpId::importModules:
        return Texts::tr("Importing", "Importer");
    case HelpId::qualityCheck:
        return Texts::tr("The quality check", "Le contrôle qualité");
    default:
        return {};
    }
}

QString Guide::anchorOf(const QString& heading) {
    QString anchor;
    for (const QChar character : heading.toLower()) {
        if (character == QLatin1Char(' ')) {
            anchor += QLatin1Char('-');
        } else if (standsInAnchor(character)) {
            anchor += character;
        }
    }
    return anchor;
}
