#include "TEditorLoader.h"

#include "TEditorMatrix.h"
#include "VKError.h"
#include <QString>

namespace TechPlot {

TEditor* TEditorLoader::load(TypeEditor type) {
    if (type == Matrix)
        return new TEditorMatrix;
    throw VKError(
        QStringLiteral("The plot area has no editor of type %1; ask for type %2, the matrix of viewers.")
            .arg(static_cast<int>(type))
            .arg(static_cast<int>(Matrix)));
}

} // namespace TechPlot
