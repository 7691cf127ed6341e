#include "OutcomeTable.h"

#include "MessageText.h"
#include "VKDataModelGeneric.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>

using State = ImportOutcome::State;

namespace {

QVector<ImportOutcome> worstFirst(QVector<ImportOutcome> outcomes) {
    std::stable_sort(
        outcomes.begin(), outcomes.end(),
        [](const ImportOutcome& one, const ImportOutcome& other) { return one.state > other.state; });
    return outcomes;
}

QString oneLine(const QString& richText) {
    return MessageText(richText).plain().simplified();
}

} // namespace

std::unique_ptr<VKDataModel> OutcomeTable::of(const QVector<ImportOutcome>& outcomes) {
    const QStringList headers{tr("File", "Fichier"), tr("Outcome", "Résultat"),
                              tr("Reason and advice", "Raison et conseil"), tr("Module", "Module"),
                              tr("Folder", "Dossier")};
    auto table = std::make_unique<VKDataModelGeneric>();
    table->createEmpty(headers.size(), outcomes.size());
    for (int column = 0; column < headers.size(); ++column) {
        table->setHeaderData(column, Qt::Horizontal, headers[column]);
    }
    int row = 0;
    for (const ImportOutcome& outcome : worstFirst(outcomes)) {
        const QFileInfo file(outcome.path);
        const QStringList cells{file.fileName(), nameOf(outcome.state), oneLine(outcome.text), outcome.module,
                                QDir::toNativeSeparators(file.path())};
        for (int column = 0; column < cells.size(); ++column) {
            table->setData(table->index(row, column), cells[column]);
        }
        ++row;
    }
    table->setName(tr("Import outcome", "Résultat de l'import"), {});
    return table;
}

QString OutcomeTable::summary(const QVector<ImportOutcome>& outcomes) {
    const auto count = [&outcomes](State state) {
        return QLocale().toString(static_cast<int>(
            std::count_if(outcomes.begin(), outcomes.end(),
                          [state](const ImportOutcome& outcome) { return outcome.state == state; })));
    };
    return tr("%1 imported, %2 skipped, %3 failed", "%1 importé(s), %2 laissé(s) de côté, %3 échec(s)")
        .arg(count(State::Imported), count(State::Skipped), count(State::Failed));
}
