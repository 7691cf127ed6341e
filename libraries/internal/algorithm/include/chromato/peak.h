#pragma once

#include "core/signaliterator.h"

#include <cstdint>
#include <memory>
#include <utility>

namespace algo::chromato {

/// Three positions on a signal: left valley, top and right valley. A plain value that keeps its signal
/// alive.
template <class Scalar, class Values>
class Peak {
public:
    using Iterator = core::SignalIterator<Scalar, Values>;

    Peak(Iterator left, Iterator top, Iterator right, bool marked = false)
        : m_left(std::move(left)), m_right(std::move(right)), m_top(std::move(top)), m_marked(marked),
          m_signal(m_top.signal()) {}

    const Iterator& left() const { return m_left; }
    const Iterator& top() const { return m_top; }
    const Iterator& right() const { return m_right; }
    bool marked() const { return m_marked; }
    const std::shared_ptr<const core::Signal1D<Scalar, Values>>& signal() const { return m_signal; }

    /// Whether the valleys of this peak and of the one behind it cross. A shared valley is no overlap.
    bool overlaps(const Peak& next) const {
        return m_right->index > next.m_left->index && m_left->index < next.m_right->index;
    }

    /// The verdict of the quality stage: 1 reaches the height threshold, 3 stays below it. Without a
    /// meaning before that stage.
    Scalar category = 0.0;
    std::int32_t tag = -1;

private:
    Iterator m_left;
    Iterator m_right;
    Iterator m_top;
    bool m_marked;
    std::shared_ptr<const core::Signal1D<Scalar, Values>> m_signal;
};

} // namespace algo::chromato
