#pragma once

#include <QFont>
#include <QString>
#include <QTextLayout>
#include <QVector>

/// A message's restricted rich text (`MessageText::rich`) as plain text with ranges of bold and italic, ready
/// to be laid out. It knows no other markup, so that nothing in a message can be fetched or followed.
class LogText {
public:
    explicit LogText(const QString& rich);

    /// With U+2028 where a line ends.
    const QString& text() const { return m_text; }
    const QVector<QTextLayout::FormatRange>& formats() const { return m_formats; }

    /// Breaks the text into lines of `width` at most, between words or, where a word is longer, within it,
    /// and gives their height.
    qreal layOut(QTextLayout& layout, const QFont& font, qreal width) const;

private:
    int takeMark(const QString& rich, int at);
    void closeRange();

    QString m_text;
    QVector<QTextLayout::FormatRange> m_formats;
    int m_start = 0;
    bool m_bold = false;
    bool m_italic = false;
};
