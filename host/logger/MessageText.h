#pragma once

#include <QString>

/// A message made harmless for showing.
///
/// Of the markup only `<b>`, `<i>` (closed by their own end tags, also within each other, though not without
/// end) and `<br>` survive, without attributes and in either case, and the references `&amp;` `&lt;` `&gt;`
/// `&quot;`. Everything else is text and is shown as it stands, so that nothing is fetched, linked or styled.
/// A line end becomes `<br>`, another control character U+FFFD. A message of more than `maxLength` characters
/// ends in an ellipsis there.
class MessageText {
public:
    static constexpr int maxLength = 8000;

    explicit MessageText(const QString& message);

    /// Well-formed rich text.
    const QString& rich() const { return m_rich; }

    /// The same without markup, with line ends where <br> stands.
    const QString& plain() const { return m_plain; }

private:
    int takeTag(const QString& message, int at);
    int takeReference(const QString& message, int at);
    void takeCharacter(QChar character);
    void add(const QString& text);
    void breakLine();
    bool toggle(QChar element, bool opens);

    QString m_rich;
    QString m_plain;
    QString m_open; // the elements that are open, innermost last
};
