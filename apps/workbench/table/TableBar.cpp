#include "TableBar.h"

#include "TLineIcon.h"
#include "TavrelColors.h"

#include <QAction>
#include <QEvent>
#include <QPainter>

namespace {

constexpr int iconExtent = 16;
constexpr int margin = 8;

// Gives way to the buttons: it is shown whole or shortened, as there is room.
class Caption : public QWidget {
public:
    explicit Caption(QWidget* parent) : QWidget(parent) {
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    }
    void setText(const QString& text) {
        m_text = text;
        setToolTip(text.toHtmlEscaped());
        setAccessibleName(text);
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setPen(TavrelColors::caption(palette()));
        const QRect room = rect().adjusted(margin, 0, -margin, 0);
        painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine,
                         fontMetrics().elidedText(m_text, Qt::ElideMiddle, room.width()));
    }

private:
    QString m_text;
};

void setTexts(QAction& action, const QString& text, const QString& tip) {
    action.setText(text);
    action.setToolTip(
        QStringLiteral("%1 (%2)").arg(tip, action.shortcut().toString(QKeySequence::NativeText)));
}

} // namespace

TableBar::TableBar(QWidget* parent) : QToolBar(parent), m_caption(new Caption(this)) {
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
    static_cast<Caption*>(m_caption)->setText(caption);
}

void TableBar::retranslate() {
    setTexts(*m_copy, tr("Copy", "Copier"),
             tr("Copy the selected cells", "Copier les cellules sélectionnées"));
    setTexts(*m_copyWithHeaders, tr("Copy with headers", "Copier avec en-têtes"),
             tr("Copy the selected cells with the headers of their rows and columns",
                "Copier les cellules sélectionnées avec les en-têtes de lignes et de colonnes"));
    setTexts(*m_export, tr("Export CSV…", "Exporter en CSV…"),
             tr("Save the whole table as a CSV file", "Enregistrer tout le tableau dans un fichier CSV"));
}

void TableBar::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QToolBar::changeEvent(event);
}
