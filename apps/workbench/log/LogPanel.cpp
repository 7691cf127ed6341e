#include "LogPanel.h"

#include "LogDelegate.h"
#include "LogFilter.h"
#include "LogList.h"
#include "MessageLogModel.h"
#include "TActionText.h"
#include "TLineIcon.h"

#include <QAction>
#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QLocale>
#include <QShortcut>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>
#include <numeric>

namespace {

constexpr int iconExtent = 16;
constexpr int searchWidth = 240;

std::size_t placeOf(const QModelIndex& index) {
    return static_cast<std::size_t>(index.data(MessageLogModel::LevelRole).toInt());
}

QString plainLine(const QAbstractItemModel& model, int row) {
    const QModelIndex text = model.index(row, MessageLogModel::TextColumn);
    const QString time =
        text.data(MessageLogModel::TimeRole).toDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    const QString level = model.index(row, MessageLogModel::LevelColumn).data().toString();
    QString oneLine = text.data().toString();
    oneLine.replace(QLatin1Char('\n'), QLatin1Char(' ')).replace(QLatin1Char('\t'), QLatin1Char(' '));
    return QStringList{time, level, oneLine}.join(QLatin1Char('\t')) + QLatin1Char('\n');
}

void putOnClipboard(const QAbstractItemModel& model, const QVector<int>& rows) {
    QString text;
    for (const int row : rows) {
        text += plainLine(model, row);
    }
    if (!text.isEmpty()) {
        QGuiApplication::clipboard()->setText(text);
    }
}

} // namespace

LogPanel::LogPanel(MessageLogModel& model, QWidget* parent)
    : QWidget(parent), m_model(model), m_filter(new LogFilter(m_model, this)), m_bar(new QToolBar(this)),
      m_list(new LogList(*m_filter, this)), m_search(new QLineEdit(this)) {
    m_filter->setLevelShown(MessageLevel::Debug, false);
    m_bar->setIconSize(QSize(iconExtent, iconExtent));
    m_bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    addLevelButtons();
    m_bar->addSeparator();
    addSearch();
    m_bar->addSeparator();
    addCommands();
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_bar);
    layout->addWidget(m_list);
    setFocusProxy(m_list);
    followModel();
    retranslate();
}

void LogPanel::addLevelButtons() {
    for (std::size_t i = m_levels.size(); i-- > 0;) { // what matters most comes first
        const auto level = static_cast<MessageLevel>(i);
        QAction* const action = m_bar->addAction(LogDelegate::levelIcon(static_cast<int>(i)), {});
        action->setCheckable(true);
        action->setChecked(level != MessageLevel::Debug);
        m_bar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
        connect(action, &QAction::toggled, this, [this, level](bool on) {
            m_filter->setLevelShown(level, on);
            showState();
        });
        m_levels.at(i) = action;
    }
}

void LogPanel::addSearch() {
    m_search->setClearButtonEnabled(true);
    m_search->setMaximumWidth(searchWidth);
    m_search->addAction(TLineIcon::icon(QStringLiteral("search")), QLineEdit::LeadingPosition);
    connect(m_search, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_filter->setText(text);
        showState();
    });
    const auto* const find =
        new QShortcut(QKeySequence::Find, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(find, &QShortcut::activated, m_search, [this] {
        m_search->setFocus(Qt::ShortcutFocusReason);
        m_search->selectAll();
    });
    const auto* const leave = new QShortcut(Qt::Key_Escape, m_search, nullptr, nullptr, Qt::WidgetShortcut);
    connect(leave, &QShortcut::activated, m_list, [this] {
        m_search->clear();
        m_list->setFocus(Qt::ShortcutFocusReason);
    });
    m_bar->addWidget(m_search);
}

void LogPanel::addCommands() {
    m_copy = addCommand("copy", QKeySequence::Copy);
    m_copyAll = addCommand("copy", QStringLiteral("Ctrl+Shift+C"));
    m_clear = addCommand("delete_generic", QStringLiteral("Ctrl+L"));
    m_list->setContextMenuPolicy(Qt::ActionsContextMenu);
    for (QAction* action : {m_copyAll, m_clear}) { // the other one is for the list and stands in its menu
        m_bar->addAction(action);
        m_bar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    }
    connect(m_copy, &QAction::triggered, this, &LogPanel::copySelected);
    connect(m_copyAll, &QAction::triggered, this, &LogPanel::copyAll);
    connect(m_clear, &QAction::triggered, &m_model, &MessageLogModel::clear);
}

