#pragma once

#include "VKListViewVKObject2.h"

class VKObject2Analysis;

/// A list of signals. An analysis is listed as its signal; what has none, a dataset or an analysis without a
/// curve, isn't listed.
class VKListViewSignal : public VKListViewVKObject2 {
    Q_OBJECT

public:
    /// `several`: more than one item may be selected at a time.
    VKListViewSignal(QWidget* parent, bool several);
    ~VKListViewSignal() override;

    /// Adds one item, also for a signal that is listed already. Nothing for null.
    void addSignal(const VKObject2Analysis* analysis);

protected:
    const VKObject2* shownFor(const VKObject2* object) const override;
};
