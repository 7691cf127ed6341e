#include "ImportOutcomes.h"

#include "FileSorter.h"
#include "MessageLogModel.h"
#include "NaturalOrder.h"
#include "VornCtrl.h"

#include <QSet>

#include <algorithm>
#include <utility>

using State = ImportOutcome::State;

namespace {

QStringList sortedPaths(const ImportListener::Codes& codes) {
    QStringList paths = codes.keys();
    const QCollator collator = NaturalOrder::collator();
    std::sort(paths.begin(), paths.end(), [&collator](const QString& one, const QString& other) {
        return collator.compare(one, other) < 0;
    });
    return paths;
}

} // namespace

ImportOutcomes::ImportOutcomes(const MessageLogModel& log) : m_log(log) {
    connect(&m_log, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex&, int first, int last) { hear(first, last); });
}

void ImportOutcomes::begin(const QStringList& paths) {
    m_isOpen = true;
    m_wanted = paths;
    m_outcomes.clear();
}

void ImportOutcomes::add(const ImportOutcome& outcome) {
    m_outcomes.append(outcome);
}

void ImportOutcomes::finish() {
    addMissing();
    const QVector<ImportOutcome> outcomes = std::exchange(m_outcomes, {});
    const bool several = std::exchange(m_isOpen, false);
    m_wanted.clear();
    m_isPassing = false;
    m_current.clear();
    if (!outcomes.isEmpty()) {
        emit gathered(outcomes, several);
    }
}

void ImportOutcomes::addMissing() {
    QSet<QString> told;
    for (const ImportOutcome& outcome : qAsConst(m_outcomes)) {
        told.insert(outcome.path);
    }
    for (const QString& path : qAsConst(m_wanted)) {
        if (!told.contains(path)) {
            add({path, State::Failed,
                 tr("Its import was cut short; the messages say why. Drop it again.",
                    "Son import a été interrompu ; les messages disent pourquoi. Déposez-le à nouveau."),
                 m_module});
        }
    }
}

void ImportOutcomes::passBegan(const QString& module, const Codes& codes) {
    m_module = module;
    m_before = codes;
    m_works.clear();
    m_current.clear();
    m_isPassing = true;
}

void ImportOutcomes::fileBegan(const QString& path) {
    m_current = path;
    m_works[path] = Work{};
}

void ImportOutcomes::fileEnded(bool stored) {
    m_works[std::exchange(m_current, {})].stored = stored;
}

void ImportOutcomes::fileFailed(const QString& text) {
    m_works[std::exchange(m_current, {})].failure = text;
}

void ImportOutcomes::hear(int first, int last) {
    for (int row = first; row <= last && !m_current.isEmpty(); ++row) {
        const QModelIndex message = m_log.index(row, MessageLogModel::TextColumn);
        if (message.data(MessageLogModel::LevelRole).toInt() != static_cast<int>(MessageLevel::Debug)) {
            m_works[m_current].remarks.append(message.data(MessageLogModel::RichTextRole).toString());
        }
    }
}

void ImportOutcomes::passEnded(const Codes& codes) {
    if (!std::exchange(m_isPassing, false)) {
        return;
    }
    const QSet<QString> wanted(m_wanted.begin(), m_wanted.end());
    for (const QString& path : sortedPaths(codes)) {
        // What was done before this pass is told only to who dropped it again.
        if (wanted.contains(path) || m_before.value(path) != VornCtrl::ImportDone) {
            m_outcomes.append(outcomeOf(path, codes.value(path)));
        }
    }
    if (!m_isOpen) {
        finish();
    }
}

ImportOutcome ImportOutcomes::outcomeOf(const QString& path, int code) const {
    const Work work = m_works.value(path);
    const QString remarks = work.remarks.join(QLatin1Char(' '));
    if (m_before.value(path) == VornCtrl::ImportDone) {
        return {
            path, State::Skipped,
            tr("It was imported before; take it off the module's list and drop it again to import it once "
               "more.",
               "Il a déjà été importé ; retirez-le de la liste du module et déposez-le à nouveau pour le "
               "réimporter."),
            m_module};
    }
    if (code == VornCtrl::ImportFailed) {
        return {path, State::Failed, (work.remarks + QStringList(work.failure)).join(QLatin1Char(' ')),
                m_module};
    }
    if (code != VornCtrl::ImportDone) {
        return {path, State::Skipped, refusalOf(path), m_module};
    }
    if (work.stored) {
        return {path, State::Imported, remarks, m_module};
    }
    return {
        path, State::Skipped,
        tr("Nothing was stored, as its wizard was closed; take it off the module's list and drop it again "
           "to import it.",
           "Rien n'a été enregistré, car son assistant a été fermé ; retirez-le de la liste du module et "
           "déposez-le à nouveau pour l'importer."),
        m_module};
}

QString ImportOutcomes::refusalOf(const QString& path) const {
    const SortedFile file = FileSorter::sort(path);
    if (file.kind == FileKind::Unknown) {
        return tr("It wasn't taken: %1.", "Il n'a pas été pris : %1.").arg(file.reason);
    }
    if (file.kind == FileKind::Project) {
        return tr(
            "It is a project, not a file to import; open it with Open in the menu Project.",
            "C'est un projet et non un fichier à importer ; ouvrez-le avec Ouvrir dans le menu Projet.");
    }
    return tr("The module <b>%1</b> doesn't take files of this kind; drop it anywhere else on the window to "
              "be told which one does.",
              "Le module <b>%1</b> ne prend pas ce type de fichier ; déposez-le ailleurs dans la fenêtre "
              "pour savoir lequel le fait.")
        .arg(m_module.toHtmlEscaped());
}
