#include "TavrelColors.h"

namespace {

struct Neutrals {
    const char* window;
    const char* base;
    const char* raised;
    const char* text;
    const char* caption;
    const char* disabled;
    const char* line;
    const char* faintLine;
    const char* strongLine;
    const char* shadow;
    const char* accentArea;
    const char* accentLine;
};

constexpr Neutrals lightSet{"#f5f6f8", "#ffffff", "#ffffff", "#1f2933", "#5f6b78", "#9aa3ad",
                            "#d3d9e0", "#e6eaee", "#aab4bf", "#6b7785", "#2f6fb5", "#2a67a9"};
constexpr Neutrals darkSet{"#1f2329", "#262b32", "#2e343c", "#e4e8ed", "#a0aab5", "#6a737e",
                           "#3a414b", "#323841", "#59636f", "#0f1215", "#3876b8", "#7fb3ea"};

} // namespace

bool TavrelColors::isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

QPalette TavrelColors::palette(bool dark) {
    const Neutrals& set = dark ? darkSet : lightSet;
    QPalette palette;
    const auto all = [&palette](QPalette::ColorRole role, const char* colour) {
        palette.setColor(QPalette::All, role, QColor(colour));
    };
    all(QPalette::Window, set.window);
    all(QPalette::Base, set.base);
    all(QPalette::AlternateBase, set.window);
    all(QPalette::Button, set.raised);
    all(QPalette::ToolTipBase, set.raised);
    all(QPalette::Light, set.raised);
    all(QPalette::Midlight, set.faintLine);
    all(QPalette::Mid, set.line);
    all(QPalette::Dark, set.strongLine);
    all(QPalette::Shadow, set.shadow);
    all(QPalette::Highlight, set.accentArea);
    all(QPalette::HighlightedText, "#ffffff");
    all(QPalette::Link, set.accentLine);
    all(QPalette::LinkVisited, set.accentLine);
    all(QPalette::PlaceholderText, set.caption);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        all(role, set.text);
        palette.setColor(QPalette::Disabled, role, QColor(set.disabled));
    }
    palette.setColor(QPalette::Disabled, QPalette::Link, QColor(set.strongLine));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(set.strongLine));
    return palette;
}

QColor TavrelColors::tint(const QPalette& palette, double strength) {
    QColor colour = accent(palette);
    colour.setAlphaF(strength);
    return colour;
}
