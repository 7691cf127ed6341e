#pragma once

#include <QCoreApplication>
#include <QVector>

class ImportDraft;

/// What a person should know before a draft is imported.
class ImportNotices {
    Q_DECLARE_TR_FUNCTIONS(ImportNotices)

public:
    /// One sentence and how grave it is.
    struct Notice {
        /// A remark, something that may be wrong, or what keeps the table from being imported.
        enum class Level { Remark, Warning, Obstacle };
        Level level = Level::Remark;
        QString text; ///< restricted rich text
    };

    /// The gravest first. What gets long is cut, and says so: texts, lists of rows and columns, the notices.
    static QVector<Notice> of(const ImportDraft& draft);

private:
    explicit ImportNotices(const ImportDraft& draft) : m_draft(draft) {}

    void addObstacles();
    void addIdentifiers();
    void addRenamed();
    void addUnits();
    void addLeftOut();
    void addOmitted();
    void add(Notice::Level level, const QString& text);

    /// The header's text, or the column's letter for want of one.
    QString columnName(int place) const;
    QString columnLetters(int place) const;
    static QString rowList(const QVector<int>& rows);
    /// The texts one after the other, the last ones given as a number if there are many.
    static QString list(const QStringList& texts, int count);

    const ImportDraft& m_draft;
    QVector<Notice> m_notices;
    int m_omitted = 0;
};
