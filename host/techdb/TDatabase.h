#pragma once

#include "AnalysisOrigin.h"
#include "CopyProgress.h"
#include "NameRange.h"
#include "ObjectChange.h"
#include "ProjectSchema.h"
#include "SampleTable.h"
#include "StoredObject.h"
#include "TAnalysisData.h"

#include <QObject>
#include <QPair>
#include <QSet>
#include <QVector>

#include <memory>
#include <optional>

class VKObject2;
class VKObject2Analysis;
class VKObject2Well;

namespace TechDB {

class ForeignCommits;
class ObjectPool;
class ReadAhead;
class SqlConnection;

/// An open project: analyses, each with its curve, and datasets, each with named samples. It is open as
/// long as the object lives; its objects (VKObject2) live as long. Several windows may have one file open:
/// what one has committed is what the others read next.
///
/// Every operation that writes is a transaction, or a savepoint of one that is open (`Transaction`): it is
/// done whole or not at all. Names are unique among analyses and among datasets, letter by letter. What
/// fails is thrown as VKError. For the thread that made it.
class TDatabase : public QObject {
    Q_OBJECT

public:
    /// Makes a new project: at a path where nothing lies (`DatabaseFile`), or in a database on a server that
    /// holds none yet (`DatabaseServer`).
    static std::unique_ptr<TDatabase> create(const QString& place);
    /// Opens a project, a file or one on a server. One of an older version is brought to the present one,
    /// a file after a copy of it was written beside it; one of a newer version is refused.
    static std::unique_ptr<TDatabase> open(const QString& place,
                                           const ProjectSchema& schema = ProjectSchema::current());
    /// Closes the project. No transaction may be open.
    ~TDatabase() override;

    /// The file's path, or the address on a server, without a password.
    QString path() const;
    /// What a person calls the project: the name of its file or of its database on a server.
    QString title() const;
    /// The folder that a project's file lies in; null for a project on a server.
    QString folder() const;
    /// Made with the project and copied with its file.
    const QString& projectId() const { return m_projectId; }

    /// What a list shows of the analyses, of the datasets and of the samples of one, in natural order.
    ListedNames analysisNames(const NameRange& range) const;
    ListedNames datasetNames(const NameRange& range) const;
    ListedNames sampleNames(qint64 well, const NameRange& range) const;

    /// In the order of storing.
    QVector<AnalysisInfo> analyses() const;
    /// Null if there is none.
    virtual const VKObject2Analysis* getAnalysis(const QString& name) const;
    const VKObject2Analysis* analysisByKey(qint64 key) const;
    /// In the order of the keys, null where there is none. Quicker than asking for each.
    QVector<const VKObject2Analysis*> analysesByKeys(const QVector<qint64>& keys) const;
    /// Refuses a curve that no module could work with (`TAnalysisData::whyUnusable`) and a name that is
    /// taken. The type is what the analysis was measured for.
    virtual const VKObject2Analysis* addAnalysis(const QString& name, const QString& analysisType,
                                                 const TAnalysisData& curve);
    /// Stores a curve once: an analysis of this name, with or without a number behind it, that holds the same
    /// curve is returned as it is. A name that another curve has is told apart by a number ("X (2)").
    const VKObject2Analysis* addAnalysisOnce(const QString& name, const QString& analysisType,
                                             const TAnalysisData& curve);
    virtual void renameAnalysis(qint64 key, const QString& name);
    void removeAnalysis(qint64 key);
    /// The stored curve, bit for bit. Refuses what `addAnalysis` would, in whatever way it came to the file.
    virtual TAnalysisData curve(qint64 analysis) const;

    /// Where the curve was read from; nothing where that isn't known, because it was stored by an older
    /// version or made otherwise.
    std::optional<AnalysisOrigin> origin(qint64 analysis) const;
    /// In place of what was known before.
    void setOrigin(qint64 analysis, const AnalysisOrigin& origin);

    /// Gives the stored curve of an analysis or of its signal. It belongs to the database and is valid until
    /// the next call for an object of the same database, or until that is closed. If it can't be read, the
    /// result is false, the output null, and the log says why.
    static bool analysisData(const VKObject2Analysis* analysis, TAnalysisData** data);

