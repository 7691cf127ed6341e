#include "gradereport/gradereason.h"

#include "core/tostring.h"
#include "gradereport/shortestnumber.h"

#include <cmath>
#include <cstddef>

namespace gradereport {

namespace {

using Peak = Grading::Peak;
using algo::core::toString;

constexpr std::size_t listed = 4; // more places than this say nothing to a reader

/// Builds the sentence piece by piece in one language.
class Sentence {
public:
    Sentence(const Grading& grading, const EngineSettings& settings, Language language)
        : m_grading(grading), m_settings(settings), m_language(language) {}

    std::string text() const { return standing() + coelution() + missingStart() + distance() + "."; }

private:
    std::string say(const char* english, const char* french) const {
        return said(m_language, english, french);
    }
    std::string next() const { return say("; ", "\u00a0; "); }

    std::string counted(std::size_t count) const;
    std::string coelutedPlace(const Grading::Coeluted& removed) const;
    template <class Items, class Text>
    std::string enumerated(const Items& items, const Text& text) const;
    std::string lonePeak() const;
    std::string standing() const;
    std::string coelution() const;
    std::string missingStart() const;
    std::string distance() const;

    const Grading& m_grading;
    const EngineSettings& m_settings;
    Language m_language;
};

std::string Sentence::counted(std::size_t count) const {
    static const char* const words[] = {"No", "One", "Two", "Three", "Four"};
    static const char* const french[] = {"aucun", "un", "deux", "trois", "quatre"};
    return count < 5 ? say(words[count], french[count]) : std::to_string(count);
}

std::string place(const Peak& peak) {
    return fixedNumber(peak.top()->x, 1) + " s (" + toString(peak.top()->y) + ")";
}

std::string Sentence::coelutedPlace(const Grading::Coeluted& removed) const {
    const std::string time = fixedNumber(removed.peak.top()->x, 1) + " s";
    return std::isfinite(removed.ratio)
               ? time + say(" (ratio ", " (rapport ") + fixedNumber(removed.ratio, 2) + ")"
               : time + say(" (below its valleys)", " (sous ses vallées)");
}

/// "a", "a and b", "a, b and c", "a, b, c, d and 3 more".
template <class Items, class Text>
std::string Sentence::enumerated(const Items& items, const Text& text) const {
    const std::size_t shown = items.size() <= listed ? items.size() : listed;
    std::string list;
    for (std::size_t i = 0; i < shown; ++i) {
        const bool last = i + 1 == items.size();
        list += i == 0 ? "" : (last ? say(" and ", " et ") : ", ");
        list += text(items[i]);
    }
    const std::size_t left = items.size() - shown;
    if (left == 0) {
        return list;
    }
    return list + say(" and ", " et ") + std::to_string(left) +
           say(" more", left == 1 ? " autre" : " autres");
}

std::string Sentence::lonePeak() const {
    const Peak& peak = m_grading.chromatogram->peaks().front();
    const bool good = algo::sr_qaqc::qualityCode(*m_grading.chromatogram) == 1;
    return say("One peak stands, at ", "Il reste un pic, à ") + place(peak) +
           say(", and its top ", ", et son sommet ") +
           (good ? say("reaches ", "atteint ") : say("stays below ", "reste sous ")) +
           toString(m_settings.heightCriteria) + say(" × the mean level of ", " × le niveau moyen de ") +
           std::to_string(m_grading.mean) + " (" + toString(m_grading.mean * m_settings.heightCriteria) + ")";
}

std::string Sentence::standing() const {
    const auto& peaks = m_grading.chromatogram->peaks();
    switch (peaks.size()) {
    case 0:
        return m_grading.late->peaks().empty()
                   ? say("No peak stands, since none was found behind the start",
                         "Il ne reste aucun pic, car aucun n'a été trouvé après le départ")
                   : say("No peak stands", "Il ne reste aucun pic");
    case 1:
        return lonePeak();
    default:
        break;
    }
    const std::string list = enumerated(peaks, place);
    std::string text = m_language == Language::french
                           ? "Il reste " + counted(peaks.size()) + " pics, à " + list
                           : counted(peaks.size()) + " peaks stand, at " + list;
    switch (peaks.size()) {
    case 2:
        return text;
    case 3:
        return text + say(", which counts as flat", ", ce qui compte comme plate");
    default:
        return text + say(", for which there is no grade", ", nombre pour lequel il n'y a pas d'évaluation");
    }
}

std::string Sentence::coelution() const {
    const auto& removed = m_grading.coeluted;
    if (removed.empty()) {
        return {};
    }
    const bool one = removed.size() == 1;
    const auto text = [this](const Grading::Coeluted& each) { return coelutedPlace(each); };
    return next() +
           (one ? say("a candidate at ", "un candidat à ") : say("candidates at ", "des candidats à ")) +
           enumerated(removed, text) +
           say(" fell to coelution (limit ",
               one ? " a été retiré pour coélution (limite " : " ont été retirés pour coélution (limite ") +
           toString(m_settings.coelution) + ")";
}

std::string Sentence::missingStart() const {
    if (m_grading.start.x != 0.0) {
        return {};
    }
    return next() + say("no start was found, so nothing was cut off at the front",
                        "aucun départ n'a été trouvé, rien n'a donc été coupé au début");
}

std::string Sentence::distance() const {
    const auto change = nearestChange(m_grading, m_settings);
    if (!change) {
        return next() + say("no height up to 5 and no coelution from 0.2 to 2 would change that",
                            "aucune hauteur jusqu'à 5 et aucune coélution de 0.2 à 2 n'y changerait rien");
    }
    const bool isHeight = change->setting == "height";
    return next() +
           (isHeight ? say("with height at ", "avec une hauteur de ")
                     : say("with coelution at ", "avec une coélution de ")) +
           fixedNumber(change->value, 2) +
           (change->upward ? say(" or more", " ou plus") : say(" or less", " ou moins")) +
           say(" it would be ", ", la courbe serait ") + gradeWord(change->quality, m_language);
}

} // namespace

std::string gradeWord(int quality, Language language) {
    switch (quality) {
    case 1:
        return said(language, "good", "bonne");
    case 2:
        return "double";
    case 3:
        return said(language, "flat", "plate");
    default:
        return said(language, "no grade", "sans évaluation");
    }
}

std::string gradeReason(const Grading& grading, const EngineSettings& settings, Language language) {
    return Sentence(grading, settings, language).text();
}

} // namespace gradereport
