#include "TableBar.h"

#include "TActionText.h"
#include "TBarCaption.h"
#include "TLineIcon.h"

#include <QAction>
#include <QEvent>

namespace {

constexpr int iconExtent = 16;

} // namespace

TableBar::TableBar(QWidget* parent) : QToolBar(parent), m_caption(new TBarCaption(Qt::ElideMiddle, this)) {
    setIconSize(QSize(iconExtent, iconExtent));
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_copy = addCommand("copy", QKeySequence::Copy);
    m_copyWithHeaders = addCommand("copy_headers", QStringLiteral("Ctrl+Shift+C"));
    m_export = addCommand("export", QStringLiteral("Ctrl+Shift+E"));
    addWidget(m_caption);
    retranslate();
}

QAction* TableBar::addCommand(const char* icon, const QKeySequence& keys) {
    QAction* const action = addAction(TLineIcon::icon(QLatin1String(icon)), {});
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    return action;
}

void TableBar::setCaption(const QString& caption) {
    m_caption->setText(caption);
}

void TableBar::retranslate() {
    TActionText::set(*m_copy, tr("Copy", "Copier"),
                     tr("Copy the selected cells", "Copier les cellules sélectionnées"));
    TActionText::set(*m_copyWithHeaders, tr("Copy with headers", "Copier avec en-têtes"),
                     tr("Copy the selected cells with the headers of their rows and columns",
                        "Copier les cellules sélectionnées avec les en-têtes de lignes et de colonnes"));
    TActionText::set(
        *m_export, tr("Export CSV…", "Exporter en CSV…"),
        tr("Save the whole table as a CSV file", "Enregistrer tout le tableau dans un fichier CSV"));
}

void TableBar::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QToolBar::changeEvent(event);
}
