#include "CheckActions.h"

#include "TLineIcon.h"

#include <QAction>
#include <QActionGroup>
#include <QKeySequence>
#include <QMenu>

using gradereport::GradeKind;

namespace {

// A function key for each kind: the letters and digits of keyboards differ from land to land.
constexpr std::array<Qt::Key, CheckActions::kinds.size()> keys{Qt::Key_F5, Qt::Key_F6, Qt::Key_F7,
                                                               Qt::Key_F8};
constexpr std::array<const char*, CheckActions::kinds.size()> icons{"grade_good", "grade_double",
                                                                    "grade_flat", "grade_none"};

} // namespace

CheckActions::CheckActions(QObject* parent)
    : QObject(parent), m_menu(std::make_unique<QMenu>()), m_filterMenu(std::make_unique<QMenu>()),
      m_next(action("chevron_down", Qt::ALT + Qt::Key_Down)), m_previous(action("", Qt::ALT + Qt::Key_Up)),
      m_all(action("filter", Qt::SHIFT + Qt::Key_F9)), m_report(action("export", {})) {
    buildKinds();
    m_menu->addActions({m_next, m_previous});
    m_menu->addSeparator();
    for (QAction* const select : m_select) {
        m_menu->addAction(select);
    }
    m_menu->addSeparator();
    m_filterMenu->addAction(m_all);
    for (QAction* const only : m_only) {
        m_filterMenu->addAction(only);
    }
    m_menu->addActions(m_filterMenu->actions());
    m_menu->addSeparator();
    m_menu->addAction(m_report);
    connect(m_next, &QAction::triggered, this, [this] { emit stepRequested(1); });
    connect(m_previous, &QAction::triggered, this, [this] { emit stepRequested(-1); });
    connect(m_all, &QAction::triggered, this, [this] { emit filterRequested(std::nullopt); });
    connect(m_report, &QAction::triggered, this, &CheckActions::reportRequested);
    markFilter(std::nullopt);
    setOpen(false);
    translate();
}

CheckActions::~CheckActions() = default;

QAction* CheckActions::action(const char* icon, const QKeySequence& shortcut) {
    auto* const made = new QAction(TLineIcon::icon(QLatin1String(icon)), {}, this);
    made->setShortcut(shortcut);
    return made;
}

void CheckActions::buildKinds() {
    auto* const choice = new QActionGroup(this);
    choice->addAction(m_all);
    m_all->setCheckable(true);
    for (const GradeKind kind : kinds) {
        QAction* const select = action(icons[place(kind)], keys[place(kind)]);
        connect(select, &QAction::triggered, this, [this, kind] { emit selectRequested(kind); });
        m_select[place(kind)] = select;

        QAction* const only = action(icons[place(kind)], static_cast<int>(Qt::SHIFT) + keys[place(kind)]);
        only->setCheckable(true);
        choice->addAction(only);
        connect(only, &QAction::triggered, this, [this, kind] { emit filterRequested(kind); });
        m_only[place(kind)] = only;
    }
}

void CheckActions::setOpen(bool open) {
    const QList<QAction*> actions = m_menu->actions();
    for (QAction* const each : actions) {
        each->setEnabled(open);
    }
}

void CheckActions::markFilter(std::optional<GradeKind> only) {
    (only ? m_only[place(*only)] : m_all)->setChecked(true);
}

void CheckActions::translate() {
    m_menu->setTitle(tr("&Check", "&Contrôle"));
    m_next->setText(tr("Next analysis", "Analyse suivante"));
    m_previous->setText(tr("Previous analysis", "Analyse précédente"));
    selectAction(GradeKind::good)->setText(tr("Select all good", "Sélectionner les bonnes"));
    selectAction(GradeKind::twin)->setText(tr("Select all double", "Sélectionner les doubles"));
    selectAction(GradeKind::flat)->setText(tr("Select all flat", "Sélectionner les plates"));
    selectAction(GradeKind::none)->setText(tr("Select all without a peak", "Sélectionner celles sans pic"));
    onlyAction(GradeKind::good)->setText(tr("Show only good", "N'afficher que les bonnes"));
    onlyAction(GradeKind::twin)->setText(tr("Show only double", "N'afficher que les doubles"));
    onlyAction(GradeKind::flat)->setText(tr("Show only flat", "N'afficher que les plates"));
    onlyAction(GradeKind::none)->setText(tr("Show only without a peak", "N'afficher que celles sans pic"));
    m_all->setText(tr("Show all", "Tout afficher"));
    m_report->setText(tr("HTML report…", "Rapport HTML…"));
}

QString CheckActions::filterName(std::optional<GradeKind> only) {
    if (!only) {
        return tr("All", "Toutes");
    }
    switch (*only) {
    case GradeKind::good:
        return tr("Good", "Bonnes");
    case GradeKind::twin:
        return tr("Double", "Doubles");
    case GradeKind::flat:
        return tr("Flat", "Plates");
    default:
        return tr("No peak", "Sans pic");
    }
}
