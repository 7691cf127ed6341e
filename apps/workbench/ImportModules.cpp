#include "ImportModules.h"

#include "CustomImportCtrl.h"
#include "GasDataCtrl.h"
#include "ModuleLauncher.h"
#include "RibbonHost.h"
#include "SourceRockCtrl.h"
#include "VKTreeWidget.h"

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>

#include <memory>

ImportModules::ImportModules(RibbonHost& ribbon, ModuleLauncher& launcher)
    : m_ribbon(ribbon), m_launcher(launcher) {}

void ImportModules::start(Kind kind) {
    if (bar(kind) != nullptr) {
        m_ribbon.addModuleBar(bar(kind), true, true); // there already: comes to the front
        return;
    }
    // A module enters the ribbon while it makes its editor, and tells nobody else which bar is its own.
    const auto noting = connect(&m_ribbon, &RibbonHost::barAdded, this,
                                [this, kind](VKRibbonModuleBar* bar) { m_bars[kind] = bar; });
    make(kind);
    disconnect(noting);
}

void ImportModules::importFiles(Kind kind, const QStringList& paths) {
    start(kind);
    QMimeData data;
    QList<QUrl> files;
    for (const QString& path : paths) {
        files.append(QUrl::fromLocalFile(path));
    }
    data.setUrls(files);
    QWidget* const target = bar(kind)->findChild<VKTreeWidget*>()->viewport();
    const QPoint place = target->rect().center();
    // Only what was entered can be dropped on.
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &enter);
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &drop);
    QMetaObject::invokeMethod(bar(kind), "slotImportButton");
}

void ImportModules::make(Kind kind) {
    switch (kind) {
    case Kind::SourceRock:
        return make<SourceRockCtrl>();
    case Kind::Gas:
        return make<GasDataCtrl>();
    case Kind::Custom:
        return make<CustomImportCtrl>();
    }
}

template <class Controller>
void ImportModules::make() {
    auto controller = std::make_unique<Controller>();
    controller->createEditor();
    m_launcher.adopt(controller.release());
}
