#pragma once

#include "core/signal1d.h"

#include <memory>
#include <utility>

namespace algo::core {

/// A signal computed from another one at construction, and read like any signal from then on.
///
/// Keeps its input alive.
template <class Scalar, class Values>
class Filter : public Signal1D<Scalar, Values> {
public:
    using SignalPointer = std::shared_ptr<const Signal1D<Scalar, Values>>;

    /// As many zeros as `input` has points.
    explicit Filter(SignalPointer input)
        : Signal1D<Scalar, Values>(input->size()), m_input(std::move(input)) {}

    const SignalPointer& input() const { return m_input; }

private:
    SignalPointer m_input;
};

} // namespace algo::core
