#include "TrialGate.h"

#include "MessageLoggerInterface.h"
#include "TrialGrade.h"
#include "VKListViewSignal.h"
#include "VKObject2Decoder.h"
#include "VKObject2Signal.h"
#include "VKRibbonModuleBar.h"

#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QScopedValueRollback>

#include <memory>

namespace {

/// The signal that the quality check would take for an object, or null.
const VKObject2Analysis* signalOf(const VKObject2* object) {
    const auto* const analysis = dynamic_cast<const VKObject2Analysis*>(object);
    return analysis == nullptr ? nullptr : analysis->TIC();
}

} // namespace

void TrialGate::guard(VKRibbonModuleBar* bar) {
    const QList<VKListViewSignal*> lists = bar->findChildren<VKListViewSignal*>();
    for (VKListViewSignal* const list : lists) {
        list->viewport()->installEventFilter(this);
    }
}

bool TrialGate::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Drop || m_delivering) {
        return false;
    }
    auto& drop = static_cast<QDropEvent&>(*event);
    if (!VKObject2Decoder::canDecode(drop.mimeData())) {
        return false;
    }
    const QList<const VKObject2*> dropped = VKObject2Decoder::decodeObject(drop.mimeData());
    Curves curves; // the module reads them again while it takes the drop
    const QList<const VKObject2*> good = gradable(dropped, curves);
    const QScopedValueRollback<bool> delivering(m_delivering, true);
    if (good.size() == dropped.size()) {
        QCoreApplication::sendEvent(watched, &drop);
    } else if (!good.isEmpty()) {
        deliver(watched, good, drop);
    }
    emit delivered();
    return true;
}

QList<const VKObject2*> TrialGate::gradable(const QList<const VKObject2*>& objects, Curves& curves) {
    QList<const VKObject2*> good;
    for (const VKObject2* const object : objects) {
        const VKObject2Analysis* const signal = signalOf(object);
        if (signal == nullptr) {
            MessageLoggerInterface::Warning(
                tr("<b>%1</b> holds no curve and was left out: drop analyses on the quality check.",
                   "<b>%1</b> ne contient pas de courbe et a été laissé de côté : déposez des analyses sur "
                   "le contrôle qualité.")
                    .arg(object->displayName().toHtmlEscaped()));
            continue;
        }
        const QString refusal =
            TrialGrade::refusal(*signal, curves.try_emplace(signal->db(), *signal->db()).first->second);
        if (refusal.isEmpty()) {
            good.append(object);
        } else {
            MessageLoggerInterface::Error(refusal);
        }
    }
    return good;
}

void TrialGate::deliver(QObject* list, const QList<const VKObject2*>& objects, QDropEvent& original) {
    const std::unique_ptr<QMimeData> data(VKObject2Decoder::encode(objects));
    QDropEvent drop(original.posF(), original.possibleActions(), data.get(), original.mouseButtons(),
                    original.keyboardModifiers());
    drop.setDropAction(original.dropAction());
    QCoreApplication::sendEvent(list, &drop);
    original.setAccepted(drop.isAccepted());
}
