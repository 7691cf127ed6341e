#include "VKListViewSignal.h"

#include "VKObject2Signal.h"

VKListViewSignal::VKListViewSignal(QWidget* parent, bool several) : VKListViewVKObject2(parent) {
    setSelectionMode(several ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
    setDropText(
        tr("Drop analyses here, or select them in the project and press Ctrl+Enter",
           "Déposez des analyses ici, ou sélectionnez-les dans le projet et appuyez sur Ctrl+Entrée"));
}

VKListViewSignal::~VKListViewSignal() = default;

void VKListViewSignal::addSignal(const VKObject2Analysis* analysis) {
    addObject(analysis);
}

const VKObject2* VKListViewSignal::shownFor(const VKObject2* object) const {
    const auto* const analysis = dynamic_cast<const VKObject2Analysis*>(object);
    return analysis != nullptr ? analysis->TIC() : nullptr;
}
