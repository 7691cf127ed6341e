#pragma once

#include "MessageLoggerInterface.h"

#include <QAbstractTableModel>
#include <QDateTime>

#include <deque>

/// The log panel's table: one row a message, oldest first, with level, time and text in the columns of
/// `Column`. Keeps the latest `capacity` messages and drops the oldest.
class MessageLogModel : public QAbstractTableModel, public MessageLoggerInterface {
    Q_OBJECT

public:
    enum Column { LevelColumn, TimeColumn, TextColumn, ColumnCount };

    /// Answered in every column, besides `Qt::DisplayRole`, which gives plain text.
    enum Role {
        LevelRole = Qt::UserRole, ///< int, the value of a MessageLevel
        TimeRole,                 ///< QDateTime, when the message came
        RichTextRole              ///< QString, the text as `MessageText::rich` has it
    };

    static constexpr int defaultCapacity = 10000;

    /// A capacity below 1 counts as 1.
    explicit MessageLogModel(int capacity = defaultCapacity, QObject* parent = nullptr);
    ~MessageLogModel() override;

    void log(MessageLevel level, const QString& message) override;
    void clear();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /// The word for a level, in the user's language.
    static QString levelName(MessageLevel level);

private:
    struct Entry {
        MessageLevel level;
        QDateTime time;
        QString rich;
        QString plain;
    };

    static QVariant shown(const Entry& entry, int column);

    std::deque<Entry> m_entries;
    int m_capacity;
};
