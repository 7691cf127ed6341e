#pragma once

#include "HelpId.h"
#include "HelpInterface.h"

#include <QTimer>
#include <QWidget>

#include <array>

class LogFilter;
class LogList;
class MessageLogModel;
class QAction;
class QLineEdit;
class QToolBar;

/// The user's log: one row a message with its level, its time and its text, the newest last.
///
/// The list follows the newest message as long as its end is in sight. Levels are switched on and off, all
/// but details are on at first; a text typed in leaves the messages that contain it. The model must live as
/// long as the panel.
class LogPanel : public QWidget, public HelpInterface {
    Q_OBJECT

public:
    explicit LogPanel(MessageLogModel& model, QWidget* parent = nullptr);

    int getIdForHelp() const override { return HelpId::messages; }

    /// Puts messages on the clipboard, oldest first, one a line: time, level and plain text, with tabs
    /// between them. Line ends and tabs within a text become blanks.
    void copySelected();
    void copyAll();

protected:
    void changeEvent(QEvent* event) override;

private:
    static constexpr int levelCount = 4;

    void addLevelButtons();
    void addCommands();
    void addSearch();
    QAction* addCommand(const char* icon, const QKeySequence& keys);
    void followModel();
    void count(int first, int last, int sign);
    void recount();
    void showState();
    void retranslate();

    MessageLogModel& m_model;
    LogFilter* m_filter;
    QToolBar* m_bar;
    LogList* m_list;
    QLineEdit* m_search;
    QAction* m_copy = nullptr;
    QAction* m_copyAll = nullptr;
    QAction* m_clear = nullptr;
    std::array<QAction*, levelCount> m_levels{};
    std::array<int, levelCount> m_counts{};
    QTimer m_showLater; // one update for a burst of messages
};
