#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>

/// The host's pictures, each loaded once for a size and a screen density.
///
/// A drawing (SVG, known by its content) is rendered at the application's density, and so is a picture
/// that was made from one (".../png/x.png" from ".../svg/x.svg" beside it); any other keeps its pixels. A
/// picture that can't be had is null, and Qt's log says so once. References are valid until the application
/// object is destroyed. For the interface thread only.
class TPixmapCache {
public:
    /// A picture of the host by its bare name ("launch", from the toolbar's pictures), or by a resource's
    /// path. Null for a null name.
    static const QPixmap& find(const char* name);

    /// The picture at a resource's or file's path. What is rendered fits into `size`, in units independent
    /// of density, with its proportions kept; without a size it takes the picture's own.
    static const QPixmap& pixmap(const QString& resource, const QSize& size = {});
};
