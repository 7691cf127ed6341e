#pragma once

#include <QColor>
#include <QList>
#include <QString>

/// Colours for values: a list of stops spread evenly over the values from 1 (the first) to 3 (the last).
///
/// A palette lives in a registry under its name from construction to destruction. Those who make one may
/// leave it there for the rest of the process. A later palette of the same name is the one that is found
/// from then on; the earlier one keeps its colours, and is found again if the later one goes first.
class TPalette {
public:
    TPalette(const QList<QColor>& colors, const QString& name);
    ~TPalette();
    TPalette(const TPalette&) = delete;
    TPalette& operator=(const TPalette&) = delete;

    const QString& name() const { return m_name; }
    const QList<QColor>& colors() const { return m_colors; }

    /// The colour of a value, between two stops mixed in proportion. A value below 1 takes the first stop,
    /// one above 3 and NaN the last. An invalid colour if there are no stops.
    QColor colorAt(double value) const;

    /// The palette that is registered under a name, or null.
    static const TPalette* find(const QString& name);

private:
    QList<QColor> m_colors;
    QString m_name;
};
