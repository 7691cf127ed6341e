#pragma once

#include "core/conversions.h"
#include "core/signal1draw.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <istream>
#include <memory>
#include <ostream>
#include <string>
#include <utility>

namespace algo::core {

/// A signal on an even grid: abscissa `i` is `i * dx + x0`, stored once.
///
/// `evaluate` finds its interval by arithmetic, always interpolates to the second order, and raises
/// where a plain signal clamps; it neither reads nor writes the search state.
template <class Scalar, class Values>
class Signal1DIsoSampling : public Signal1DRaw<Scalar, Values> {
    using Base = Signal1DRaw<Scalar, Values>;

public:
    using Generator = std::function<Scalar(const std::size_t&)>;

    /// `n` samples with the ordinates that `generator` gives for their indices.
    Signal1DIsoSampling(Scalar x0, Scalar dx, std::uint64_t n, const Generator& generator)
        : Base(n), m_x0(x0), m_dx(dx) {
        fillAbscissae();
        for (std::size_t i = 0; i < n; ++i) {
            this->yStorage()[i] = generator(i);
        }
        takeDomain();
    }

    /// The ordinates of a nearly even `source` on an even grid, index for index; nothing is
    /// interpolated. `n` is 0 or the source's size, anything else raises. The step divides by the
    /// number of points, so the grid ends one step short of the source's last abscissa.
    explicit Signal1DIsoSampling(const std::shared_ptr<const Signal1D<Scalar, Values>>& source,
                                 std::uint64_t n = 0)
        : Base(source->size()), m_x0(source->X(0)) {
        const Scalar lastX = source->X(source->size() - 1);
        const std::uint64_t count = n == 0 ? source->size() : n;
        if (count != source->size()) {
            ALGO_RAISE(" n should be the same");
        }
        m_dx = (lastX - m_x0) / static_cast<Scalar>(count);
        fillAbscissae();
        this->yStorage() = source->yValues();
        takeDomain();
    }

    Scalar x0() const { return m_x0; }
    Scalar dx() const { return m_dx; }

    Scalar evaluate(Scalar x) const override {
        const std::uint64_t index = truncateToUInt64((x - m_x0) / m_dx);
        if (index >= this->size()) {
            ALGO_RAISE("can not extrapolate at X=" + toString(x) + ": index=" + toString(index) +
                       ", size=" + toString(this->size()));
        }
        return this->interpolateQuadratic(x, index);
    }

    /// Lines of text: the full name; count, first abscissa and step; then one ordinate a line.
    void write(std::ostream& stream) const override {
        stream << this->fullName() << std::endl;
        stream << this->size() << " " << m_x0 << " " << m_dx << std::endl;
        for (std::uint64_t i = 0; i < this->size(); ++i) {
            stream << this->Y(i) << std::endl;
        }
    }

    /// Reads what `write` wrote, behind exactly one line that is dropped: the rest of the one on which
    /// the stream stood. Where the text can't be read, the stream's fail bit is set and the signal stays.
    void read(std::istream& stream) override;

private:
    void fillAbscissae() {
        for (std::uint64_t i = 0; i < this->size(); ++i) {
            this->xStorage()[i] = static_cast<Scalar>(i) * m_dx + m_x0;
        }
    }
    void takeDomain() {
        if (this->size() != 0) {
            this->setDomainFromPoints();
        }
    }
    static std::string readLine(std::istream& stream);

    Scalar m_x0;
    Scalar m_dx = 0.0;
};

/// One line without its end, which is LF, CR, or CR LF. At the end of the stream: the fail bit.
template <class Scalar, class Values>
std::string Signal1DIsoSampling<Scalar, Values>::readLine(std::istream& stream) {
    std::string line;
    char c = '\0';
    bool any = false;
    while (stream.get(c)) {
        any = true;
        if (c == '\n') {
            return line;
        }
        if (c == '\r') {
            if (stream.peek() == '\n') {
                stream.ignore();
            }
            return line;
        }
        line += c;
    }
    if (any) {
        stream.clear(std::ios::eofbit);
    }
    return line;
}

template <class Scalar, class Values>
void Signal1DIsoSampling<Scalar, Values>::read(std::istream& stream) {
    readLine(stream);
    const std::string names = readLine(stream);
    int count = 0;
    Scalar x0 = 0.0;
    Scalar dx = 0.0;
    stream >> count >> x0 >> dx;
    // Grown with what is really there: a count alone must not ask for gigabytes.
    Values yValues;
    for (int i = 0; i < count && stream; ++i) {
        Scalar y = 0.0;
        stream >> y;
        yValues.push_back(y);
    }
    if (stream.fail() || count < 0) {
        stream.setstate(std::ios::failbit);
        return;
    }
    this->setNamesFromLine(names);
    this->setSize(yValues.size());
    m_x0 = x0;
    m_dx = dx;
    fillAbscissae();
    this->yStorage() = std::move(yValues);
    takeDomain();
}

} // namespace algo::core
