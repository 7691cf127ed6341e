#include "VKDatabaseImport.h"

#include "AnalysisStore.h"
#include "DatabaseFile.h"
#include "ImportSession.h"
#include "ImportedName.h"
#include "LastReadCurve.h"
#include "MessageLoggerInterface.h"
#include "NameReservations.h"
#include "NumberedName.h"
#include "SqlConnection.h"
#include "TcmFile.h"
#include "Transaction.h"
#include "VKError.h"
#include "VKObject2Analysis.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <optional>
#include <utility>

using TechDB::AnalysisInfo;
using TechDB::AnalysisStore;
using TechDB::NameReservations;
using TechDB::SqlConnection;
using TechDB::Transaction;

namespace {

constexpr auto extension = ".tcm";

QString shown(const QString& path) {
    return QDir::toNativeSeparators(path).toHtmlEscaped();
}

/// Runs a step; its failure is an Error on the log.
template <typename Step>
bool told(MessageLoggerInterface* logger, const Step& step) {
    try {
        step();
        return true;
    } catch (const VKError& error) {
        MessageLoggerInterface::Error(error.text(), logger);
        return false;
    }
}

std::unique_ptr<SqlConnection> indexIn(const QString& folder) {
    std::unique_ptr<SqlConnection> connection = TechDB::DatabaseFile::openOrCreate(
        folder + QStringLiteral("/index.vornimport"), TechDB::ProjectSchema::current());
    const QStringList statements = connection->dialect().setUpOfReplaceable();
    for (const QString& statement : statements) {
        connection->run(statement);
    }
    return connection;
}

/// The curve that two of the channels make; empty where one of them isn't there.
TAnalysisData curveOf(const QList<float*>& channels, int count, int abscissa, int ordinate) {
    const auto values = [&channels, count](int channel) {
        const float* const first = channels.value(channel, nullptr);
        return first != nullptr && count > 0 ? std::vector<float>(first, first + count)
                                             : std::vector<float>();
    };
    return {values(abscissa), values(ordinate)};
}

const VKObject2Analysis* storedWithOrigin(TechDB::TDatabase& project, const QString& name,
                                          const QString& analysisType, const TAnalysisData& curve) {
    Transaction transaction(project);
    const VKObject2Analysis* const stored = project.addAnalysisOnce(name, analysisType, curve);
    if (const auto origin = LastReadCurve::returnMe().originOf(curve)) {
        project.setOrigin(stored->key(), *origin);
    }
    transaction.commit();
    return stored;
}

} // namespace

std::unique_ptr<VKDatabaseImport> VKDatabaseImport::open(const QString& folder) {
    const QString root = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    try {
        auto session = std::make_unique<ImportSession>(root + QStringLiteral("/sessions"));
        return std::unique_ptr<VKDatabaseImport>(
            new VKDatabaseImport(indexIn(root), root, std::move(session)));
    } catch (const VKError& error) {
        throw VKError(tr("The folder of imported curves <b>%1</b> can't be used:",
                         "Le dossier des courbes importées <b>%1</b> est inutilisable :")
                          .arg(shown(root)),
                      error.text(),
                      tr("All it holds can be imported again: if it is damaged, move it away and try again.",
                         "Tout son contenu peut être importé à nouveau : s'il est endommagé, déplacez-le et "
                         "réessayez."));
    }
}

VKDatabaseImport::VKDatabaseImport(std::unique_ptr<SqlConnection> connection, const QString& folder,
                                   std::unique_ptr<ImportSession> session)
    : TDatabase(std::move(connection)), m_rootFolder(folder), m_session(std::move(session)) {
    NameReservations(this->connection()).prepare();
    giveBackOfDeadSessions();
}

VKDatabaseImport::~VKDatabaseImport() {
    const QStringList names = m_givenOut.keys();
    for (const QString& name : names) {
        giveBack(name);
    }
}

bool VKDatabaseImport::addNewAnalysisPath(QString& name, bool) {
    return told(nullptr, [this, &name] {
        const QString wanted = ImportedName::safe(name);
        const QString given = givenOut(wanted);
        if (wanted != name) {
            MessageLoggerInterface::Information(
                tr("<b>%1</b> can't be the name of an analysis; it is imported as <b>%2</b>.",
                   "<b>%1</b> ne peut pas être le nom d'une analyse ; elle est importée sous <b>%2</b>.")
                    .arg(name.toHtmlEscaped(), given.toHtmlEscaped()));
        }
        name = given;
    });
}

bool VKDatabaseImport::writeAnalysisFile(const QString& path, const QList<float*>& channels, int count,
                                         int abscissa, int ordinate, const QString& analysisType,
                                         MessageLoggerInterface* logger) {
    const QString name = nameOf(path);
    return told(logger, [&] {
        if (name.isEmpty()) {
            throw VKError(
                tr("The imported curve <b>%1</b> was not written: no analysis was announced for this path.",
                   "La courbe importée <b>%1</b> n'a pas été écrite : aucune analyse n'a été annoncée "
                   "pour ce chemin.")
                    .arg(shown(path)),
                {}, tr("Import the file again.", "Importez à nouveau le fichier."));
        }
        try {
            write(name, TcmFile(analysisType, curveOf(channels, count, abscissa, ordinate)), logger);
        } catch (const VKError&) {
            giveBack(name);
            throw;
        }
    });
}

