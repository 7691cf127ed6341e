#pragma once

#include <QTreeView>

class LogDelegate;

/// The messages as rows whose heights fit their wrapped texts. It shows the newest as they come, unless the
/// user has scrolled away from the end, and again once they are back there. Without messages it says what
/// will be here.
class LogList : public QTreeView {
    Q_OBJECT

public:
    LogList(QAbstractItemModel& model, QWidget* parent);

    /// What an empty list says.
    void setPlaceholder(const QString& text);

    /// To be called when the words for the levels are others.
    void fitColumns();

protected:
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void updateGeometries() override;

private:
    LogDelegate* m_delegate;
    QString m_placeholder;
    bool m_follows = true;
    bool m_adjusts = false;
};
