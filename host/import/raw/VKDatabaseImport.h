#pragma once

#include "TDatabase.h"

#include <QHash>
#include <QList>
#include <QSet>

class ImportSession;
class MessageLoggerInterface;
class TcmFile;

/// Where imported curves wait until they are in a project: a folder with an index of their names, and each
/// curve in a file of its own, root/analyses/NAME/NAME.tcm (`TcmFile`).
///
/// One analysis comes by four steps: `addNewAnalysisPath` gives its name out, `writeAnalysisFile` writes the
/// curve, `analysisObjectSave` makes it an analysis of this database, `objectPush` copies that into a
/// project. A step that fails is an Error on the log that names the cause; the next import of the same file
/// begins with the first step again and finds nothing in its way. The file is written before its row, and a
/// name that is given out belongs to this object until it is used, or until its process ends: a crash leaves
/// at most a file that the next import of that name replaces.
///
/// The same name with the same curve is the same analysis. The same name with another curve gets a number
/// behind it; an analysis is never replaced. Several windows may have one folder open.
///
/// What is here can be imported again. So the index waits for no disk: it survives the end of a program at
/// any moment and is never half written, but a loss of power may take its last rows. A file is whole or not
/// there.
class VKDatabaseImport : public TechDB::TDatabase {
    Q_OBJECT

public:
    /// Opens the database in a folder, and makes both if they aren't there. Throws VKError.
    static std::unique_ptr<VKDatabaseImport> open(const QString& folder);
    ~VKDatabaseImport() override;

    /// Absolute, without a separator at its end.
    const QString& rootFolder() const { return m_rootFolder; }

    /// Gives out a name for an analysis: the one asked for, or what `ImportedName::safe` makes of it, with a
    /// number if that is taken. The flag asks to take the place of an analysis of that name; none is ever
    /// replaced, and it is not used. On false the name is as it was.
    bool addNewAnalysisPath(QString& name, bool replace);

    /// Writes the curve of an analysis to the path that belongs to a name given out, and to no other one.
    /// `abscissa` and `ordinate` say which of the channels, counted from 0, are which; they hold `count`
    /// values each and are only read. If this curve is stored under the name asked for already, with or
    /// without a number, no file is written: the name given out stands for that analysis until that is pushed
    /// or the name is asked for again. Refuses a curve that no module could work with. Errors go to `logger`,
    /// null for the default one.
    bool writeAnalysisFile(const QString& path, const QList<float*>& channels, int count, int abscissa,
                           int ordinate, const QString& analysisType, MessageLoggerInterface* logger);

    /// Makes the written curve an analysis of this database.
    bool analysisObjectSave(const QString& name);

    /// Copies an analysis of this database, with name, type and curve, into a project, in one transaction. A
    /// project that holds the curve under that name, with or without a number, is left as it is; one that
    /// holds another curve under it gets the analysis with a number. The log says under which name it is
    /// there.
    bool objectPush(TechDB::TDatabase* project, const VKObject2* object);

    /// Also by a name given out that stands for an analysis stored before.
    const VKObject2Analysis* getAnalysis(const QString& name) const override;
    /// From the analysis's file, which is checked.
    TAnalysisData curve(qint64 analysis) const override;

    /// Refused: an imported analysis comes by the four steps and bears the name of its file.
    const VKObject2Analysis* addAnalysis(const QString& name, const QString& analysisType,
                                         const TAnalysisData& curve) override;
    void renameAnalysis(qint64 key, const QString& name) override;

protected:
    QStringList curveProblems() const override;

private:
    struct WrittenFile {
        QString analysisType;
        int pointCount;
    };

    VKDatabaseImport(std::unique_ptr<TechDB::SqlConnection> connection, const QString& folder,
                     std::unique_ptr<ImportSession> session);

    QString pathOf(const QString& name) const;
    QString nameOf(const QString& path) const;
    TcmFile fileOf(const TechDB::AnalysisInfo& info) const;

    QString givenOut(const QString& wanted);
    void removeUnreadable(const QString& name);
    void giveBack(const QString& name);
    void giveBackOfDeadSessions();

    void write(const QString& name, const TcmFile& file, MessageLoggerInterface* logger);
    void save(const QString& name);
    void push(TechDB::TDatabase* project, const VKObject2* object);
    void endStandingFor(qint64 key);
    [[noreturn]] static void refuseChange(const QString& name);

    QString m_rootFolder;
    std::unique_ptr<ImportSession> m_session;
    QHash<QString, QString> m_givenOut; // with the name that was asked for
    QSet<QString> m_toGiveBack;         // could not be written when they were given back
    QHash<QString, WrittenFile> m_written;
    QHash<QString, qint64> m_standsFor;
};
