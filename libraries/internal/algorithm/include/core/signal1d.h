#pragma once

#include "core/algomath.h"
#include "core/conversions.h"
#include "core/exception.h"
#include "core/point.h"
#include "core/scalarfunction1d.h"
#include "core/signaliterator.h"
#include "core/simplescalfunctions.h"
#include "core/tostring.h"

#include <cstddef>
#include <cstdint>
#include <istream>
#include <memory>
#include <ostream>
#include <string>
#include <utility>

namespace algo::core {

/// A sampled curve that is also a scalar function of its abscissa.
///
/// Abscissae and ordinates are two arrays of equal length, owned by value; the abscissae are expected
/// to ascend and nobody checks. `evaluate` remembers the interval it found, so a const signal must not
/// be evaluated from two threads at once. Signals travel as shared pointers: `begin`, `end` and
/// `write` raise `std::bad_weak_ptr` on one held otherwise. Every index is checked and raises.
template <class Scalar, class Values>
class Signal1D : public ScalarFunction1D<Scalar>,
                 public std::enable_shared_from_this<Signal1D<Scalar, Values>> {
public:
    using PointType = Point<Scalar, Values>;
    using Iterator = SignalIterator<Scalar, Values>;

    /// `n` zeros, with no domain.
    explicit Signal1D(std::uint64_t n) { setSize(n); }

    /// Samples from two callables that take an index; `order` is that of the interpolation, 1 or 2.
    /// Raises where there is no sample to take a domain from.
    template <class XAt, class YAt>
    Signal1D(std::uint64_t n, const XAt& xAt, const YAt& yAt, int order);

    Scalar evaluate(Scalar x) const override;
    virtual std::uint64_t size() const { return m_pointCount; }

    /// Lines of text: the full name, the count, then abscissa and ordinate of each point, with the
    /// stream's own number format.
    virtual void write(std::ostream& stream) const;

    /// Reads what `write` wrote, after any empty lines. At the end of the stream nothing happens; where
    /// the text can't be read, the stream's fail bit is set. Either way the signal stays as it was.
    virtual void read(std::istream& stream);

    /// Exchanges samples and search state, not the names and not the domain.
    virtual void swap(Signal1D& other);

    /// Replaces the samples by `n` zeros and leaves domain, names and search state alone.
    void setSize(std::uint64_t n);

    /// Takes the domain from the first and the last point; raises without points.
    void setDomainFromPoints();

    /// The sample or point of an index, counted from 0; raise for one that is not below `size()`.
    Scalar X(std::uint64_t i) const;
    Scalar Y(std::uint64_t i) const;
    PointType at(std::uint64_t i) const;
    PointType first() const { return pointAt(0); }
    PointType last() const { return pointAt(static_cast<std::int32_t>(size()) - 1); }

    void setNames(const std::string& prefix, const std::string& name);
    std::string fullName() const { return m_prefix + "." + m_name; }
    const std::string& prefix() const { return m_prefix; }
    const std::string& name() const { return m_name; }

    /// The points from the last one at or before `x1` up to, and without, an upper one near `x2`.
    ///
    /// The upper index is estimated from the mean spacing and only ever moves up, so the result may
    /// reach a little beyond `x2`; beyond the end it drops the last point. Results depend on both.
    /// Raises when nothing is left; an `x2` well below `x1` is the vector's length error.
    std::shared_ptr<Signal1D> extract(Scalar x1, Scalar x2) const;

    /// On the line through the points at `index` and behind it; the last ordinate where none is behind.
    Scalar interpolateLinear(Scalar x, std::uint64_t index) const;
    /// On the parabola through three points from `index` on, near the end through the last three; of two
    /// points on their line.
    Scalar interpolateQuadratic(Scalar x, std::uint64_t index) const;

    Iterator begin() const { return Iterator(Iterator::everyPoint, at(0), false, this->shared_from_this()); }
    Iterator end() const { return Iterator(Iterator::everyPoint, {}, true, this->shared_from_this()); }

    const Values& xValues() const { return m_xValues; }
    const Values& yValues() const { return m_yValues; }

protected:
    Values& xStorage() { return m_xValues; }
    Values& yStorage() { return m_yValues; }

    /// Makes this signal's samples those of `other`, point for point, with the domain they span.
    void copyPoints(const Signal1D& other);

    /// The same, and leaves `other` with the samples that were here.
    void takePoints(Signal1D& other);

    /// First part of a name line to the prefix, second to the name; a missing one stays empty.
    void setNamesFromLine(const std::string& line);

private:
    PointType pointAt(std::int32_t index) const {
        const auto i = static_cast<std::uint64_t>(std::int64_t{index});
        return {X(i), Y(i), index};
    }
    std::uint64_t findInterval(Scalar x) const;
    std::int32_t lowerIndex(Scalar x1, Scalar step) const;
    std::int32_t upperIndex(Scalar x2, Scalar step) const;
    Scalar quadraticFrom(Scalar x, std::uint64_t i) const;

    Values m_xValues;
    Values m_yValues;
    std::uint64_t m_pointCount = 0;
    std::string m_prefix;
    std::string m_name;
    mutable std::uint64_t m_lastIndex = 0;
    mutable Scalar m_lastX = notEvaluated;
    std::int64_t m_interpolationOrder = 2;

    static constexpr Scalar notEvaluated = 1.23456789;
};

template <class Scalar, class Values>
template <class XAt, class YAt>
Signal1D<Scalar, Values>::Signal1D(std::uint64_t n, const XAt& xAt, const YAt& yAt, int order)
    : m_interpolationOrder(order) {
    setSize(n);
    if (m_xValues.size() != m_pointCount || m_yValues.size() != m_pointCount) {
        ALGO_RAISE("Problem with size of vectors");
    }
    for (std::uint64_t i = 0; i < n; ++i) {
        m_xValues[i] = xAt(i);
        m_yValues[i] = yAt(i);
    }
    setDomainFromPoints();
}

template <class Scalar, class Values>
void Signal1D<Scalar, Values>::setSize(std::uint64_t n) {
    Values xZeros(n, 0.0);
    Values yZeros(n, 0.0);
    m_xValues = std::move(xZeros);
    m_yValues = std::move(yZeros);
    m_pointCount = n;
}

template <class Scalar, class Values>
void Signal1D<Scalar, Values>::setDomainFromPoints() {
    const Scalar xmax = last().x; // the last point first: without points, its index is what is reported
    const Scalar xmin = first().x;
    this->setDomain(xmin, xmax);
}

template <class Scalar, class Values>
Scalar Signal1D<Scalar, Values>::X(std::uint64_t i) const {
    if (i >= m_pointCount) {
        ALGO_RAISE("try to get X with an index out of signal's data range (size=" + toString(size()) +
                   ", index=" + toString(i) + ")");
    }
    return m_xValues[i];
}

template <class Scalar, class Values>
Scalar Signal1D<Scalar, Values>::Y(std::uint64_t i) const {
    if (i >= m_pointCount) {
        ALGO_RAISE("try to get Y with an index out of signal's data range (size=" + toString(size()) +
                   ", index=" + toString(i) + ")");
    }
    return m_yValues[i];
}

template <class Scalar, class Values>
auto Signal1D<Scalar, Values>::at(std::uint64_t i) const -> PointType {
    if (i >= m_pointCount) {
        ALGO_RAISE("try to get an index out of signal's data range; i=" + toString(i) +
                   "; size=" + toString(size()));
    }
    return {m_xValues[i], m_yValues[i], lowInt32(i)};
}

template <class Scalar, class Values>
void Signal1D<Scalar, Values>::setNames(const std::string& prefix, const std::string& name) {
    m_prefix = prefix;
    m_name = name;
}

template <class Scalar, class Values>
void Signal1D<Scalar, Values>::copyPoints(const Signal1D& other) {
    m_xValues = other.m_xValues;
    m_yValues = other.m_yValues;
    m_pointCount = other.size();
    if (m_pointCount != 0) {
        setDomainFromPoints();
    }
}

template <class Scalar, class Values>
void Signal1D<Scalar, Values>::takePoints(Signal1D& other) {
    m_xValues.swap(other.m_xValues);
    m_yValues.swap(other.m_yValues);
    std::swap(m_pointCount, other.m_pointCount);
    if (m_pointCount != 0) {
        setDomainFromPoints();
    }
}

template <class Scalar, class Values>
Scalar Signal1D<Scalar, Values>::evaluate(Scalar x) const {
    if (m_lastX == notEvaluated) {
        m_lastX = X(0);
        m_lastIndex = 0;
    }
    const std::uint64_t n = size();
    const bool clamps = this->outOfDomainPolicy() == 1;
    if (x > X(n - 1) && clamps) {
        return Y(n - 1);
    }
    if (x < X(0) && clamps) {
        return Y(0);
    }
    if (x > X(n - 1) || x < X(0)) {
        // The last abscissa stands twice; readers of these messages know them so.
        ALGO_RAISE("x value out of bounds. Signal's range = [" + toString(X(0)) + ":" + toString(X(n - 1)) +
                   "]; x=" + toString(X(n - 1)));
    }
    m_lastIndex = findInterval(x);
    m_lastX = x;
    if (m_interpolationOrder == 1) {
        return interpolateLinear(x, m_lastIndex);
    }
    if (m_interpolationOrder == 2) {
        return interpolateQuadratic(x, m_lastIndex);
    }
    ALGO_RAISE("interpolation order can only be 1 or 2 (actual=" + toString(m_interpolationOrder) + ")");
}

/// The index of the interval of `x`, walked to from where the last call ended. One step below index 0
/// wraps to the largest index, which both interpolators accept.
template <class Scalar, class Values>
std::uint64_t Signal1D<Scalar, Values>::findInterval(Scalar x) const {
    std::uint64_t i = m_lastIndex;
    if (i >= size()) {
        i = size() - 1;
    }
    if (x < m_lastX) {
        while (x < m_xValues[i] && i != 0) {
            --i;
        }
    }
    if (x > m_lastX) {
        while (i < size() && !(m_xValues[i] >= x)) {
            ++i;
        }
        if (i < size()) {
            --i;
        }
    }
    return i;
}

template <class Scalar, class Values>
Scalar Signal1D<Scalar, Values>::interpolateLinear(Scalar x, std::uint64_t i) const {
    const std::uint64_t n = size();
    if (i < n && x == m_xValues[i]) {
        return m_yValues[i];
    }
    // The line is built anew for each call, not kept as a weighted mean: the last bit depends on it.
    const auto onLine = [this, x](std::uint64_t k) {
        return Line<Scalar, Values>(m_xValues[k], m_yValues[k], m_xValues[k + 1], m_yValues[k + 1])
            .evaluate(x);
    };
    const bool hasNext = i < n - 1;
    if (hasNext && n != 0 && x == m_xValues[i + 1]) {
        return m_yValues[i + 1];
    }
    if (n == 2 && m_xValues[0] != m_xValues[1]) {
        return onLine(0);
    }
    if (hasNext && n != 0 && m_xValues[i] != m_xValues[i + 1]) {
        return onLine(i);
    }
    if (hasNext) {
        ALGO_RAISE("problem in interpolateLinear: index = " + toString(i) + "; size = " + toString(n) +
                   "; x = " + toString(x));
    }
    return Y(n - 1);
}

template <class Scalar, class Values>
Scalar Signal1D<Scalar, Values>::interpolateQuadratic(Scalar x, std::uint64_t i) const {
    const std::uint64_t n = size();
    const std::uint64_t j = i + 1;
    if (n == 2) {
        return Line<Scalar, Values>(X(0), Y(0), X(1), Y(1)).evaluate(x);
    }
    if (j == 0) {
        return quadraticFrom(x, 0);
    }
    if (n != 0 && j < n - 1) {
        return quadraticFrom(x, i);
    }
    if (j == n - 1 && j > 1) {
        return quadraticFrom(x, i - 1);
    }
    if (j == n && j >= 3) {
        return quadraticFrom(x, i - 2);
    }
    if (j >= n && this->outOfDomainPolicy() == 0) {
        ALGO_RAISE("Can not extrapolate (index = " + toString(j) + "; size = " + toString(n) + ")");
    }
    if (j >= n && this->outOfDomainPolicy() == 1) {
        return Y(n - 1);
    }
    ALGO_RAISE("problem in interpolateQuadratic: index = " + toString(j) + "; size = " + toString(n) +
               "; x = " + toString(x));
}

/// The parabola through the points `i`, `i + 1` and `i + 2`.
template <class Scalar, class Values>
Scalar Signal1D<Scalar, Values>::quadraticFrom(Scalar x, std::uint64_t i) const {
    return Math<Values>::interpolateQuadratic(x, X(i), Y(i), X(i + 1), Y(i + 1), X(i + 2), Y(i + 2));
}

template <class Scalar, class Values>
std::shared_ptr<Signal1D<Scalar, Values>> Signal1D<Scalar, Values>::extract(Scalar x1, Scalar x2) const {
    if (size() == 0) {
        ALGO_RAISE("Try to extract a signal from a 0 point signal");
    }
    // The divisor is the number of points, not of intervals; the upper index depends on it.
    const Scalar step = (X(size() - 1) - X(0)) / static_cast<Scalar>(size());
    const std::int32_t a = lowerIndex(x1, step);
    const std::int32_t b = upperIndex(x2, step);
    const auto count = static_cast<std::uint64_t>(std::int64_t{b} - std::int64_t{a});
    const auto first = static_cast<std::uint64_t>(a);
    const auto xAt = [this, first](std::uint64_t i) { return m_xValues[first + i]; };
    const auto yAt = [this, first](std::uint64_t i) { return m_yValues[first + i]; };
    auto result = std::make_shared<Signal1D>(count, xAt, yAt, 2);
    result->setNames(m_prefix, m_name + "_extracted");
    result->setOutOfDomainPolicy(1);
    return result;
}

/// The last point at or before `x1`, or 0.
template <class Scalar, class Values>
std::int32_t Signal1D<Scalar, Values>::lowerIndex(Scalar x1, Scalar step) const {
    const std::int32_t lastIndex = lowInt32(size() - 1);
    std::int32_t a = truncateToInt32((x1 - X(0)) / step);
    if (a < 1) {
        a = 0;
    }
    if (a > lastIndex) {
        a = lastIndex; // an abscissa behind the end has no sample to compare with
    }
    const auto xOf = [this](std::int32_t i) { return m_xValues[static_cast<std::uint64_t>(i)]; };
    while (a < lastIndex && xOf(a + 1) < x1) {
        ++a;
    }
    while (a > -1 && x1 < xOf(a)) {
        --a;
    }
    return a < 0 ? 0 : a;
}

/// A point at or behind `x2`: the estimate, moved up where it is too low and never moved down, so a
/// point further on than the first one behind `x2` stays. A negative estimate wraps to the end.
template <class Scalar, class Values>
std::int32_t Signal1D<Scalar, Values>::upperIndex(Scalar x2, Scalar step) const {
    const std::uint64_t lastIndex = size() - 1;
    std::uint64_t b = truncateToUInt64((x2 - X(0)) / step);
    if (b >= lastIndex) {
        b = lastIndex;
    }
    while (b < lastIndex && m_xValues[b] < x2) {
        ++b;
    }
    return lowInt32(b);
}

template <class Scalar, class Values>
void Signal1D<Scalar, Values>::swap(Signal1D& other) {
    m_xValues.swap(other.m_xValues);
    m_yValues.swap(other.m_yValues);
    std::swap(m_pointCount, other.m_pointCount);
    std::swap(m_lastX, other.m_lastX);
    std::swap(m_lastIndex, other.m_lastIndex);
    std::swap(m_interpolationOrder, other.m_interpolationOrder);
}

template <class Scalar, class Values>
void Signal1D<Scalar, Values>::write(std::ostream& stream) const {
    stream << fullName() << std::endl;
    stream << size() << std::endl;
    const Iterator stop = end();
    for (Iterator point = begin(); point != stop; ++point) {
        stream << point->x << " " << point->y << std::endl;
    }
}

template <class Scalar, class Values>
void Signal1D<Scalar, Values>::setNamesFromLine(const std::string& line) {
    const std::size_t dot = line.find('.');
    if (dot == std::string::npos) {
        setNames(line, {});
        return;
    }
    const std::size_t nextDot = line.find('.', dot + 1);
    const std::size_t length = nextDot == std::string::npos ? nextDot : nextDot - dot - 1;
    setNames(line.substr(0, dot), line.substr(dot + 1, length));
}

template <class Scalar, class Values>
void Signal1D<Scalar, Values>::read(std::istream& stream) {
    std::string line;
    while (line.empty() && std::getline(stream, line)) {
    }
    if (line.empty()) {
        return;
    }
    int count = 0;
    stream >> count;
    // Grown with what is really there: a count alone must not ask for gigabytes.
    Values xValues;
    Values yValues;
    for (int i = 0; i < count && stream; ++i) {
        Scalar x = 0.0;
        Scalar y = 0.0;
        stream >> x >> y;
        xValues.push_back(x);
        yValues.push_back(y);
    }
    if (stream.fail() || count < 0) {
        stream.setstate(std::ios::failbit);
        return;
    }
    setNamesFromLine(line);
    m_xValues = std::move(xValues);
    m_yValues = std::move(yValues);
    m_pointCount = static_cast<std::uint64_t>(count);
    if (count != 0) {
        setDomainFromPoints();
    }
}

template <class Scalar, class Values>
SignalIterator<Scalar, Values>& SignalIterator<Scalar, Values>::operator++() {
    const std::uint64_t n = m_signal->size();
    auto i = static_cast<std::uint64_t>(m_point.index);
    if (n - i < 2) {
        m_atEnd = true;
        return *this;
    }
    m_point = m_signal->at(++i);
    while (!m_step(m_point)) {
        if (i == n - 1) {
            m_atEnd = true;
            return *this;
        }
        m_point = m_signal->at(++i);
    }
    return *this;
}

template <class Scalar, class Values>
SignalIterator<Scalar, Values>& SignalIterator<Scalar, Values>::operator--() {
    auto i = static_cast<std::uint64_t>(m_point.index);
    if (i == 0) {
        m_atEnd = true;
        return *this;
    }
    m_point = m_signal->at(--i);
    while (!m_step(m_point)) {
        if (i == 0) {
            m_atEnd = true;
            return *this;
        }
        m_point = m_signal->at(--i);
    }
    return *this;
}

template <class Scalar, class Values>
SignalIterator<Scalar, Values> SignalIterator<Scalar, Values>::operator+(std::uint64_t n) const {
    SignalIterator moved = *this;
    const std::uint64_t target = static_cast<std::uint64_t>(m_point.index) + n;
    if (target >= m_signal->size()) {
        moved.m_atEnd = true;
        return moved;
    }
    moved.m_point = m_signal->at(target);
    return moved;
}

template <class Scalar, class Values>
SignalIterator<Scalar, Values> SignalIterator<Scalar, Values>::search(const SignalIterator& from,
                                                                      bool backward,
                                                                      const SignalPointer& signal) {
    m_point = from.m_point;
    m_signal = from.m_signal;
    m_atEnd = false;
    if (signal) {
        m_signal = signal;
        m_point = m_signal->at(static_cast<std::uint64_t>(m_point.index));
    }
    if (m_step(m_point)) {
        return *this;
    }
    return backward ? --*this : ++*this;
}

} // namespace algo::core