bool VKDatabaseImport::analysisObjectSave(const QString& name) {
    return told(nullptr, [this, &name] {
        try {
            save(name);
        } catch (const VKError&) {
            giveBack(name);
            throw;
        }
    });
}

bool VKDatabaseImport::objectPush(TechDB::TDatabase* project, const VKObject2* object) {
    return told(nullptr, [this, project, object] { push(project, object); });
}

const VKObject2Analysis* VKDatabaseImport::getAnalysis(const QString& name) const {
    const auto same = m_standsFor.constFind(name);
    return same != m_standsFor.constEnd() ? analysisByKey(*same) : TDatabase::getAnalysis(name);
}

TAnalysisData VKDatabaseImport::curve(qint64 analysis) const {
    const std::optional<AnalysisInfo> info = AnalysisStore(connection()).byKey(analysis);
    return info ? fileOf(*info).curve() : TDatabase::curve(analysis); // which says that it is gone
}

const VKObject2Analysis* VKDatabaseImport::addAnalysis(const QString& name, const QString&,
                                                       const TAnalysisData&) {
    refuseChange(name);
}

void VKDatabaseImport::renameAnalysis(qint64 key, const QString&) {
    const VKObject2Analysis* const analysis = analysisByKey(key);
    refuseChange(analysis != nullptr ? analysis->name() : QString());
}

QStringList VKDatabaseImport::curveProblems() const {
    QStringList list;
    const QVector<AnalysisInfo> all = analyses();
    for (const AnalysisInfo& info : all) {
        try {
            fileOf(info);
        } catch (const VKError& error) {
            list.append(error.text());
        }
    }
    return list;
}

QString VKDatabaseImport::pathOf(const QString& name) const {
    const QChar separator = QDir::separator();
    return m_rootFolder + separator + VKObject2Analysis::folderName() + separator + name + separator + name +
           QLatin1String(extension);
}

QString VKDatabaseImport::nameOf(const QString& path) const {
    const QString name = QFileInfo(path).completeBaseName();
    const bool ours = m_givenOut.contains(name) && QDir::cleanPath(path) == QDir::cleanPath(pathOf(name));
    return ours ? name : QString();
}

TcmFile VKDatabaseImport::fileOf(const AnalysisInfo& info) const {
    const QString base = TechDB::NumberedName::base(info.name);
    if (ImportedName::safe(base) != base) { // an index made elsewhere must not lead out of the folder
        throw VKError(tr("The name <b>%1</b> can't be that of an imported curve.",
                         "Le nom <b>%1</b> ne peut pas être celui d'une courbe importée.")
                          .arg(info.name.toHtmlEscaped()),
                      {}, tr("Import it again.", "Importez-la à nouveau."));
    }
    TcmFile file = TcmFile::read(pathOf(info.name));
    if (file.curve().dataSize() != info.pointCount || file.analysisType() != info.analysisType) {
        throw VKError(tr("The imported curve <b>%1</b> is not the one that was stored.",
                         "La courbe importée <b>%1</b> n'est pas celle qui a été enregistrée.")
                          .arg(info.name.toHtmlEscaped()),
                      {}, tr("Import it again.", "Importez-la à nouveau."));
    }
    return file;
}

QString VKDatabaseImport::givenOut(const QString& wanted) {
    const QStringList before = m_givenOut.keys(wanted);
    for (const QString& name : before) {
        if (m_standsFor.contains(name)) {
            giveBack(name);
        }
    }
    Transaction transaction(*this); // no other window gives out names meanwhile
    NameReservations reservations(connection());
    for (const QString& name : qAsConst(m_toGiveBack)) {
        reservations.remove(name);
    }
    if (reservations.contains(wanted)) {
        giveBackOfDeadSessions();
    }
    removeUnreadable(wanted);
    const AnalysisStore store(connection());
    QString name = TechDB::NumberedName::firstFree(wanted, [&](const QString& candidate) {
        return store.byName(candidate).has_value() || reservations.contains(candidate);
    });
    reservations.add(name, m_session->id());
    transaction.commit();
    m_toGiveBack.clear();
    m_givenOut.insert(name, wanted);
    return name;
}

/// A name whose curve is lost is free again.
void VKDatabaseImport::removeUnreadable(const QString& name) {
    const std::optional<AnalysisInfo> info = AnalysisStore(connection()).byName(name);
    if (!info) {
        return;
    }
    try {
        fileOf(*info);
    } catch (const VKError& error) {
        removeAnalysis(info->key);
        MessageLoggerInterface::Warning(error.message() + QLatin1Char(' ') +
                                        tr("It is imported again.", "Elle est importée à nouveau."));
    }
}

