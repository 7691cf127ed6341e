#pragma once

#include "core/point.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>

namespace algo::core {

template <class Scalar, class Values>
class Signal1D;

/// A walk over a signal's points that stops on those its step predicate accepts.
///
/// Shares the signal, so a kept iterator keeps its signal alive. A step that finds nothing leaves
/// the iterator on the last point it looked at with the end flag set. An empty predicate raises
/// `std::bad_function_call` when it is asked.
template <class Scalar, class Values>
class SignalIterator {
public:
    using PointType = Point<Scalar, Values>;
    using SignalPointer = std::shared_ptr<const Signal1D<Scalar, Values>>;
    using Predicate = std::function<bool(const PointType&)>;

    /// An iterator not yet on a signal; `search` places it.
    explicit SignalIterator(Predicate step) : m_step(std::move(step)) {}

    SignalIterator(Predicate step, const PointType& point, bool atEnd, SignalPointer signal)
        : m_step(std::move(step)), m_point(point), m_atEnd(atEnd), m_signal(std::move(signal)) {}

    /// The predicate that stops on every point.
    static bool everyPoint(const PointType&) { return true; }

    const PointType& operator*() const { return m_point; }
    const PointType* operator->() const { return &m_point; }
    bool atEnd() const { return m_atEnd; }
    const SignalPointer& signal() const { return m_signal; }

    /// This walk, starting from where `from` stands; no predicate is asked.
    SignalIterator placedAt(const SignalIterator& from) const {
        return SignalIterator(m_step, from.m_point, from.m_atEnd, from.m_signal);
    }

    SignalIterator& operator++();
    SignalIterator& operator--();

    /// A copy moved by `n` points, with no predicate asked. Past the end, the copy keeps its point and
    /// has the end flag set.
    SignalIterator operator+(std::uint64_t n) const;

    /// Places this iterator on the point of `from`, or on the same index of `signal` where that is not
    /// empty, and walks on from there unless the predicate accepts that very point. Returns a copy.
    SignalIterator search(const SignalIterator& from, bool backward, const SignalPointer& signal = {});

    /// Equal indices are equal points; two ends are equal wherever they stand.
    friend bool operator==(const SignalIterator& a, const SignalIterator& b) {
        return a.m_atEnd == b.m_atEnd && (a.m_atEnd || a.m_point.index == b.m_point.index);
    }
    friend bool operator!=(const SignalIterator& a, const SignalIterator& b) { return !(a == b); }

private:
    Predicate m_step;
    Predicate m_accept = everyPoint; // carried along and never asked
    PointType m_point;
    bool m_atEnd = false;
    SignalPointer m_signal;
};

} // namespace algo::core

#include "core/signal1d.h" // completes Signal1D and defines the walks
