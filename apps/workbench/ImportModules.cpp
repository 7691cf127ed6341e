#include "ImportModules.h"

#include "CustomImportCtrl.h"
#include "GasDataCtrl.h"
#include "ModuleLauncher.h"
#include "MouseDrop.h"
#include "RibbonHost.h"
#include "SourceRockCtrl.h"
#include "VKTreeWidget.h"
#include "WatchedImport.h"

#include <QMimeData>
#include <QUrl>

#include <memory>

ImportModules::ImportModules(RibbonHost& ribbon, ModuleLauncher& launcher, ImportListener& listener)
    : m_ribbon(ribbon), m_launcher(launcher), m_listener(listener) {}

void ImportModules::start(Kind kind) {
    if (bar(kind) != nullptr) {
        m_ribbon.addModuleBar(bar(kind), true, true); // there already: comes to the front
        return;
    }
    m_bars[kind] = m_ribbon.barAddedBy([this, kind] { make(kind); });
    // Behind the module's own connection: its pass is through by then. By name, as the plug-in hides the bar.
    connect(m_bars[kind], SIGNAL(importAsked()), this, SLOT(endPass()));
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
        return make<SourceRockCtrl>(kind);
    case Kind::Gas:
        return make<GasDataCtrl>(kind);
    case Kind::Custom:
        return make<CustomImportCtrl>(kind);
    }
}

template <class Controller>
void ImportModules::make(Kind kind) {
    auto controller = std::make_unique<WatchedImport<Controller>>(m_listener);
    controller->createEditor();
    m_codes[kind] = [module = controller.get()] { return module->files(); };
    m_launcher.adopt(controller.release());
}

void ImportModules::endPass() {
    for (auto bar = m_bars.cbegin(); bar != m_bars.cend(); ++bar) {
        if (bar.value() == sender()) {
            m_listener.passEnded(m_codes.value(bar.key())());
            return;
        }
    }
}
