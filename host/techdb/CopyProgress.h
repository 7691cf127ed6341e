#pragma once

#include <QtGlobal>

#include <functional>

namespace TechDB {

/// Is told after each step of a copy how many of how many are done.
using CopyProgress = std::function<void(qint64 done, qint64 total)>;

} // namespace TechDB
