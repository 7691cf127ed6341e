#include "FileKind.h"

#include <QCoreApplication>

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(FileKind)
};

} // namespace

QString nameOf(FileKind kind) {
    switch (kind) {
    case FileKind::Raw:
        return Texts::tr("Raw Rock-Eval files", "Fichiers Rock-Eval bruts");
    case FileKind::SourceRockTable:
        return Texts::tr("Tables of source rocks", "Tableaux de roches mères");
    case FileKind::GasTable:
        return Texts::tr("Tables of gases", "Tableaux de gaz");
    case FileKind::OtherTable:
        return Texts::tr("Other tables", "Autres tableaux");
    case FileKind::Project:
        return Texts::tr("Projects", "Projets");
    case FileKind::Unknown:
        break;
    }
    return Texts::tr("Files that nothing here reads", "Fichiers que rien ne lit ici");
}
