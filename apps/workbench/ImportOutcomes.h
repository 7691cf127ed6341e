#pragma once

#include "ImportListener.h"
#include "ImportOutcome.h"

#include <QObject>
#include <QStringList>
#include <QVector>

class MessageLogModel;

/// Gathers what becomes of each file that is imported: from the modules' lists, from what they raise, and
/// from what is logged while a file is at work. A file that no reader took, and about which a module keeps
/// silent, is told with the reason.
class ImportOutcomes : public QObject, public ImportListener {
    Q_OBJECT

public:
    /// The log outlives this object.
    explicit ImportOutcomes(const MessageLogModel& log);

    /// From here to `finish` all passes are one import, of these files; otherwise each pass is one.
    void begin(const QStringList& paths);
    void add(const ImportOutcome& outcome);
    /// Announces what has come together. A file that was never heard of, as something raised ended its pass,
    /// is told as failed.
    void finish();

    void passBegan(const QString& module, const Codes& codes) override;
    void fileBegan(const QString& path) override;
    void fileEnded(bool stored) override;
    void fileFailed(const QString& text) override;
    void passEnded(const Codes& codes) override;

signals:
    /// A pass that a module's own button started, or an import of several. Never empty.
    void gathered(const QVector<ImportOutcome>& outcomes, bool severalPasses);

private:
    struct Work {
        QStringList remarks;
        QString failure;
        bool stored = false;
    };

    void hear(int first, int last);
    void addMissing();
    ImportOutcome outcomeOf(const QString& path, int code) const;
    QString refusalOf(const QString& path) const;

    const MessageLogModel& m_log;
    QString m_module;
    Codes m_before;
    QHash<QString, Work> m_works; // of the running pass
    QString m_current;
    bool m_isPassing = false;
    bool m_isOpen = false;
    QStringList m_wanted; // each once
    QVector<ImportOutcome> m_outcomes;
};
