#include "rockeval/resulttable.h"

#include "rockeval/number.h"
#include "text.h"

namespace rockeval {

const std::string* ResultTable::find(std::string_view section, std::string_view key) const {
    for (const ResultSection& candidate : sections) {
        if (!equalIgnoringCase(candidate.name, section))
            continue;
        for (const ResultEntry& entry : candidate.entries) {
            if (equalIgnoringCase(entry.key, key))
                return &entry.value;
        }
    }
    return nullptr;
}

std::optional<double> ResultTable::number(std::string_view section, std::string_view key) const {
    const std::string* const value = find(section, key);
    return value != nullptr ? parseNumber(*value) : std::nullopt;
}

} // namespace rockeval
