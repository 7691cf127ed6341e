#pragma once

#include "chromato/chromatogram.h"
#include "chromato/chromatograph.h"
#include "core/modeler.h"
#include "log/node.h"

#include <memory>
#include <utility>

namespace algo::chromato {

/// Abstract base of what finds peaks on a signal, with the description of the instrument at hand.
template <class Scalar, class Values, class Noise>
class PeaksDetector : public core::Modeler<Scalar, Values, Chromatogram<Scalar, Values>> {
public:
    using ChromatogramPointer = std::shared_ptr<Chromatogram<Scalar, Values>>;
    using SignalPointer = std::shared_ptr<const core::Signal1D<Scalar, Values>>;

    /// The peaks of `signal`; `log` may be null.
    virtual ChromatogramPointer detect(SignalPointer signal, log::Node* log) const = 0;

    const Chromatograph<Scalar, Values, Noise>& chromatograph() const { return m_chromatograph; }

protected:
    explicit PeaksDetector(Chromatograph<Scalar, Values, Noise> chromatograph)
        : m_chromatograph(std::move(chromatograph)) {}

private:
    Chromatograph<Scalar, Values, Noise> m_chromatograph;
};

} // namespace algo::chromato