QAction* LogPanel::addCommand(const char* icon, const QKeySequence& keys) {
    auto* const action = new QAction(TLineIcon::icon(QLatin1String(icon)), {}, this);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_list->addAction(action);
    return action;
}

void LogPanel::followModel() {
    m_showLater.setSingleShot(true);
    connect(&m_showLater, &QTimer::timeout, this, &LogPanel::showState);
    const auto inserted = [this](const QModelIndex&, int first, int last) { count(first, last, 1); };
    const auto removed = [this](const QModelIndex&, int first, int last) { count(first, last, -1); };
    connect(&m_model, &QAbstractItemModel::rowsInserted, this, inserted);
    connect(&m_model, &QAbstractItemModel::rowsAboutToBeRemoved, this, removed);
    connect(&m_model, &QAbstractItemModel::modelReset, this, &LogPanel::recount);
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { m_copy->setEnabled(m_list->selectionModel()->hasSelection()); });
    recount();
}

void LogPanel::count(int first, int last, int sign) {
    for (int row = first; row <= last; ++row) {
        m_counts.at(placeOf(m_model.index(row, MessageLogModel::LevelColumn))) += sign;
    }
    m_showLater.start();
}

void LogPanel::recount() {
    m_counts.fill(0);
    count(0, m_model.rowCount() - 1, 1);
}

void LogPanel::showState() {
    for (std::size_t i = 0; i < m_levels.size(); ++i) {
        m_levels.at(i)->setText(QStringLiteral("%1  %2").arg(
            MessageLogModel::levelName(static_cast<MessageLevel>(i)), locale().toString(m_counts.at(i))));
    }
    const bool any = m_filter->rowCount() > 0;
    m_copy->setEnabled(m_list->selectionModel()->hasSelection());
    m_copyAll->setEnabled(any);
    m_clear->setEnabled(m_model.rowCount() > 0);
    m_list->setPlaceholder(
        m_model.rowCount() > 0
            ? tr("No message of the levels switched on contains the text: switch on more levels, or clear "
                 "the text.",
                 "Aucun message des niveaux activés ne contient le texte : activez d'autres niveaux, ou "
                 "effacez le texte.")
            : tr("Messages appear here: what was done, and what to do if something fails.",
                 "Les messages s'affichent ici : ce qui a été fait, et que faire en cas d'échec."));
}

void LogPanel::retranslate() {
    TActionText::set(*m_copy, tr("Copy", "Copier"),
                     tr("Copy the selected messages", "Copier les messages sélectionnés"));
    TActionText::set(*m_copyAll, tr("Copy all", "Tout copier"),
                     tr("Copy all messages shown", "Copier tous les messages affichés"));
    TActionText::set(*m_clear, tr("Clear", "Effacer"),
                     tr("Remove all messages", "Supprimer tous les messages"));
    m_search->setPlaceholderText(tr("Find", "Chercher"));
    const QString keys = QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText);
    m_search->setToolTip(tr("Show only messages that contain this text (%1)",
                            "N'afficher que les messages contenant ce texte (%1)")
                             .arg(keys));
    m_list->setAccessibleName(tr("Messages", "Messages"));
    for (QAction* level : m_levels) {
        level->setToolTip(
            tr("Show or hide messages of this level", "Afficher ou masquer les messages de ce niveau"));
    }
    showState();
}

void LogPanel::copySelected() {
    QVector<int> rows;
    for (const QModelIndex& index : m_list->selectionModel()->selectedRows()) {
        rows.append(index.row());
    }
    std::sort(rows.begin(), rows.end());
    putOnClipboard(*m_filter, rows);
}

void LogPanel::copyAll() {
    QVector<int> rows(m_filter->rowCount());
    std::iota(rows.begin(), rows.end(), 0);
    putOnClipboard(*m_filter, rows);
}

void LogPanel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        m_list->fitColumns();
    }
    QWidget::changeEvent(event);
}
