#include "TLineIcon.h"

#include "TavrelColors.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace {

// The two colours that every drawing uses for what isn't a state; see resources/svg.
constexpr const char* neutralOfDrawings = "#7f8893";
constexpr const char* accentOfDrawings = "#3d84d1";

} // namespace

QIcon TLineIcon::icon(const QString& name) {
    const QString folder = name.contains('/') ? QString() : QStringLiteral("toolbar/");
    QFile file(QStringLiteral(":/Ressources/svg/%1%2.svg").arg(folder, name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QIcon(new TLineIcon(file.readAll()));
}

QByteArray TLineIcon::coloured(QIcon::Mode mode) const {
    const QPalette palette = QGuiApplication::palette();
    const bool disabled = mode == QIcon::Disabled;
    const auto group = disabled ? QPalette::Disabled : QPalette::Active;
    const QByteArray text = palette.color(group, QPalette::WindowText).name().toLatin1();
    const QByteArray accent = palette.color(group, QPalette::Link).name().toLatin1();
    QByteArray drawing = m_drawing;
    return drawing.replace(neutralOfDrawings, text).replace(accentOfDrawings, disabled ? text : accent);
}

void TLineIcon::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) {
    QSvgRenderer(coloured(mode)).render(painter, QRectF(rect));
}

QPixmap TLineIcon::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
    if (size.isEmpty())
        return {}; // a button without room asks too
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
}

QIconEngine* TLineIcon::clone() const {
    return new TLineIcon(*this);
}
