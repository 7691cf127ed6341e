#pragma once

#include <QByteArray>
#include <QString>

#include <exception>
#include <functional>

/// The host's exception: a failure told to the user in up to three texts, each a sentence in restricted
/// rich text (`<b>`, `<i>`, `<br>`): what happened, where, and what to do next. Any of them may be empty.
class VKError : public std::exception {
public:
    using Handler = std::function<void(const QString& text)>;

    explicit VKError(const QString& message, const QString& place = {}, const QString& advice = {});
    ~VKError() override;

    /// The first text that is filled, in UTF-8; empty if none is.
    const char* what() const noexcept override;

    const QString& message() const { return m_message; }
    const QString& place() const { return m_place; }
    const QString& advice() const { return m_advice; }

    /// The filled texts in order, joined by a blank.
    QString text() const;

    /// Reports a caught failure: the text of a `VKError`, `what()` in UTF-8 of any other exception, and a
    /// sentence of its own for one that says nothing. What the handler raises passes through.
    static void dispatchError(const std::exception& error);

    /// Sets who shows reported failures and returns who did so before. Without a handler (the state at the
    /// start, and after an empty one) they go to Qt's log as warnings. For the interface thread only.
    static Handler setHandler(Handler handler);

private:
    QString m_message;
    QString m_place;
    QString m_advice;
    QByteArray m_what;
};
