#pragma once

#include <QByteArray>
#include <QCoreApplication>

class CheckGrades;

/// The HTML report on the analyses of a quality check: byte for byte the one that the batch grader writes on
/// the raw files that they were read from, with the same settings and in the language of the window.
class CheckReport {
    Q_DECLARE_TR_FUNCTIONS(CheckReport)

public:
    explicit CheckReport(const CheckGrades& grades);

    const QByteArray& html() const { return m_html; }

    /// Writes the page whole or not at all, and tells on the log where it is and what it lacks. Throws
    /// VKError.
    void write(const QString& path) const;

private:
    QByteArray m_html;
    int m_count = 0;
    int m_withoutOrigin = 0;
};
