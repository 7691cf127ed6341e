#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace rockeval {

/// A file that can't be used. what() is one sentence: the file, the line, what happened and what to do
/// next. Lines count from 1; line 0 means that the file as a whole is refused and none is named.
class ReadError : public std::runtime_error {
public:
    /// `problem` says what happened and what to do next, without a full stop.
    ReadError(const std::string& fileName, std::size_t line, const std::string& problem)
        : std::runtime_error(sentence(fileName, line, problem)), m_fileName(fileName), m_line(line),
          m_problem(problem) {}

    const std::string& fileName() const { return m_fileName; }
    std::size_t line() const { return m_line; }
    const std::string& problem() const { return m_problem; }

private:
    static std::string sentence(const std::string& fileName, std::size_t line, const std::string& problem) {
        const std::string place = line == 0 ? fileName : fileName + ", line " + std::to_string(line);
        return place + ": " + problem + ".";
    }

    std::string m_fileName;
    std::size_t m_line;
    std::string m_problem;
};

} // namespace rockeval
