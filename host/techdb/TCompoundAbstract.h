#pragma once

#include <QString>

/// What every compound can tell of itself.
class TCompoundAbstract {
public:
    virtual ~TCompoundAbstract();

    virtual QString compoundName() const = 0;
    /// Of its molecule ("C2H6"), empty if it isn't one.
    virtual QString formula() const = 0;

protected:
    TCompoundAbstract() = default;
    TCompoundAbstract(const TCompoundAbstract&) = default;
    TCompoundAbstract& operator=(const TCompoundAbstract&) = default;
};
