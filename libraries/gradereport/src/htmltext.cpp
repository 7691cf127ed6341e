#include "htmltext.h"

#include "gradereport/shortestnumber.h"
#include "gradereport/utf8text.h"

namespace gradereport {

namespace {

std::string withEntities(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (const char letter : text) {
        switch (letter) {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '"':
            out += "&quot;";
            break;
        case '\'':
            out += "&#39;";
            break;
        default:
            out += letter;
        }
    }
    return out;
}

} // namespace

std::string escaped(std::string_view text) {
    return withEntities(visibleText(text));
}

std::string shortenedSpan(std::string_view text, std::size_t width) {
    const std::string visible = visibleText(text);
    const std::string shown = shortenedInMiddle(visible, width);
    if (shown.size() == visible.size())
        return "<span>" + withEntities(shown) + "</span>";
    return "<span title=\"" + withEntities(visible) + "\">" + withEntities(shown) + "</span>";
}

std::string trimmedNumber(double value, int decimals) {
    std::string text = fixedNumber(value, decimals);
    if (text.find('.') == std::string::npos || text.find('e') != std::string::npos)
        return text;
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
        text.pop_back();
    return text;
}

std::string counted(std::size_t count, std::string_view singular, std::string_view plural) {
    std::string text = std::to_string(count);
    return text.append(1, ' ').append(count == 1 ? singular : plural);
}

} // namespace gradereport
