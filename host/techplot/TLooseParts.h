#pragma once

#include <QtGlobal>
#include <list>

namespace TechPlot {

class TNode;

/// The plotters that belong to an editor and stand in no viewer; they are destroyed with this object. A
/// thousand of them come and go with each step of a slider, so that coming and going costs the same however
/// many there are.
class TLooseParts {
public:
    using Place = std::list<TNode*>::iterator;

    TLooseParts() = default;
    ~TLooseParts();
    TLooseParts(const TLooseParts&) = delete;
    TLooseParts& operator=(const TLooseParts&) = delete;

    /// Takes a plotter over that is in no collection.
    void add(TNode& node);
    void remove(TNode& node);

    /// Takes over those of `other` that were made after `serial`.
    void adopt(TLooseParts& other, quint64 serial);

private:
    std::list<TNode*> m_nodes;
};

} // namespace TechPlot
