#pragma once

#include <QIcon>
#include <QIconEngine>

/// An icon drawn from one of the line drawings each time it is painted: sharp at any scale factor, and in the
/// colours of the application's palette of that moment. The drawing's neutral colour becomes the text colour,
/// its accent the palette's; other colours stay as drawn. Disabled icons are drawn wholly in the colour of
/// disabled text.
class TLineIcon : public QIconEngine {
public:
    /// The drawing ":/Ressources/svg/<name>.svg"; a name without a folder is one of toolbar/. Null if there
    /// is none.
    static QIcon icon(const QString& name);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override;

private:
    explicit TLineIcon(const QByteArray& drawing) : m_drawing(drawing) {}
    QByteArray coloured(QIcon::Mode mode) const;

    QByteArray m_drawing;
};
