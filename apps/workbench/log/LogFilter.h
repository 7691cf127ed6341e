#pragma once

#include "MessageLevel.h"

#include <QSortFilterProxyModel>

#include <array>

/// The messages of the levels switched on that contain a text, in their order. All levels are on and there is
/// no text at first.
class LogFilter : public QSortFilterProxyModel {
    Q_OBJECT

public:
    LogFilter(QAbstractItemModel& messages, QObject* parent);

    void setLevelShown(MessageLevel level, bool shown);
    /// Case does not matter; blanks at the ends neither.
    void setText(const QString& text);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    std::array<bool, 4> m_shown{true, true, true, true};
    QString m_text;
};
