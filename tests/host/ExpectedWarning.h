#pragma once

#include <QString>

/// Says that a Qt warning with `part` in its text comes while this object lives: such a warning does not
/// fail the test, and its absence does. Objects of this class end in the reverse order of their making.
class ExpectedWarning {
public:
    explicit ExpectedWarning(const QString& part);
    ~ExpectedWarning();
    ExpectedWarning(const ExpectedWarning&) = delete;
    ExpectedWarning& operator=(const ExpectedWarning&) = delete;

    /// How many came so far.
    int count() const { return m_count; }

    /// Makes every other warning of Qt's log fail the running test.
    static void installGuard();

private:
    static ExpectedWarning*& innermost();
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& message);

    QString m_part;
    int m_count = 0;
    ExpectedWarning* m_outer;
};
