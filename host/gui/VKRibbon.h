#pragma once

#include <QList>
#include <QWidget>

class QStackedWidget;
class QTabBar;
class RibbonPage;
class VKRibbonBar;

/// The ribbon at the top of the main window: tabs, and below them the bar of the current tab. The first tab
/// is the start bar, which the application fills with its groups and which stays; each open module adds one.
///
/// Keyboard: the tabs take the focus, Ctrl+PgUp and Ctrl+PgDown go from tab to tab, Ctrl+W is the close
/// button of the current one. A close button calls the bar's closeRequested and does nothing else: taking
/// the bar out is up to whom that reaches.
class VKRibbon : public QWidget {
    Q_OBJECT

public:
    explicit VKRibbon(QWidget* parent = nullptr);
    ~VKRibbon() override;

    VKRibbonBar* startBar() const;
    /// Adds a tab for the bar, titled as the bar is at any time. While it is in the ribbon the bar has a
    /// parent here and goes with the ribbon. A bar that is there already only comes to the front, if asked.
    void addBar(VKRibbonBar* bar, bool closable, bool toFront);
    /// Takes the bar out, hidden and without a parent: it is the caller's again. A bar that isn't in the
    /// ribbon, the start bar and null are left alone.
    void removeBar(VKRibbonBar* bar);

    QList<VKRibbonBar*> bars() const;
    VKRibbonBar* currentBar() const;
    void setCurrentBar(VKRibbonBar* bar);

public slots:
    void closeCurrentBar();

signals:
    void currentBarChanged(VKRibbonBar* bar);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    RibbonPage* page(int index) const;
    int indexOf(const VKRibbonBar* bar) const;
    void addCloseButton(VKRibbonBar* bar);
    void dropPage(int index);
    void showTitle(const VKRibbonBar* bar);
    void slotTabChanged(int index);
    void step(int by);
    void translate();

    QTabBar* m_tabs;
    QStackedWidget* m_pages;
    const VKRibbonBar* m_current = nullptr; // the one last told of; compared, never used
};