    /// Whether an object is one to be pushed into this database. False only for an object that stands in it
    /// already, since callers take that for a success: an object that can't be pushed, null too, is refused
    /// by the push, which says why. The outputs are for a question about replacing, which is never asked;
    /// they may be null and are left as they are.
    bool canPushObject(const VKObject2* object, bool*, bool*, int*) const;

    QVector<DatasetInfo> datasets() const;
    const VKObject2Well* getWell(const QString& name) const;
    /// Whether the last `getWell` of a name gave null, and nobody has stored such a dataset through this
    /// object since. What stands under the name nevertheless is somebody else's, who was quicker.
    bool isThoughtFree(const QString& name) const { return m_thoughtFree.contains(name); }
    const VKObject2Well* wellByKey(qint64 key) const;
    /// Makes an empty dataset.
    const VKObject2Well* addWell(const QString& name);
    void renameWell(qint64 key, const QString& name);
    /// Takes all samples out of a dataset, which keeps its key, name and object; it counts as stored anew.
    void emptyWell(qint64 key);
    void removeWell(qint64 key);

    QVector<SampleInfo> samples(qint64 well) const;
    std::optional<SampleInfo> findSample(qint64 well, const QString& name) const;
    /// Stores a sample under a name that its dataset doesn't hold yet, and returns its key.
    qint64 addSample(qint64 well, const QString& name, const SampleTable& table);
    /// Puts the columns of `table` behind those of a sample, which keeps all that it has: rows of one name
    /// are one row, the second of a name goes to the second, and rows with new names come at the end.
    void addColumns(qint64 sample, const SampleTable& table);
    SampleTable sampleTable(qint64 sample) const;
    /// All samples of a dataset with their names, in its order and as they stood at one instant, even if
    /// another window imports the dataset anew meanwhile. Not within a transaction.
    QVector<QPair<QString, SampleTable>> sampleTables(qint64 well) const;

    /// From now on `changedElsewhere` is emitted.
    void followOthers();

    /// Writes a whole, checked copy into a file; what lies under the path is replaced once the copy is
    /// complete. The copy of a file is one step.
    void backupTo(const QString& path, const CopyProgress& progress) const;
    /// Copies everything to a file or to a server and compares the two in the end (`ProjectCopy`). A call
    /// that failed can be repeated: what is there already isn't written again.
    void copyTo(const QString& place, const CopyProgress& progress) const;
    /// Reads all of the file and tells, one sentence each, what is wrong with it. Empty if nothing is.
    QStringList problems() const;

signals:
    /// What this object has changed in the project, after it was committed, in one go for a transaction.
    void changed(const TechDB::ObjectChanges& changes);
    /// Somebody else has changed something, within two seconds after it was committed.
    void changedElsewhere();

protected:
    explicit TDatabase(std::unique_ptr<SqlConnection> connection);

    SqlConnection& connection() const { return *m_connection; }

    /// Stores an analysis whose curve the deriving class keeps outside the database.
    const VKObject2Analysis* addAnalysisInfo(const QString& name, const QString& analysisType,
                                             int pointCount);
    /// The analysis that `addAnalysisOnce` would return instead of storing the curve; null if there is none.
    const VKObject2Analysis* sameAnalysis(const QString& name, const TAnalysisData& curve) const;
    /// A sentence for each curve that can't be read; for `problems`.
    virtual QStringList curveProblems() const;

private:
    friend class ReadAhead;
    friend class Transaction;

    struct UncommittedChange {
        ObjectChange change;
        /// Of an object that was renamed.
        QString formerName;
    };

    void record(ObjectChange::Kind kind, VKObjectType type, qint64 key, const QString& formerName = {});
    void announceChanges();
    void takeBackChanges(int firstChange);

    std::unique_ptr<SqlConnection> m_connection;
    std::unique_ptr<ObjectPool> m_objects;
    std::unique_ptr<ForeignCommits> m_others;
    std::unique_ptr<TAnalysisData> m_lastCurve;
    ReadAhead* m_readAhead = nullptr;
    QString m_projectId;
    mutable QSet<QString> m_thoughtFree;
    QVector<UncommittedChange> m_changes;
};

} // namespace TechDB
