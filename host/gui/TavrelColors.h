#pragma once

#include <QColor>
#include <QPalette>

/// The colours of the application: two sets of neutrals, light and dark, and one accent. Everything that is
/// drawn takes its colours from a palette made here, so that a palette is all it takes to change them.
///
/// Where a palette's role is used for something special: Highlight is the accent as a filled area, Link the
/// accent as a line or as text, Mid a separating line, PlaceholderText the quieter text of captions.
class TavrelColors {
public:
    /// Whether the palette's window is dark, as a desktop's dark theme makes it.
    static bool isDark(const QPalette& palette);
    static QPalette palette(bool dark);

    static QColor accent(const QPalette& palette) { return palette.color(QPalette::Link); }
    static QColor line(const QPalette& palette) { return palette.color(QPalette::Mid); }
    static QColor caption(const QPalette& palette) { return palette.color(QPalette::PlaceholderText); }
    /// The accent as a tint of what lies below it: 0 nothing, 1 the full accent.
    static QColor tint(const QPalette& palette, double strength);
};
