#include "ImportModules.h"

#include "CustomImportCtrl.h"
#include "GasDataCtrl.h"
#include "ModuleLauncher.h"
#include "MouseDrop.h"
#include "RibbonHost.h"
#include "SourceRockCtrl.h"
#include "VKTreeWidget.h"

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
    m_bars[kind] = m_ribbon.barAddedBy([this, kind] { make(kind); });
}

void ImportModules::importFiles(Kind kind, const QStringList& paths) {
    start(kind);
    QMimeData data;
    QList<QUrl> files;
    for (const QString& path : paths) {
        files.append(QUrl::fromLocalFile(path));
    }
    data.setUrls(files);
    MouseDrop::on(*bar(kind)->findChild<VKTreeWidget*>()->viewport(), data);
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
