#include "ImportOutcome.h"

#include <QCoreApplication>

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ImportOutcome)
};

} // namespace

QString nameOf(ImportOutcome::State state) {
    switch (state) {
    case ImportOutcome::State::Imported:
        return Texts::tr("imported", "importé");
    case ImportOutcome::State::Skipped:
        return Texts::tr("skipped", "laissé de côté");
    case ImportOutcome::State::Failed:
        break;
    }
    return Texts::tr("failed", "échec");
}
