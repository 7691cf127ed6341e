#pragma once

#include <QTreeWidget>

/// A tree that takes drops and says, while it is empty, what may be dropped on it.
///
/// Files: a drag that brings local files is accepted when somebody listens to dataDroppped; dropping it
/// reports their paths, in order. So do a button at the end of the header, which asks for files, and pasting
/// files that were copied in a file manager. Anything else is for the listeners of the three ...Called
/// signals, which get each event after the tree has judged it as above, and may accept or ignore it. A drop
/// arrives accepted, since only an accepted drag can be dropped.
///
/// Keyboard: Tab reaches the button behind the rows; Left and Right walk along the columns of an item without
/// children; Enter or Space stands for a click on the current cell.
class VKTreeWidget : public QTreeWidget {
    Q_OBJECT

public:
    explicit VKTreeWidget(QWidget* parent = nullptr, const QString& dropText = {});

    /// Plain text, shown while the tree has no item; it may hold line breaks.
    void setDropText(const QString& text);
    QString dropText() const { return m_dropText; }

    /// Plain text, shown while the tree has items and all of them are hidden.
    void setAllHiddenText(const QString& text);

    /// Puts a widget at the end of the header, in place of the button that asks for files. The tree takes it
    /// over, and what it had there before goes.
    void setHeaderWidget(QWidget* widget);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void dropCalled(QDropEvent* event);
    void dragEnterCalled(QDragEnterEvent* event);
    void dragMoveCalled(QDragMoveEvent* event);
    void dataDroppped(const QStringList& paths);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void updateGeometries() override;
    void connectNotify(const QMetaMethod& signal) override;

private:
    bool takesFilesOf(const QMimeData* offered) const;
    void pasteFiles();
    bool hidesAll() const;
    void setHovered(bool hovered);

    QWidget* m_headerWidget = nullptr; // asks for files as soon as somebody listens for them
    QString m_dropText;
    QString m_allHiddenText;
    bool m_hovered = false;
};
