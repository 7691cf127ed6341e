#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

class QWidget;
class VKObject2;

namespace TechDB {
class TDatabase;
} // namespace TechDB

/// Takes objects out of a project, once the user has agreed.
class ObjectRemoval {
    Q_DECLARE_TR_FUNCTIONS(ObjectRemoval)

public:
    /// As many names are in the question.
    static constexpr int namesShown = 8;

    /// Asks once for all objects; the default answer is no. There must be one at least.
    static bool isAgreed(QWidget* parent, const QList<const VKObject2*>& objects);

    /// Removes all in one transaction, or none; what is gone already counts as removed. Throws VKError.
    static void run(TechDB::TDatabase& project, const QList<const VKObject2*>& objects);

private:
    static QString question(const QList<const VKObject2*>& objects);
    static QString names(const QList<const VKObject2*>& objects);
};
