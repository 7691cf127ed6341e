#pragma once

#include "doneinputs.h"

#include <fstream>
#include <iosfwd>
#include <string>

namespace grade {

/// The JSON lines that an earlier run left in a file. Where this run's output is appended to that very file,
/// it is locked as long as this object lives, for two runs that repair and write one file would spoil it.
class EarlierOutput {
public:
    /// Opens the file; one that doesn't exist counts as empty, with a note on `notes`. `output` is the
    /// descriptor this run writes to, -1 where it has none. Throws `std::runtime_error` with a sentence
    /// where the file can't be opened, the output would write over it, or another run appends to it.
    EarlierOutput(std::string path, int output, std::ostream& notes);

    /// The inputs that need not be graded again with these settings by this version. A torn last line, as a
    /// stopped run leaves it, is told on `notes`, and cut off where lines are to be appended to it. Throws as
    /// `readDoneLines` does. Called once.
    [[nodiscard]] DoneInputs read(const gradereport::GradeSettings& settings, std::string_view version);

private:
    [[nodiscard]] bool isOutput() const;
    void lock() const;
    void mend(const DoneLines& lines) const;

    std::string m_path;
    int m_output;
    std::ostream& m_notes;
    std::ifstream m_stream; ///< open to the end: closing any descriptor of the file would give up the lock
    bool m_appended = false;
};

} // namespace grade
