#pragma once

#include <QWidget>

class QBoxLayout;
class VKRibbonGroup;

/// One page of the ribbon: groups side by side in the main layout. The title stands on the bar's tab and is
/// the widget's window title, blanks around it included.
///
/// The ribbon shows and hides a bar with setVisible. A bar's close event does nothing but hide it: only the
/// user's wish to close, through the ribbon, calls closeRequested.
class VKRibbonBar : public QWidget {
    Q_OBJECT

public:
    explicit VKRibbonBar(const QString& title = {}, QWidget* parent = nullptr);

    /// Adds an empty group behind those that are there; the bar owns it.
    virtual VKRibbonGroup* addGroup(const QString& title);
    virtual void setTitle(const QString& title);
    /// The user asked to close the bar. The base folds up what stands open above the workspace; what closing
    /// means beyond that is the deriving bar's.
    virtual void closeRequested();
    /// Empty on purpose: whether a bar is seen is the ribbon's decision alone.
    virtual void hide();

public slots:
    /// The action of this number was triggered on the bar. Nothing in the base, which has no actions.
    virtual void slotEventOccured(int action);
    /// Another bar came to the front, or, with null, this one is leaving the ribbon. The base folds up its
    /// open groups unless it is the one in front.
    virtual void slotCurrentBarHasChanged(VKRibbonBar* current);

public:
    QString title() const { return windowTitle(); }
    QBoxLayout* mainLayout() const { return m_mainLayout; }

private:
    void foldUp();

    QBoxLayout* m_mainLayout;
};
