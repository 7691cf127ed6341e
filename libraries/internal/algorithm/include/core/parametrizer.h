#pragma once

#include "core/exception.h"
#include "core/tostring.h"

#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

namespace algo::core {

/// A named tuning value of no particular type.
///
/// There is no virtual destructor: a parameter is destroyed only through the shared pointer that made
/// it, which knows the concrete type.
class ParameterBase {
public:
    explicit ParameterBase(std::string parameterName) : name(std::move(parameterName)) {}

    virtual std::string valueAsString() const { return "nil"; }
    // By value in the interface: a derived class may keep the text.
    // NOLINTNEXTLINE(performance-unnecessary-value-param)
    virtual void setFromString(std::string) {}

    std::string name; ///< the key of the parameter
};

/// Raised when a validator refuses a value. The text is plain, with no function and no file: it speaks
/// to whoever typed the value.
class ErrorParameter : public Exception<std::runtime_error> {
public:
    explicit ErrorParameter(const ParameterBase& refused)
        : Exception<std::runtime_error>("Bad parameter"), parameter(refused) {}

    ParameterBase parameter; ///< the name of the refused parameter, and nothing of its value
};

/// A value with the predicate that says which values are legal. The initial value isn't tested.
template <class Scalar>
class Parameter final : public ParameterBase {
public:
    using Validator = std::function<bool(const Scalar&)>;

    Parameter(std::string parameterName, Scalar initial)
        : Parameter(std::move(parameterName), initial, [](const Scalar&) { return true; }) {}
    Parameter(std::string parameterName, Scalar initial, Validator legal)
        : ParameterBase(std::move(parameterName)), validator(std::move(legal)), value(initial) {}

    std::string valueAsString() const override { return toString(value); }

    /// Text that is no number gives 0. A refused value raises `ErrorParameter` and the old one stays;
    /// an empty validator raises `std::bad_function_call` with the new value in place.
    void setFromString(std::string text) override {
        const Scalar old = value;
        value = std::strtod(text.c_str(), nullptr);
        if (!validator(value)) {
            value = old;
            throw ErrorParameter(*this);
        }
    }

    Validator validator;
    Scalar value;
    std::string label;
};

/// A set of parameters by name, each with a description; names are compared exactly.
template <class Scalar>
class ParametersBase {
public:
    ParametersBase() = default;
    ParametersBase(const ParametersBase&) = delete;
    ParametersBase& operator=(const ParametersBase&) = delete;
    virtual ~ParametersBase() = default;

    /// Raises when the name is taken; the set stays as it was.
    void addParameter(std::shared_ptr<ParameterBase> parameter, std::string description) {
        const std::string& name = parameter->name;
        if (m_parameters.count(name) != 0) {
            ALGO_RAISE("Parameters of name " + name + " already defined");
        }
        m_descriptions[name] = std::move(description);
        m_parameters.emplace(name, std::move(parameter));
    }

    /// The value itself, which later calls of `setValue` change. Raises for an unknown name.
    template <class Value>
    // NOLINTNEXTLINE(performance-unnecessary-value-param) the signature that callers know
    const Value& getValue(std::string name) const {
        const auto found = m_parameters.find(name);
        if (found == m_parameters.end()) {
            ALGO_RAISE("Try to get an undefined parameter (" + name + ")");
        }
        return static_cast<const Parameter<Value>&>(*found->second).value;
    }

    /// Sets a value through its text form, since the base knows no type: it is rounded to six
    /// significant digits. Raises for an unknown name, and `ErrorParameter` for a refused value.
    template <class Value>
    void setValue(const std::string& name, const Value& value) {
        const auto found = m_parameters.find(name);
        if (found == m_parameters.end()) {
            ALGO_RAISE("Try to set an undefined parameter (" + name + ")");
        }
        found->second->setFromString(toString(value));
    }

    const std::map<std::string, std::string>& descriptions() const { return m_descriptions; }

private:
    std::map<std::string, std::shared_ptr<ParameterBase>> m_parameters;
    std::map<std::string, std::string> m_descriptions;
};

} // namespace algo::core
