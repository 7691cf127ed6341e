#include "TDatabase.h"

#include "AnalysisStore.h"
#include "DatabaseFile.h"
#include "DatabaseRegistry.h"
#include "DatabaseServer.h"
#include "DatasetStore.h"
#include "ForeignCommits.h"
#include "MessageLoggerInterface.h"
#include "NameLists.h"
#include "NumberedName.h"
#include "ObjectPool.h"
#include "ProjectCopy.h"
#include "ReadAhead.h"
#include "SampleStore.h"
#include "ServerAddress.h"
#include "SqlConnection.h"
#include "SqlSnapshot.h"
#include "Transaction.h"
#include "VKError.h"
#include "VKObject2Analysis.h"

#include <QFileInfo>
#include <QHash>

#include <utility>

namespace TechDB {

std::unique_ptr<TDatabase> TDatabase::create(const QString& place) {
    const ProjectSchema& schema = ProjectSchema::current();
    return std::unique_ptr<TDatabase>(new TDatabase(ServerAddress::isAddress(place)
                                                        ? DatabaseServer::create(place, schema)
                                                        : DatabaseFile::create(place, schema)));
}

std::unique_ptr<TDatabase> TDatabase::open(const QString& place, const ProjectSchema& schema) {
    return std::unique_ptr<TDatabase>(new TDatabase(ServerAddress::isAddress(place)
                                                        ? DatabaseServer::open(place, schema)
                                                        : DatabaseFile::open(place, schema)));
}

TDatabase::TDatabase(std::unique_ptr<SqlConnection> connection)
    : m_connection(std::move(connection)), m_objects(std::make_unique<ObjectPool>(this)),
      m_projectId(ProjectSchema::current().idOf(*m_connection)) {
    qRegisterMetaType<ObjectChanges>("TechDB::ObjectChanges"); // the signal may be queued
    DatabaseRegistry::add(this);
}

TDatabase::~TDatabase() {
    DatabaseRegistry::remove(this);
}

QString TDatabase::path() const {
    return m_connection->shown();
}

QString TDatabase::title() const {
    const QString& place = m_connection->place();
    return ServerAddress::isAddress(place) ? ServerAddress(place).title()
                                           : QFileInfo(place).completeBaseName();
}

QString TDatabase::folder() const {
    const QString& place = m_connection->place();
    return ServerAddress::isAddress(place) ? QString() : QFileInfo(place).absolutePath();
}

ListedNames TDatabase::analysisNames(const NameRange& range) const {
    return NameLists(*m_connection).analyses(range);
}

ListedNames TDatabase::datasetNames(const NameRange& range) const {
    return NameLists(*m_connection).datasets(range);
}

ListedNames TDatabase::sampleNames(qint64 well, const NameRange& range) const {
    return NameLists(*m_connection).samples(well, range);
}

QVector<AnalysisInfo> TDatabase::analyses() const {
    return AnalysisStore(*m_connection).all();
}

const VKObject2Analysis* TDatabase::getAnalysis(const QString& name) const {
    const std::optional<AnalysisInfo> info = AnalysisStore(*m_connection).byName(name);
    return info ? m_objects->analysis(*info) : nullptr;
}

const VKObject2Analysis* TDatabase::analysisByKey(qint64 key) const {
    const std::optional<AnalysisInfo> info = AnalysisStore(*m_connection).byKey(key);
    return info ? m_objects->analysis(*info) : nullptr;
}

QVector<const VKObject2Analysis*> TDatabase::analysesByKeys(const QVector<qint64>& keys) const {
    QHash<qint64, const VKObject2Analysis*> stored;
    const QVector<AnalysisInfo> infos = AnalysisStore(*m_connection).byKeys(keys);
    for (const AnalysisInfo& info : infos) {
        stored.insert(info.key, m_objects->analysis(info));
    }
    QVector<const VKObject2Analysis*> found;
    found.reserve(keys.size());
    for (const qint64 key : keys) {
        found.append(stored.value(key));
    }
    return found;
}

const VKObject2Analysis* TDatabase::addAnalysis(const QString& name, const QString& analysisType,
                                                const TAnalysisData& curve) {
    Transaction transaction(*this);
    const qint64 key = AnalysisStore(*m_connection).add(name, analysisType, curve);
    record(ObjectChange::Kind::Added, VKObjectType::Analysis, key);
    transaction.commit();
    return analysisByKey(key);
}

const VKObject2Analysis* TDatabase::addAnalysisInfo(const QString& name, const QString& analysisType,
                                                    int pointCount) {
    Transaction transaction(*this);
    const qint64 key = AnalysisStore(*m_connection).addInfo(name, analysisType, pointCount);
    record(ObjectChange::Kind::Added, VKObjectType::Analysis, key);
    transaction.commit();
    return analysisByKey(key);
}

const VKObject2Analysis* TDatabase::addAnalysisOnce(const QString& name, const QString& analysisType,
                                                    const TAnalysisData& curve) {
    Transaction transaction(*this);
    const VKObject2Analysis* analysis = sameAnalysis(name, curve);
    if (analysis == nullptr) {
        const AnalysisStore store(*m_connection);
        const auto isTaken = [&store](const QString& candidate) {
            return store.byName(candidate).has_value();
        };
        analysis = addAnalysis(NumberedName::firstFree(name, isTaken), analysisType, curve);
    }
    transaction.commit();
    return analysis;
}

const VKObject2Analysis* TDatabase::sameAnalysis(const QString& name, const TAnalysisData& curve) const {
    const QVector<AnalysisInfo> family = AnalysisStore(*m_connection).family(name);
    for (const AnalysisInfo& info : family) {
        try {
            if (info.pointCount == curve.dataSize() && this->curve(info.key).equals(curve)) {
                return m_objects->analysis(info);
            }
        } catch (const VKError&) {
            // A curve that can't be read equals none. Whoever asks for it is told; here nobody does.
        }
    }
    return nullptr;
}

bool TDatabase::canPushObject(const VKObject2* object, bool*, bool*, int*) const {
    return object == nullptr || object->db() != this;
}

void TDatabase::renameAnalysis(qint64 key, const QString& name) {
    Transaction transaction(*this);
    AnalysisStore store(*m_connection);
    const auto former = store.byKey(key);
    store.rename(key, name);
    m_objects->rename(VKObjectType::Analysis, key, name);
    record(ObjectChange::Kind::Renamed, VKObjectType::Analysis, key, former->name);
    transaction.commit();
}

void TDatabase::removeAnalysis(qint64 key) {
    Transaction transaction(*this);
    AnalysisStore(*m_connection).remove(key);
    record(ObjectChange::Kind::Removed, VKObjectType::Analysis, key);
    transaction.commit();
}

TAnalysisData TDatabase::curve(qint64 analysis) const {
    return AnalysisStore(*m_connection).curve(analysis);
}

std::optional<AnalysisOrigin> TDatabase::origin(qint64 analysis) const {
    return AnalysisStore(*m_connection).origin(analysis);
}

void TDatabase::setOrigin(qint64 analysis, const AnalysisOrigin& origin) {
    Transaction transaction(*this);
    AnalysisStore(*m_connection).setOrigin(analysis, origin);
    transaction.commit();
}

bool TDatabase::analysisData(const VKObject2Analysis* analysis, TAnalysisData** data) {
    if (data == nullptr) {
        return false;
    }
    *data = nullptr;
    if (analysis == nullptr || analysis->db() == nullptr) {
        MessageLoggerInterface::Error(
            tr("No curve is stored for an object that stands in no project: import its file first.",
               "Aucune courbe n'est enregistrée pour un objet qui n'est dans aucun "
               "projet : importez d'abord son fichier."));
        return false;
    }
    TDatabase& database = *analysis->db();
    try {
        auto curve = database.m_readAhead == nullptr ? nullptr : database.m_readAhead->take(analysis->key());
        database.m_lastCurve =
            curve ? std::move(curve) : std::make_unique<TAnalysisData>(database.curve(analysis->key()));
    } catch (const VKError& error) {
        MessageLoggerInterface::Error(error.text());
        return false;
    }
    *data = database.m_lastCurve.get();
    return true;
}

QVector<DatasetInfo> TDatabase::datasets() const {
    return DatasetStore(*m_connection).all();
}

const VKObject2Well* TDatabase::getWell(const QString& name) const {
    const std::optional<DatasetInfo> info = DatasetStore(*m_connection).byName(name);
    if (!info) {
        m_thoughtFree.insert(name);
        return nullptr;
    }
    m_thoughtFree.remove(name);
    return m_objects->well(*info);
}

const VKObject2Well* TDatabase::wellByKey(qint64 key) const {
    const std::optional<DatasetInfo> info = DatasetStore(*m_connection).byKey(key);
    return info ? m_objects->well(*info) : nullptr;
}

const VKObject2Well* TDatabase::addWell(const QString& name) {
    Transaction transaction(*this);
    const qint64 key = DatasetStore(*m_connection).add(name);
    m_thoughtFree.remove(name);
    record(ObjectChange::Kind::Added, VKObjectType::Well, key);
    transaction.commit();
    return wellByKey(key);
}

void TDatabase::renameWell(qint64 key, const QString& name) {
    Transaction transaction(*this);
    DatasetStore store(*m_connection);
    const auto former = store.byKey(key);
    store.rename(key, name);
    m_objects->rename(VKObjectType::Well, key, name);
    record(ObjectChange::Kind::Renamed, VKObjectType::Well, key, former->name);
    transaction.commit();
}

void TDatabase::emptyWell(qint64 key) {
    Transaction transaction(*this);
    DatasetStore(*m_connection).empty(key);
    record(ObjectChange::Kind::Changed, VKObjectType::Well, key);
    transaction.commit();
}

void TDatabase::removeWell(qint64 key) {
    Transaction transaction(*this);
    DatasetStore(*m_connection).remove(key);
    record(ObjectChange::Kind::Removed, VKObjectType::Well, key);
    transaction.commit();
}

QVector<SampleInfo> TDatabase::samples(qint64 well) const {
    return DatasetStore(*m_connection).samples(well);
}

std::optional<SampleInfo> TDatabase::findSample(qint64 well, const QString& name) const {
    return DatasetStore(*m_connection).sampleByName(well, name);
}

qint64 TDatabase::addSample(qint64 well, const QString& name, const SampleTable& table) {
    SampleStore::check(table);
    Transaction transaction(*this);
    const qint64 key = DatasetStore(*m_connection).addSample(well, name);
    SampleStore(*m_connection).add(key, table);
    record(ObjectChange::Kind::Changed, VKObjectType::Well, well);
    transaction.commit();
    return key;
}

void TDatabase::addColumns(qint64 sample, const SampleTable& table) {
    SampleStore::check(table);
    Transaction transaction(*this);
    const qint64 well = DatasetStore(*m_connection).datasetOf(sample);
    SampleStore(*m_connection).addColumns(sample, table);
    record(ObjectChange::Kind::Changed, VKObjectType::Well, well);
    transaction.commit();
}

SampleTable TDatabase::sampleTable(qint64 sample) const {
    return SampleStore(*m_connection).table(sample);
}

QVector<QPair<QString, SampleTable>> TDatabase::sampleTables(qint64 well) const {
    const SqlSnapshot oneState(*m_connection);
    QVector<QPair<QString, SampleTable>> tables;
    for (const SampleInfo& sample : samples(well)) {
        tables.append({sample.name, sampleTable(sample.key)});
    }
    return tables;
}

void TDatabase::followOthers() {
    m_others = std::make_unique<ForeignCommits>(*m_connection);
    connect(m_others.get(), &ForeignCommits::happened, this, &TDatabase::changedElsewhere);
}

void TDatabase::backupTo(const QString& path, const CopyProgress& progress) const {
    if (folder().isNull()) {
        copyTo(path, progress);
        return;
    }
    progress(0, 1);
    DatabaseFile::copy(*m_connection, path);
    progress(1, 1);
}

void TDatabase::copyTo(const QString& place, const CopyProgress& progress) const {
    const auto copyInto = [&](SqlConnection& target) { ProjectCopy(*m_connection, target).run(progress); };
    if (ServerAddress::isAddress(place)) {
        copyInto(*DatabaseServer::connected(place, m_connection->kind()));
    } else {
        DatabaseFile::write(place, m_connection->kind(), copyInto);
    }
}

QStringList TDatabase::problems() const {
    QStringList list;
    m_connection->select(m_connection->dialect().checkWhole(), {}, [&list](const QSqlQuery& row) {
        const QString text = row.value(0).toString();
        if (text != QLatin1String("ok")) {
            list.append(text.toHtmlEscaped());
        }
    });
    m_connection->select(m_connection->dialect().checkReferences(), {}, [&list](const QSqlQuery& row) {
        list.append(tr("The table <b>%1</b> refers to a row that isn't there.",
                       "La table <b>%1</b> renvoie à une ligne absente.")
                        .arg(row.value(0).toString().toHtmlEscaped()));
    });
    return list + curveProblems();
}

QStringList TDatabase::curveProblems() const {
    return AnalysisStore(*m_connection).problems();
}

void TDatabase::record(ObjectChange::Kind kind, VKObjectType type, qint64 key, const QString& formerName) {
    // A dataset of ten thousand samples has changed once.
    const bool repeated = !m_changes.isEmpty() && kind == ObjectChange::Kind::Changed &&
                          m_changes.last().change.kind == kind && m_changes.last().change.type == type &&
                          m_changes.last().change.key == key;
    if (!repeated) {
        m_changes.append({{kind, type, key}, formerName});
    }
}

void TDatabase::announceChanges() {
    ObjectChanges changes;
    const QVector<UncommittedChange> committed = std::exchange(m_changes, {});
    for (const UncommittedChange& one : committed) {
        changes.append(one.change);
    }
    if (!changes.isEmpty()) {
        emit changed(changes);
    }
}

void TDatabase::takeBackChanges(int firstChange) {
    while (m_changes.size() > firstChange) {
        const UncommittedChange last = m_changes.takeLast();
        if (last.change.kind == ObjectChange::Kind::Added) {
            m_objects->retire(last.change.type, last.change.key);
        } else if (last.change.kind == ObjectChange::Kind::Renamed) {
            m_objects->rename(last.change.type, last.change.key, last.formerName);
        }
    }
}

} // namespace TechDB
