#include "LogText.h"

#include <QTextOption>

LogText::LogText(const QString& rich) {
    for (int at = 0; at < rich.size();) {
        const int taken = takeMark(rich, at);
        if (taken == 0) {
            m_text += rich.at(at);
        }
        at += taken > 0 ? taken : 1;
    }
    closeRange();
}

// Returns how many characters the tag or reference there has, 0 if there is none.
int LogText::takeMark(const QString& rich, int at) {
    struct Mark {
        QLatin1String form{};
        bool LogText::*style = nullptr; // null for what stands for a character
        QChar character{};
        bool on = false;
    };
    static const Mark marks[] = {{QLatin1String("<b>"), &LogText::m_bold, {}, true},
                                 {QLatin1String("</b>"), &LogText::m_bold, {}, false},
                                 {QLatin1String("<i>"), &LogText::m_italic, {}, true},
                                 {QLatin1String("</i>"), &LogText::m_italic, {}, false},
                                 {QLatin1String("<br>"), nullptr, QChar::LineSeparator, false},
                                 {QLatin1String("&amp;"), nullptr, QLatin1Char('&'), false},
                                 {QLatin1String("&lt;"), nullptr, QLatin1Char('<'), false},
                                 {QLatin1String("&gt;"), nullptr, QLatin1Char('>'), false},
                                 {QLatin1String("&quot;"), nullptr, QLatin1Char('"'), false}};
    if (rich.at(at) != QLatin1Char('<') && rich.at(at) != QLatin1Char('&')) {
        return 0;
    }
    for (const Mark& mark : marks) {
        if (rich.midRef(at, mark.form.size()) != mark.form) {
            continue;
        }
        if (mark.style != nullptr) {
            closeRange();
            this->*mark.style = mark.on;
        } else {
            m_text += mark.character;
        }
        return mark.form.size();
    }
    return 0;
}

void LogText::closeRange() {
    const int length = m_text.size() - m_start;
    if (length > 0 && (m_bold || m_italic)) {
        QTextCharFormat format;
        format.setFontWeight(m_bold ? QFont::Bold : QFont::Normal);
        format.setFontItalic(m_italic);
        m_formats.append({m_start, length, format});
    }
    m_start = m_text.size();
}

qreal LogText::layOut(QTextLayout& layout, const QFont& font, qreal width) const {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setText(m_text);
    layout.setFont(font);
    layout.setTextOption(option);
    layout.setFormats(m_formats);
    qreal height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition(QPointF(0, height));
        height += line.height();
    }
    layout.endLayout();
    return height;
}
