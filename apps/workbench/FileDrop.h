#pragma once

#include <QObject>
#include <QStringList>

class DropCover;
class QWidget;

/// Lets files and folders be dropped anywhere on a window where no part of it takes the drop itself.
class FileDrop : public QObject {
    Q_OBJECT

public:
    /// The window outlives this object.
    explicit FileDrop(QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// Once the drag is over, so that the program it came from doesn't wait for what follows.
    void dropped(const QStringList& paths);

private:
    DropCover* m_cover;
};
