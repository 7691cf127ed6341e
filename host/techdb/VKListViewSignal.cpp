#include "VKListViewSignal.h"

#include "VKObject2Signal.h"

VKListViewSignal::VKListViewSignal(QWidget* parent, bool several) : VKListViewVKObject2(parent) {
    setSelectionMode(several ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
    setDropText(tr("Drop analyses here", "Déposez des analyses ici"));
}

VKListViewSignal::~VKListViewSignal() = default;

void VKListViewSignal::addSignal(const VKObject2Analysis* analysis) {
    addObject(analysis);
}

const VKObject2* VKListViewSignal::shownFor(const VKObject2* object) const {
    const auto* const analysis = dynamic_cast<const VKObject2Analysis*>(object);
    return analysis != nullptr ? analysis->TIC() : nullptr;
}
