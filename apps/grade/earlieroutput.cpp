#include "earlieroutput.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <ostream>
#include <stdexcept>
#include <utility>

namespace grade {

EarlierOutput::EarlierOutput(std::string path, int output, std::ostream& notes)
    : m_path(std::move(path)), m_output(output), m_notes(notes) {
    errno = 0;
    m_stream.open(m_path, std::ios::binary);
    if (!m_stream && errno == ENOENT) {
        m_notes << m_path << ": there is no such file yet, so nothing counts as done.\n";
        return;
    }
    if (!m_stream) {
        throw std::runtime_error(m_path + ": the file can't be opened (" + std::strerror(errno) +
                                 "); check the path and its permissions.");
    }
    m_appended = isOutput();
    if (m_appended) {
        lock();
    }
}

bool EarlierOutput::isOutput() const {
    struct stat file {};
    struct stat output {};
    const bool same = m_output >= 0 && ::stat(m_path.c_str(), &file) == 0 &&
                      ::fstat(m_output, &output) == 0 && S_ISREG(file.st_mode) &&
                      file.st_dev == output.st_dev && file.st_ino == output.st_ino;
    if (same && (::fcntl(m_output, F_GETFL) & O_APPEND) == 0) {
        throw std::runtime_error(m_path + ": the output would write over this file; append to it, with >> in "
                                          "place of >.");
    }
    return same;
}

void EarlierOutput::lock() const {
    struct flock whole {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    if (::fcntl(m_output, F_SETLK, &whole) == 0) {
        return;
    }
    // Some file systems of clusters know no locks; there the run goes on without.
    if (errno == EACCES || errno == EAGAIN) {
        throw std::runtime_error(m_path +
                                 ": another vorn-grade is appending to this file; wait for its end, or "
                                 "give each run a file of its own.");
    }
}

DoneInputs EarlierOutput::read(const gradereport::GradeSettings& settings, std::string_view version) {
    if (!m_stream.is_open()) {
        return {};
    }
    DoneLines lines = readDoneLines(m_stream, m_path, settings, version);
    if (lines.tornLine != 0) {
        mend(lines);
    }
    return std::move(lines.inputs);
}

void EarlierOutput::mend(const DoneLines& lines) const {
    m_notes << m_path << ", line " << lines.tornLine
            << ": the last line is torn, as a stopped run leaves it, and doesn't count as done";
    if (!m_appended) {
        m_notes << ".\n";
        return;
    }
    if (::ftruncate(m_output, static_cast<off_t>(lines.wholeBytes)) != 0) {
        m_notes << ".\n";
        throw std::runtime_error(m_path + ": the torn line can't be cut off (" + std::strerror(errno) +
                                 "), and the output would be glued to it; take it out, or write elsewhere.");
    }
    m_notes << "; it was cut off.\n";
}

} // namespace grade
