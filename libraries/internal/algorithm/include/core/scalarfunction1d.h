#pragma once

#include "core/exception.h"
#include "core/tostring.h"

#include <cstdint>

namespace algo::core {

/// Base of everything that gives a number for a number: its domain, and what to do outside it.
///
/// Call `operator()` for the guarded value, `evaluate` for the bare function. Equal bounds mean that
/// there is no domain, whatever `restricted` says.
template <class Scalar>
class ScalarFunction1D {
public:
    virtual ~ScalarFunction1D() = default;

    /// The function itself, with no domain test.
    virtual Scalar evaluate(Scalar x) const = 0;

    /// The value at `x`, or what `outOfDefinedDomain` says where `x` lies outside the domain.
    Scalar operator()(Scalar x) const {
        const bool outside = m_xmin != m_xmax && (x < m_xmin || x > m_xmax);
        return outside ? outOfDefinedDomain(x) : evaluate(x);
    }

    /// The value at the nearest bound, or a failure under policy 0. An `x` inside counts as above.
    Scalar outOfDefinedDomain(Scalar x) const {
        if (m_outOfDomainPolicy != 0) {
            return evaluate(m_xmin <= x ? m_xmax : m_xmin);
        }
        ALGO_RAISE("try to evaluate a function out of its domain definition. x = " + toString(x) +
                   ", xmin=" + toString(m_xmin) + ", xmax=" + toString(m_xmax));
    }

    /// Both bounds belong to it; nobody checks that they ascend.
    void setDomain(Scalar xmin, Scalar xmax) {
        m_xmin = xmin;
        m_xmax = xmax;
        m_restricted = true;
    }

    /// 1: an argument outside the domain is clamped to the nearest bound; 0: it fails.
    std::int32_t outOfDomainPolicy() const { return m_outOfDomainPolicy; }
    void setOutOfDomainPolicy(std::int32_t policy) { m_outOfDomainPolicy = policy; }

    bool restricted() const { return m_restricted; } ///< whether a domain was ever set
    Scalar xmin() const { return m_xmin; }
    Scalar xmax() const { return m_xmax; }

protected:
    ScalarFunction1D() = default;
    ScalarFunction1D(const ScalarFunction1D&) = default;
    ScalarFunction1D(ScalarFunction1D&&) noexcept = default;
    ScalarFunction1D& operator=(const ScalarFunction1D&) = default;
    ScalarFunction1D& operator=(ScalarFunction1D&&) noexcept = default;

private:
    std::int32_t m_outOfDomainPolicy = 1;
    bool m_restricted = false;
    Scalar m_xmin = 0.0;
    Scalar m_xmax = 0.0;
};

} // namespace algo::core
