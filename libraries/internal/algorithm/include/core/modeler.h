#pragma once

namespace algo::core {

/// Abstract base of what builds a `Model` from data.
template <class Scalar, class Values, class Model>
class Modeler {
public:
    virtual ~Modeler() = default;

protected:
    Modeler() = default;
    Modeler(const Modeler&) = default;
    Modeler& operator=(const Modeler&) = default;
};

} // namespace algo::core
