#pragma once

#include "core/signal1d.h"

namespace algo::core {

/// The level of signals that hold samples of their own, in contrast to filters, which compute theirs.
template <class Scalar, class Values>
class Signal1DRaw : public Signal1D<Scalar, Values> {
public:
    using Signal1D<Scalar, Values>::Signal1D;
};

} // namespace algo::core
