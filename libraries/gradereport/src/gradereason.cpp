#include "gradereport/gradereason.h"

#include "core/tostring.h"
#include "gradereport/shortestnumber.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

namespace gradereport {

namespace {

using Peak = Grading::Peak;
using algo::core::toString;

constexpr std::size_t listed = 4; // more places than this say nothing to a reader

/// Says the parts of a reason in one language.
class Speaker {
public:
    explicit Speaker(Language language) : m_language(language) {}

    [[nodiscard]] std::string operator()(const char* english, const char* french) const {
        return said(m_language, english, french);
    }
    [[nodiscard]] std::string number(std::string digits) const {
        if (m_language == Language::french)
            std::replace(digits.begin(), digits.end(), '.', ',');
        return digits;
    }
    [[nodiscard]] std::string fixed(double value, int decimals) const {
        return number(fixedNumber(value, decimals));
    }
    template <class Number>
    [[nodiscard]] std::string shortly(Number value) const {
        return number(toString(value));
    }
    /// Between two parts of the sentence.
    [[nodiscard]] std::string next() const { return (*this)("; ", "\u00a0; "); }

    [[nodiscard]] std::string counted(std::size_t count) const {
        static const std::array<std::pair<const char*, const char*>, 5> words{
            {{"No", "Aucun"}, {"One", "Un"}, {"Two", "Deux"}, {"Three", "Trois"}, {"Four", "Quatre"}}};
        return count < words.size() ? (*this)(words.at(count).first, words.at(count).second)
                                    : std::to_string(count);
    }

    /// "a", "a and b", "a, b and c", "a, b, c, d and 3 more".
    template <class Items, class Text>
    [[nodiscard]] std::string enumerated(const Items& items, const Text& text) const {
        const std::size_t shown = items.size() <= listed ? items.size() : listed;
        std::string list;
        for (std::size_t i = 0; i < shown; ++i) {
            const bool last = i + 1 == items.size();
            list += i == 0 ? "" : (last ? (*this)(" and ", " et ") : ", ");
            list += text(items[i]);
        }
        if (shown == items.size())
            return list;
        const std::size_t rest = items.size() - shown;
        return list + (*this)(" and ", " et ") + std::to_string(rest) +
               (*this)(" more", rest == 1 ? " autre" : " autres");
    }

private:
    Language m_language;
};

/// The sentence about one grading, part by part.
class Reason {
public:
    Reason(const Grading& grading, const EngineSettings& settings, Language language)
        : m_grading(grading), m_settings(settings), m_language(language), m_say(language) {}

    [[nodiscard]] std::string standing() const;
    [[nodiscard]] std::string coelution() const;
    [[nodiscard]] std::string missingStart() const;
    [[nodiscard]] std::string distance() const;

private:
    [[nodiscard]] std::string place(const Peak& peak) const;
    [[nodiscard]] std::string coelutedPlace(const Grading::Coeluted& removed) const;
    [[nodiscard]] std::string lonePeak() const;

    const Grading& m_grading;
    const EngineSettings& m_settings;
    Language m_language;
    Speaker m_say;
};

std::string Reason::place(const Peak& peak) const {
    return m_say.fixed(peak.top()->x, 1) + " s (" + m_say.shortly(peak.top()->y) + ")";
}

std::string Reason::coelutedPlace(const Grading::Coeluted& removed) const {
    const std::string time = m_say.fixed(removed.peak.top()->x, 1) + " s";
    return std::isfinite(removed.ratio)
               ? time + m_say(" (ratio ", " (rapport ") + m_say.fixed(removed.ratio, 2) + ")"
               : time + m_say(" (below its valleys)", " (sous ses vallées)");
}

std::string Reason::lonePeak() const {
    const Peak& peak = m_grading.chromatogram->peaks().front();
    const bool good = algo::sr_qaqc::qualityCode(*m_grading.chromatogram) == 1;
    return m_say("One peak stands, at ", "Un seul pic subsiste, à ") + place(peak) +
           m_say(", and its top ", ", et son sommet ") +
           (good ? m_say("reaches ", "atteint ") : m_say("stays below ", "reste sous ")) +
           m_say.shortly(m_settings.heightCriteria) +
           m_say(" × the mean level of ", " × le niveau moyen de ") + std::to_string(m_grading.mean) + " (" +
           m_say.shortly(m_grading.mean * m_settings.heightCriteria) + ")";
}

std::string Reason::standing() const {
    const auto& peaks = m_grading.chromatogram->peaks();
    const auto placed = [this](const Peak& peak) { return place(peak); };
    switch (peaks.size()) {
    case 0:
        return m_grading.late->peaks().empty()
                   ? m_say("No peak stands, since none was found behind the start",
                           "Aucun pic ne subsiste, car aucun n'a été trouvé après le début")
                   : m_say("No peak stands", "Aucun pic ne subsiste");
    case 1:
        return lonePeak();
    case 3:
        return m_say("Three peaks stand, at ", "Trois pics subsistent, à ") +
               m_say.enumerated(peaks, placed) +
               m_say(", which counts as flat", ", ce qui compte comme plate");
    default:
        return m_say.counted(peaks.size()) + m_say(" peaks stand, at ", " pics subsistent, à ") +
               m_say.enumerated(peaks, placed) +
               (peaks.size() == 2 ? std::string()
                                  : m_say(", for which there is no grade",
                                          ", nombre pour lequel il n'y a pas d'évaluation"));
    }
}

std::string Reason::coelution() const {
    const auto& removed = m_grading.coeluted;
    if (removed.empty()) {
        return {};
    }
    const bool one = removed.size() == 1;
    const auto placed = [this](const Grading::Coeluted& each) { return coelutedPlace(each); };
    return m_say.next() +
           (one ? m_say("a candidate at ", "un candidat à ") : m_say("candidates at ", "des candidats à ")) +
           m_say.enumerated(removed, placed) +
           m_say(" fell to coelution (limit ",
                 one ? " a été écarté pour coélution (limite " : " ont été écartés pour coélution (limite ") +
           m_say.shortly(m_settings.coelution) + ")";
}

std::string Reason::missingStart() const {
    if (m_grading.start.x != 0.0) {
        return {};
    }
    return m_say.next() + m_say("no start was found, so nothing was cut off at the front",
                                "aucun début n'a été trouvé, donc rien n'a été coupé à l'avant");
}

std::string Reason::distance() const {
    const auto change = nearestChange(m_grading, m_settings);
    if (!change) {
        return m_say.next() + m_say("no height up to 5 and no coelution from 0.2 to 2 would change that",
                                    "aucune hauteur jusqu'à 5 ni coélution de 0,2 à 2 n'y changerait rien");
    }
    return m_say.next() +
           (change->setting == "height" ? m_say("with height at ", "avec une hauteur de ")
                                        : m_say("with coelution at ", "avec une coélution de ")) +
           m_say.fixed(change->value, 2) +
           (change->upward ? m_say(" or more", " ou plus") : m_say(" or less", " ou moins")) +
           m_say(" it would be ", ", elle serait ") + gradeWord(change->quality, m_language);
}

} // namespace

std::string gradeWord(int quality, Language language) {
    const Speaker say(language);
    switch (quality) {
    case 1:
        return say("good", "bonne");
    case 2:
        return say("double", "double");
    case 3:
        return say("flat", "plate");
    default:
        return say("no grade", "sans évaluation");
    }
}

std::string gradeReason(const Grading& grading, const EngineSettings& settings, Language language) {
    const Reason reason(grading, settings, language);
    return reason.standing() + reason.coelution() + reason.missingStart() + reason.distance() + ".";
}

} // namespace gradereport
