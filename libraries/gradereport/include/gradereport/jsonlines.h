#pragma once

#include "gradereport/graderecord.h"

#include <iosfwd>
#include <string>

namespace gradereport {

/// Writes one JSON object a line, each complete at its line feed. Numbers are in the shortest form that reads
/// back to the same double, null if not finite; text is valid UTF-8 whatever the bytes of a file name. Holds
/// nothing of a record after `add`. The stream outlives the writer; its state tells whether writing worked.
class JsonLines {
public:
    JsonLines(std::ostream& out, std::string version);

    void add(const GradeRecord& record);
    void addFailure(const FailureRecord& failure);

private:
    std::ostream& m_out;
    std::string m_version;
};

} // namespace gradereport
