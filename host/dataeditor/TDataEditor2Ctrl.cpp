#include "TDataEditor2Ctrl.h"

#include "DatasetWriter.h"
#include "MessageLoggerInterface.h"
#include "ProjectMgrInterface.h"
#include "StoredName.h"
#include "VKError.h"

#include <exception>
#include <utility>

namespace {

QString reasonOf(const std::exception& error) {
    const auto* const ours = dynamic_cast<const VKError*>(&error);
    return ours != nullptr ? ours->text() : QString::fromUtf8(error.what()).toHtmlEscaped();
}

TechDB::TDatabase* projectDatabase() {
    const ProjectMgrInterface* const project = ProjectMgrInterface::returnMe();
    return project == nullptr ? nullptr : project->projectDatabase();
}

} // namespace

TDataEditor2Ctrl::TDataEditor2Ctrl() : m_unwinding(std::uncaught_exceptions()) {}

TDataEditor2Ctrl::~TDataEditor2Ctrl() noexcept(false) {
    const std::unique_ptr<DatasetWriter> writer = std::move(m_writer); // takes all back unless it commits
    if (!writer) {
        return;
    }
    try {
        writer->commit();
    } catch (const std::exception& error) {
        const QString text =
            tr("The dataset <b>%1</b> could not be stored; the project is as it was: %2",
               "L'ensemble de données <b>%1</b> n'a pas pu être enregistré ; le projet est inchangé : %2")
                .arg(m_datasets.join(QStringLiteral(", ")).toHtmlEscaped(), reasonOf(error));
        if (std::uncaught_exceptions() == m_unwinding) {
            // cppcheck-suppress exceptThrowInDestructor ; declared so, and never while another one passes
            throw VKError(text);
        }
        MessageLoggerInterface::Error(text); // another failure is under way already
    }
}

bool TDataEditor2Ctrl::save(QAbstractItemModel* model, const QString& dataset, const QString& sample,
                            int role, TechDB::TDatabase* database) {
    try {
        store(model, dataset, sample, role, database);
        return true;
    } catch (const std::exception& error) {
        MessageLoggerInterface::Error(
            tr("The sample <b>%1</b> of the dataset <b>%2</b> was not stored: %3",
               "L'échantillon <b>%1</b> de l'ensemble de données <b>%2</b> n'a pas été enregistré : %3")
                .arg(sample.toHtmlEscaped(), dataset.toHtmlEscaped(), reasonOf(error)));
        return false;
    }
}

void TDataEditor2Ctrl::store(const QAbstractItemModel* model, const QString& dataset, const QString& sample,
                             int role, TechDB::TDatabase* database) {
    TechDB::TDatabase* const target = database != nullptr ? database : projectDatabase();
    if (model == nullptr) {
        throw VKError(tr("There is no table.", "Il n'y a pas de tableau."), {},
                      tr("Import the file again.", "Importez à nouveau le fichier."));
    }
    if (target == nullptr) {
        throw VKError(tr("No project is open.", "Aucun projet n'est ouvert."), {},
                      tr("Open or make one first.", "Ouvrez ou créez-en un d'abord."));
    }
    writerFor(*target).write(*model, dataset, TechDB::tidiedName(sample), role);
    if (!m_datasets.contains(dataset)) {
        m_datasets.append(dataset);
    }
}

DatasetWriter& TDataEditor2Ctrl::writerFor(TechDB::TDatabase& database) {
    if (!m_writer) {
        m_writer = begun(database);
    }
    if (m_writer->database() != &database) {
        throw VKError(tr("What is saved together can't go to two projects.",
                         "Ce qui est enregistré ensemble ne peut pas aller dans deux projets."),
                      {},
                      tr("Import the file into one of them, then into the other.",
                         "Importez le fichier dans l'un, puis dans l'autre."));
    }
    return *m_writer;
}

std::unique_ptr<DatasetWriter> TDataEditor2Ctrl::begun(TechDB::TDatabase& database) {
    if (m_whyNotBegun) { // each attempt would wait as long as the first
        throw VKError(*m_whyNotBegun);
    }
    try {
        return std::make_unique<DatasetWriter>(database);
    } catch (const VKError& error) {
        m_whyNotBegun = error.text();
        throw;
    }
}
