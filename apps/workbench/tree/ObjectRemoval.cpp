#include "ObjectRemoval.h"

#include "TDatabase.h"
#include "TLineIcon.h"
#include "Transaction.h"
#include "VKObject2Analysis.h"
#include "VKObject2Well.h"

#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>

namespace {

constexpr int longestName = 60;
constexpr int iconExtent = 32;

QString shortened(const QString& name) {
    QString line = name.simplified();
    if (line.size() <= longestName) {
        return line;
    }
    return line.left(longestName / 2) + QChar(0x2026) + line.right(longestName / 2 - 1);
}

} // namespace

bool ObjectRemoval::isAgreed(QWidget* parent, const QList<const VKObject2*>& objects) {
    QMessageBox box(QMessageBox::Warning, tr("Delete", "Supprimer"), question(objects),
                    QMessageBox::Yes | QMessageBox::No, parent);
    box.setTextFormat(Qt::PlainText);
    box.setIconPixmap(TLineIcon::icon(QStringLiteral("warning")).pixmap(iconExtent, iconExtent));
    box.setInformativeText(names(objects));
    box.button(QMessageBox::Yes)->setText(tr("&Delete", "&Supprimer"));
    box.button(QMessageBox::No)->setText(tr("&Keep", "&Conserver"));
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

QString ObjectRemoval::question(const QList<const VKObject2*>& objects) {
    if (objects.size() == 1) {
        return tr("Delete this from the project? It can't be undone.",
                  "Supprimer ceci du projet ? C'est irréversible.");
    }
    return tr("Delete these %1 from the project? It can't be undone.",
              "Supprimer ces %1 éléments du projet ? C'est irréversible.")
        .arg(QLocale().toString(objects.size()));
}

QString ObjectRemoval::names(const QList<const VKObject2*>& objects) {
    // One name too many is shown rather than counted.
    const int shown = objects.size() == namesShown + 1 ? namesShown + 1 : qMin(namesShown, objects.size());
    QStringList lines;
    for (const VKObject2* object : objects.mid(0, shown)) {
        lines.append(shortened(object->displayName()));
    }
    const int others = objects.size() - shown;
    if (others > 0) {
        lines.append(tr("… and %1 more", "… et %1 autres").arg(QLocale().toString(others)));
    }
    return lines.join(QLatin1Char('\n'));
}

void ObjectRemoval::run(TechDB::TDatabase& project, const QList<const VKObject2*>& objects) {
    TechDB::Transaction transaction(project);
    for (const VKObject2* object : objects) {
        if (object->type() == VKObjectType::Well) {
            if (project.wellByKey(object->key()) != nullptr) {
                project.removeWell(object->key());
            }
        } else if (project.analysisByKey(object->key()) != nullptr) {
            project.removeAnalysis(object->key());
        }
    }
    transaction.commit();
}
