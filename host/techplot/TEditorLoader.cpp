#include "TEditorLoader.h"

#include "TEditorMatrix.h"
#include "VKError.h"
#include <QCoreApplication>
#include <QString>

namespace TechPlot {

TEditor* TEditorLoader::load(TypeEditor type) {
    if (type == Matrix)
        return new TEditorMatrix;
    throw VKError(
        QCoreApplication::translate(
            "TEditorLoader",
            "The plot area has no editor of type %1; ask for type %2, the matrix of viewers.",
            "La zone de tracé n'a pas d'éditeur de type %1 ; demandez le type %2, la matrice de graphiques.")
            .arg(static_cast<int>(type))
            .arg(static_cast<int>(Matrix)));
}

} // namespace TechPlot
