#include "rockeval/resultreader.h"

#include "encoding.h"
#include "linecursor.h"
#include "rockeval/readbytes.h"
#include "rockeval/readerror.h"
#include "text.h"
#include "warninglist.h"

#include <unordered_set>

namespace rockeval {

namespace {

class ResultReader {
public:
    ResultReader(std::string_view text, const std::string& fileName) : m_cursor(text), m_fileName(fileName) {}

    ResultTable read() {
        while (m_cursor.next())
            readLine(m_cursor.line());
        if (!m_headerSeen) {
            throw ReadError(m_fileName, m_cursor.number(),
                            "the file ends without a section in square brackets; choose the .R00 file of a "
                            "Rock-Eval analysis");
        }
        m_table.warnings = m_warnings.take();
        return std::move(m_table);
    }

private:
    void readLine(std::string_view line) {
        if (trim(line).empty())
            return;
        if (++m_kept > maxResultLines) {
            throw ReadError(
                m_fileName, m_cursor.number(),
                "there are more than " + std::to_string(maxResultLines) +
                    " lines, so this is no result file; choose the .R00 file of a Rock-Eval analysis");
        }
        if (const std::optional<SectionHeader> header = sectionHeader(line)) {
            openSection(*header);
        } else {
            addEntry(trim(line));
        }
    }

    void openSection(const SectionHeader& header) {
        if (!header.closed)
            warn([&] { return "the section " + quoted(header.name) + " lacks its closing bracket"; });
        if (!m_sectionNames.insert(lowerCase(header.name)).second)
            warn([&] { return "the section " + quoted(header.name) + " occurs again"; });
        m_headerSeen = true;
        startSection(toUtf8(header.name));
    }

    void startSection(std::string name) {
        m_keys.clear();
        m_table.sections.push_back({std::move(name), {}, m_cursor.number()});
    }

    void addEntry(std::string_view line) {
        if (m_table.sections.empty()) {
            warn([] { return "there are lines before the first section"; });
            startSection({});
        }
        const std::size_t equals = line.find('=');
        const bool hasKey = equals != std::string_view::npos;
        const std::string_view key = hasKey ? trim(line.substr(0, equals)) : std::string_view();
        const std::string_view value = hasKey ? trim(line.substr(equals + 1)) : line;
        warnAboutKey(line, key);
        m_table.sections.back().entries.push_back({toUtf8(key), toUtf8(value), m_cursor.number()});
    }

    void warnAboutKey(std::string_view line, std::string_view key) {
        if (key.empty()) {
            warn([line] { return quoted(line) + " has no key before an equals sign"; });
        } else if (!m_keys.insert(lowerCase(key)).second) {
            warn([key] { return "the key " + quoted(key) + " occurs again in its section"; });
        }
    }

    template <typename MakeText>
    void warn(MakeText makeText) {
        m_warnings.add(m_cursor.number(), makeText);
    }

    LineCursor m_cursor;
    const std::string& m_fileName;
    ResultTable m_table;
    WarningList m_warnings;
    std::unordered_set<std::string> m_sectionNames;
    std::unordered_set<std::string> m_keys; ///< of the current section
    std::size_t m_kept = 0;
    bool m_headerSeen = false;
};

} // namespace

ResultTable readResults(std::string_view bytes, const std::string& fileName) {
    return ResultReader(requireText(bytes, fileName), fileName).read();
}

ResultTable readResultsFile(const std::filesystem::path& path) {
    return readResults(readBytes(path), path.string());
}

} // namespace rockeval
