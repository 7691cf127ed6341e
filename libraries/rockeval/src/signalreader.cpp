#include "rockeval/signalreader.h"

#include "digits.h"
#include "encoding.h"
#include "linecursor.h"
#include "rockeval/channels.h"
#include "rockeval/number.h"
#include "rockeval/readbytes.h"
#include "rockeval/readerror.h"
#include "text.h"
#include "warninglist.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <utility>

namespace rockeval {

namespace {

// Half an hour at a row a second.
constexpr std::size_t usualRows = 1800;

// Fields are a few characters long, so a plain loop beats a call of a general search.
std::size_t tabFrom(std::string_view row, std::size_t position) {
    while (position < row.size() && row[position] != '\t')
        ++position;
    return position;
}

bool isPyrolysis(const SectionHeader& header) {
    return equalIgnoringCase(header.name, "curves pyro");
}

class SignalReader {
public:
    SignalReader(std::string_view text, const std::string& fileName) : m_cursor(text), m_fileName(fileName) {}

    RawSignal read() {
        findSection();
        const std::size_t headerLine = m_cursor.number();
        m_curve.time.reserve(usualRows);
        m_curve.fid.reserve(usualRows);
        readRows();
        if (m_curve.time.empty()) {
            throw ReadError(
                m_fileName, headerLine,
                "no row of the section [Curves pyro] can be used; it needs rows of time, temperature "
                "and FID separated by tabs, so export the file from the analyser again");
        }
        lookForSecondSection();
        return {std::move(m_curve), m_warnings.take()};
    }

private:
    void findSection() {
        while (m_cursor.next()) {
            const std::optional<SectionHeader> header = sectionHeader(m_cursor.line());
            if (header && isPyrolysis(*header))
                return;
        }
        throw ReadError(
            m_fileName, m_cursor.number(),
            "the file ends without a section [Curves pyro]; choose the .S00 file of a Rock-Eval analysis");
    }

    /// Reads up to the next section's header, which stays the current line.
    void readRows() {
        while (m_cursor.next()) {
            const std::string_view row = trimRight(m_cursor.line());
            if (row.empty())
                continue;
            if (!isDigit(row.front()) && sectionHeader(row)) {
                m_ended = true;
                return;
            }
            readRow(row);
        }
    }

    void readRow(std::string_view row) {
        const std::size_t firstTab = tabFrom(row, 0);
        const std::size_t secondTab = tabFrom(row, firstTab + 1);
        if (secondTab >= row.size()) {
            return warn([row] {
                return "row left out: " + quoted(row) +
                       " has fewer than the three columns time, temperature and FID";
            });
        }
        const std::size_t thirdTab = tabFrom(row, secondTab + 1);
        const std::string_view timeField = row.substr(0, firstTab);
        const std::string_view fidField = row.substr(secondTab + 1, thirdTab - secondTab - 1);
        double time = 0.0;
        double fid = 0.0;
        if (!readField(timeField, "time", time) || !readField(fidField, "FID", fid))
            return;
        if (!m_cursor.closed() && thirdTab == m_cursor.line().size())
            warn([] { return "the file ends within this row, so its FID value may be cut off"; });
        append(time, fid);
    }

    bool readField(std::string_view field, const char* column, double& value) {
        if (readDigits(field, value))
            return true;
        if (const std::optional<double> number = parseNumber(field); number && fitsFloat(*number)) {
            value = *number;
            return true;
        }
        warn([=] {
            return "row left out: " + quoted(trim(field)) + " in the column " + column +
                   " is not a number that can be stored";
        });
        return false;
    }

    void append(double time, double fid) {
        if (!m_curve.time.empty()) {
            const double last = m_curve.time.back();
            // Compared as they are stored: two doubles may become the same float.
            if (narrow(time) <= narrow(last)) {
                return warn([=] {
                    return "row left out: its time " + shortText(time) + " s is not above the last one, " +
                           shortText(last) + " s";
                });
            }
            warnAboutGap(last, time);
        }
        m_curve.time.push_back(time);
        m_curve.fid.push_back(fid);
    }

    void warnAboutGap(double last, double time) {
        if (time - last < 1.5)
            return;
        warn([=] {
            return "missing seconds: " + shortText(std::round(time - last) - 1.0) + " between " +
                   shortText(last) + " s and " + shortText(time) + " s";
        });
    }

    void lookForSecondSection() {
        // The line walk is for files that have a further section at all; most have none behind [Curves oxi].
        if (!m_ended || (!warnIfPyrolysis() && m_cursor.rest().find('[') == std::string_view::npos))
            return;
        while (m_cursor.next())
            warnIfPyrolysis();
    }

    bool warnIfPyrolysis() {
        const std::optional<SectionHeader> header = sectionHeader(m_cursor.line());
        if (!header || !isPyrolysis(*header))
            return false;
        warn([] { return "a further section [Curves pyro] is ignored, only the first one is read"; });
        return true;
    }

    template <typename MakeText>
    void warn(MakeText makeText) {
        m_warnings.add(m_cursor.number(), makeText);
    }

    static std::string shortText(double value) {
        std::array<char, 32> text{}; // the longest shortest form has 24 characters
        const std::to_chars_result end = std::to_chars(text.data(), text.data() + text.size(), value);
        return {text.data(), end.ptr};
    }

    LineCursor m_cursor;
    const std::string& m_fileName;
    PyrolysisCurve m_curve;
    WarningList m_warnings;
    bool m_ended = false;
};

} // namespace

RawSignal readSignal(std::string_view bytes, const std::string& fileName) {
    return SignalReader(requireText(bytes, fileName), fileName).read();
}

RawSignal readSignalFile(const std::filesystem::path& path) {
    return readSignal(readBytes(path), path.string());
}

} // namespace rockeval
