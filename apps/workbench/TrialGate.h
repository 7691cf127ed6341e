#pragma once

#include "ReadAhead.h"

#include <QList>
#include <QObject>

#include <map>

class QDropEvent;
class VKObject2;
class VKRibbonModuleBar;

/// Stands before the lists of signals of a module's bar: a drop of stored objects reaches them with those
/// alone that can be graded. What is left out is named on the log, with the reason.
class TrialGate : public QObject {
    Q_OBJECT

public:
    explicit TrialGate(QObject* parent = nullptr) : QObject(parent) {}

    /// To be called once the bar is complete.
    void guard(VKRibbonModuleBar* bar);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// A drop has been delivered.
    void delivered();

private:
    using Curves = std::map<TechDB::TDatabase*, TechDB::ReadAhead>;

    static QList<const VKObject2*> gradable(const QList<const VKObject2*>& objects, Curves& curves);
    static void deliver(QObject* list, const QList<const VKObject2*>& objects, QDropEvent& original);

    bool m_delivering = false;
};
