#pragma once

#include <QObject>
#include <QPointer>

class HelpPage;
class QWidget;
class Workspace;

/// Opens the user guide: at a page asked for, or with F1 at the page that belongs to what has the focus. The
/// guide is one page of the workspace, which turns; above a dialog it is a window of its own, as the
/// workspace can't be reached then.
class HelpDesk : public QObject {
    Q_OBJECT

public:
    /// The workspace outlives this object.
    explicit HelpDesk(Workspace& workspace);
    ~HelpDesk() override;

    /// Numbers as in `HelpId`; one without a page opens the guide's start.
    void show(int helpId);
    /// The page of what has the focus.
    void showForFocus();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showAbove(QWidget& dialog, int helpId);

    Workspace& m_workspace;
    QPointer<HelpPage> m_page;
};