void VKDatabaseImport::giveBack(const QString& name) {
    m_givenOut.remove(name);
    m_written.remove(name);
    m_standsFor.remove(name);
    try {
        Transaction transaction(*this);
        NameReservations(connection()).remove(name);
        transaction.commit();
    } catch (const VKError&) {
        m_toGiveBack.insert(name); // nothing depends on it before the next name is given out
    }
}

void VKDatabaseImport::giveBackOfDeadSessions() {
    NameReservations reservations(connection());
    const QStringList sessions = reservations.sessions();
    for (const QString& session : sessions) {
        if (!m_session->isAlive(session)) {
            Transaction transaction(*this);
            reservations.removeSession(session);
            transaction.commit();
        }
    }
}

void VKDatabaseImport::write(const QString& name, const TcmFile& file, MessageLoggerInterface* logger) {
    const QString reason = file.curve().whyUnusable();
    if (!reason.isEmpty()) {
        throw VKError(tr("The curve of <b>%1</b> was not imported: %2.",
                         "La courbe de <b>%1</b> n'a pas été importée : %2.")
                          .arg(name.toHtmlEscaped(), reason),
                      {}, tr("Check the file that it came from.", "Vérifiez le fichier d'origine."));
    }
    const QString wanted = m_givenOut.value(name);
    if (const VKObject2Analysis* const same = sameAnalysis(wanted, file.curve())) {
        m_standsFor.insert(name, same->key());
        return;
    }
    const QString path = pathOf(name);
    QDir().mkpath(QFileInfo(path).path()); // without it the file can't be written, which is told
    file.write(path);
    m_written.insert(name, {file.analysisType(), file.curve().dataSize()});
    if (name != wanted) {
        MessageLoggerInterface::Information(
            tr("Another curve named <b>%1</b> was imported before; this one is imported as <b>%2</b>.",
               "Une autre courbe nommée <b>%1</b> a déjà été importée ; celle-ci est importée sous "
               "<b>%2</b>.")
                .arg(wanted.toHtmlEscaped(), name.toHtmlEscaped()),
            logger);
    }
}

void VKDatabaseImport::save(const QString& name) {
    if (m_standsFor.contains(name)) {
        return;
    }
    const auto written = m_written.constFind(name);
    if (written == m_written.constEnd()) {
        throw VKError(tr("The analysis <b>%1</b> was not stored: it has no curve yet.",
                         "L'analyse <b>%1</b> n'a pas été enregistrée : elle n'a pas encore de courbe.")
                          .arg(name.toHtmlEscaped()),
                      {}, tr("Import its file again.", "Importez à nouveau son fichier."));
    }
    Transaction transaction(*this);
    addAnalysisInfo(name, written->analysisType, written->pointCount);
    NameReservations(connection()).remove(name);
    transaction.commit();
    m_written.erase(written);
    m_givenOut.remove(name);
}

void VKDatabaseImport::push(TechDB::TDatabase* project, const VKObject2* object) {
    const auto* const analysis = dynamic_cast<const VKObject2Analysis*>(object);
    if (project == nullptr || analysis == nullptr || analysis->db() != this) {
        throw VKError(tr("The imported curve was not taken into the project: one of them is not there.",
                         "La courbe importée n'a pas été placée dans le projet : l'un des deux manque."),
                      {},
                      tr("Open a project and import the file again.",
                         "Ouvrez un projet et importez à nouveau le fichier."));
    }
    endStandingFor(analysis->key());
    const std::optional<AnalysisInfo> info = AnalysisStore(connection()).byKey(analysis->key());
    const TAnalysisData curve = this->curve(analysis->key());
    const VKObject2Analysis* const stored =
        storedWithOrigin(*project, analysis->name(), info->analysisType, curve);
    MessageLoggerInterface::Information(
        stored->name() == analysis->name()
            ? tr("The analysis <b>%1</b> is in the project.", "L'analyse <b>%1</b> est dans le projet.")
                  .arg(analysis->name().toHtmlEscaped())
            : tr("The analysis <b>%1</b> stands in the project as <b>%2</b>.",
                 "L'analyse <b>%1</b> figure dans le projet sous <b>%2</b>.")
                  .arg(analysis->name().toHtmlEscaped(), stored->name().toHtmlEscaped()));
}

/// Once it is pushed, no step asks for an analysis by the names that stood for it.
void VKDatabaseImport::endStandingFor(qint64 key) {
    const QStringList names = m_standsFor.keys(key);
    for (const QString& name : names) {
        giveBack(name);
    }
}

void VKDatabaseImport::refuseChange(const QString& name) {
    throw VKError(tr("The imported curve <b>%1</b> bears the name of its file and comes from it alone.",
                     "La courbe importée <b>%1</b> porte le nom de son fichier et ne vient que de lui.")
                      .arg(name.toHtmlEscaped()),
                  {}, tr("Rename it in the project.", "Renommez-la dans le projet."));
}
