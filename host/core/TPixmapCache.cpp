#include "TPixmapCache.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QSvgRenderer>
#include <QtDebug>

#include <map>
#include <tuple>

namespace {

using Key = std::tuple<QString, int, int, qreal>;
using Pictures = std::map<Key, QPixmap>; // its elements don't move: references are handed out

Pictures& pictures() {
    static Pictures loaded;
    return loaded;
}

void forgetPictures() {
    pictures().clear();
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool isDrawing(const QByteArray& content) {
    const QByteArray start = content.left(64).trimmed();
    return start.startsWith('<') || start.startsWith("\xEF\xBB\xBF<");
}

QPixmap rendered(const QByteArray& drawing, const QSize& wanted, qreal density) {
    QSvgRenderer renderer(drawing);
    const QSize own = renderer.defaultSize();
    if (!renderer.isValid() || own.isEmpty()) {
        return {};
    }
    const QSize fitting = wanted.isEmpty() ? own : own.scaled(wanted, Qt::KeepAspectRatio);
    const QSize size = fitting.expandedTo({1, 1});
    QPixmap result(size * density);
    result.fill(Qt::transparent);
    {
        QPainter painter(&result);
        renderer.render(&painter);
    }
    result.setDevicePixelRatio(density);
    return result;
}

// The drawing from which a picture was made: ":/x/png/y/z.png" comes from ":/x/svg/y/z.svg".
QByteArray drawingBehind(const QString& path) {
    QString drawing = path;
    drawing.replace(QLatin1String("/png/"), QLatin1String("/svg/"));
    if (drawing == path || !drawing.endsWith(QLatin1String(".png"))) {
        return {};
    }
    drawing.replace(drawing.size() - 3, 3, QStringLiteral("svg"));
    return contentOf(drawing);
}

QPixmap loaded(const QString& path, const QSize& wanted, qreal density) {
    const QByteArray content = contentOf(path);
    if (isDrawing(content)) {
        return rendered(content, wanted, density);
    }
    QPixmap picture;
    picture.loadFromData(content);
    const QByteArray drawing = drawingBehind(path);
    if (!isDrawing(drawing)) {
        return picture;
    }
    const QPixmap sharp = rendered(drawing, wanted.isEmpty() ? picture.size() : wanted, density);
    return sharp.isNull() ? picture : sharp;
}

QPixmap loadedOrTold(const QString& path, const QSize& wanted, qreal density) {
    const QPixmap result = loaded(path, wanted, density);
    if (result.isNull()) {
        qWarning().noquote() << "No picture can be read from" << path;
    }
    return result;
}

} // namespace

const QPixmap& TPixmapCache::find(const char* name) {
    const QString text = QString::fromUtf8(name);
    if (text.isEmpty()) {
        static const QPixmap none;
        return none;
    }
    const bool bare = !text.contains(QLatin1Char('/')) && !text.startsWith(QLatin1Char(':'));
    return pixmap(bare ? QStringLiteral(":/Ressources/png/toolbar/%1.png").arg(text) : text);
}

const QPixmap& TPixmapCache::pixmap(const QString& resource, const QSize& size) {
    const qreal density = qGuiApp->devicePixelRatio();
    Pictures& all = pictures();
    if (all.empty()) {
        qAddPostRoutine(forgetPictures); // pixmaps must not outlive the application object
    }
    const Key key(resource, size.width(), size.height(), density);
    const auto known = all.find(key);
    return known != all.end() ? known->second
                              : all.emplace(key, loadedOrTold(resource, size, density)).first->second;
}
