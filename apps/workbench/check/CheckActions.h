#pragma once

#include "gradereport/gradekind.h"

#include <QObject>

#include <array>
#include <memory>
#include <optional>

class QAction;
class QKeySequence;
class QMenu;

/// What can be done in an open quality check from the menu and the keyboard. Disabled while none is open;
/// says by its signals what was asked for.
class CheckActions : public QObject {
    Q_OBJECT

public:
    /// The kinds that can be asked for, in their order.
    static constexpr std::array<gradereport::GradeKind, 4> kinds{
        gradereport::GradeKind::good, gradereport::GradeKind::twin, gradereport::GradeKind::flat,
        gradereport::GradeKind::none};

    explicit CheckActions(QObject* parent);
    ~CheckActions() override;

    /// The menu of all actions, and the part of it that filters. Both belong to this object.
    QMenu* menu() const { return m_menu.get(); }
    QMenu* filterMenu() const { return m_filterMenu.get(); }
    QAction* nextAction() const { return m_next; }
    QAction* selectAction(gradereport::GradeKind kind) const { return m_select[place(kind)]; }
    QAction* onlyAction(gradereport::GradeKind kind) const { return m_only[place(kind)]; }
    QAction* allAction() const { return m_all; }
    QAction* reportAction() const { return m_report; }

    void setOpen(bool open);
    /// Marks the filter that holds; nothing for all analyses.
    void markFilter(std::optional<gradereport::GradeKind> only);
    void translate();

    /// How a filter is named; all analyses where there is none.
    static QString filterName(std::optional<gradereport::GradeKind> only);

signals:
    /// 1 for the next analysis, -1 for the one before.
    void stepRequested(int direction);
    void selectRequested(gradereport::GradeKind kind);
    void filterRequested(std::optional<gradereport::GradeKind> only);
    void reportRequested();

private:
    static std::size_t place(gradereport::GradeKind kind) { return static_cast<std::size_t>(kind); }
    QAction* action(const char* icon, const QKeySequence& shortcut);
    void buildKinds();

    std::unique_ptr<QMenu> m_menu;
    std::unique_ptr<QMenu> m_filterMenu;
    QAction* m_next;
    QAction* m_previous;
    std::array<QAction*, kinds.size()> m_select{};
    std::array<QAction*, kinds.size()> m_only{};
    QAction* m_all;
    QAction* m_report;
};
