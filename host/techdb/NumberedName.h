#pragma once

#include <QString>

#include <functional>

/// Names told apart by a number behind them: "X", "X (2)", "X (3)"...
namespace TechDB::NumberedName {

/// The name without its number.
QString base(const QString& name);

/// The name itself, or its base with the first number, from 2 on, for which `isTaken` is false.
QString firstFree(const QString& name, const std::function<bool(const QString& candidate)>& isTaken);

} // namespace TechDB::NumberedName
