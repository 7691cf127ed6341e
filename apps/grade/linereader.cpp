#include "linereader.h"

#include <istream>

namespace grade {

LineReader::LineReader(std::istream& stream, std::size_t limit) : m_stream(stream), m_limit(limit) {}

bool LineReader::next() {
    using Traits = std::istream::traits_type;
    m_text.clear();
    m_begin = m_end;
    for (;;) {
        const auto byte = m_stream.get();
        if (Traits::eq_int_type(byte, Traits::eof())) {
            m_found = Found::rest;
            m_number += m_text.empty() ? 0U : 1U;
            return !m_text.empty() && !m_stream.bad();
        }
        ++m_end;
        if (Traits::to_char_type(byte) == '\n') {
            m_found = Found::line;
            ++m_number;
            return true;
        }
        if (m_text.size() == m_limit) {
            m_found = Found::tooLong;
            ++m_number;
            return true;
        }
        m_text += Traits::to_char_type(byte);
    }
}

} // namespace grade
