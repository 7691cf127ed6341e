#include "TMatrixBar.h"

#include "TBarCaption.h"
#include "TEditorRegistry.h"
#include "TLineIcon.h"
#include <QAction>
#include <QEvent>
#include <QSettings>

namespace TechPlot {

namespace {

constexpr int iconExtent = 16;

} // namespace

TMatrixBar::TMatrixBar(QWidget* parent) : QToolBar(parent), m_hint(new TBarCaption(Qt::ElideRight, this)) {
    setIconSize(QSize(iconExtent, iconExtent));
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_link = addSwitch(QStringLiteral("link_axes"), QStringLiteral("techplot/linked"), false);
    m_grid = addSwitch(QStringLiteral("table"), QStringLiteral("techplot/grid"), true);
    m_reset = addAction(TLineIcon::icon(QStringLiteral("zoom_fit")), {});
    m_export = addAction(TLineIcon::icon(QStringLiteral("export")), {});
    for (QAction* action : actions())
        widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    addWidget(m_hint);
    setCount(0);
}

QAction* TMatrixBar::addSwitch(const QString& icon, const QString& key, bool standard) {
    QAction* action = addAction(TLineIcon::icon(icon), {});
    action->setCheckable(true);
    action->setChecked(QSettings().value(key, standard).toBool());
    connect(action, &QAction::toggled, this, [key](bool on) {
        QSettings().setValue(key, on);
        TEditorRegistry::returnMe().readSettingsAgain();
    });
    return action;
}

void TMatrixBar::setCount(int count) {
    m_count = count;
    m_reset->setEnabled(count > 0);
    m_export->setEnabled(count > 0);
    retranslate();
}

void TMatrixBar::retranslate() {
    m_link->setText(tr("Link time axes", "Lier les axes de temps"));
    m_link->setToolTip(tr("All curves show the same time", "Toutes les courbes montrent la même période"));
    m_grid->setText(tr("Grid", "Grille"));
    m_reset->setText(tr("Show all", "Tout afficher"));
    m_reset->setToolTip(tr("Show every curve as a whole", "Afficher chaque courbe en entier"));
    m_export->setText(tr("Export all…", "Tout exporter…"));
    m_export->setToolTip(
        tr("Save all curves as one picture or PDF", "Enregistrer toutes les courbes en une image ou un PDF"));
    const QString keys =
        tr("Drag: zoom  ·  Shift + drag: move  ·  Ctrl + wheel, + and −: zoom  ·  0: all",
           "Glisser : zoom  ·  Maj + glisser : déplacer  ·  Ctrl + molette, + et − : zoom  ·  0 : tout");
    m_hint->setText(m_count > 0 ? keys : QString());
}

void TMatrixBar::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QToolBar::changeEvent(event);
}

} // namespace TechPlot
