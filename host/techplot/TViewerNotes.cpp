#include "TViewerNotes.h"

#include <utility>

namespace TechPlot {

void TViewerNotes::setSource(Source source) {
    m_source = std::move(source);
    emit changed();
}

QString TViewerNotes::note(const QString& viewerName) const {
    return m_source ? m_source(viewerName) : QString();
}

} // namespace TechPlot
