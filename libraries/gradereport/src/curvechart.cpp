#include "curvechart.h"

#include "curvepath.h"
#include "gradesymbol.h"
#include "htmltext.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace gradereport {

namespace {

constexpr double left = 56;
constexpr double right = 592;
constexpr double top = 24;
constexpr double bottom = 200;
constexpr std::string_view viewBox = "0 0 600 240";

constexpr int timeTicks = 8;
constexpr int heightTicks = 5;
constexpr std::size_t mostMarks = 24;
constexpr double valleyTick = 6;

/// A threshold further above the curve than this is named but does not set the scale: the curve would be a
/// line at the bottom.
constexpr double mostThresholdShare = 2.5;
/// Room above the highest value for a marker and its label.
constexpr double headroom = 0.14;

bool hasSamples(const Curve& curve) {
    for (std::size_t i = 0; i < std::min(curve.x.size(), curve.y.size()); ++i) {
        if (std::isfinite(curve.x[i]) && std::isfinite(curve.y[i]))
            return true;
    }
    return false;
}

ChartScale timeScale(const GradeRecord& record) {
    ValueRange range;
    range.include(record.raw.x);
    range.include(record.smoothed.x);
    return {range.low(), range.high(), left, right};
}

ValueRange heightRange(const GradeRecord& record) {
    ValueRange range;
    range.include(0.0);
    range.include(record.raw.y);
    range.include(record.smoothed.y);
    return range;
}

ChartScale heightScale(const ValueRange& range, double threshold, bool thresholdFits) {
    const double high = thresholdFits ? std::max(range.high(), threshold) : range.high();
    return {range.low(), high + (high - range.low()) * headroom, bottom, top};
}

/// The highest marks, at most as many as are drawn, in order of height.
template <typename Mark>
std::vector<const Mark*> highestMarks(const std::vector<Mark>& marks) {
    std::vector<const Mark*> drawn;
    for (const Mark& mark : marks) {
        if (std::isfinite(mark.x) && std::isfinite(mark.y))
            drawn.push_back(&mark);
    }
    std::sort(drawn.begin(), drawn.end(), [](const Mark* a, const Mark* b) { return a->y > b->y; });
    drawn.resize(std::min(drawn.size(), mostMarks));
    return drawn;
}

std::string point(double x, double y) {
    return pathNumber(x) + ' ' + pathNumber(y);
}

std::string path(std::string_view style, const std::string& data) {
    return "<path class=\"" + std::string(style) + "\" d=\"" + data + "\"/>\n";
}

std::string titledPath(const std::string& style, const std::string& data, const std::string& title) {
    return "<path class=\"" + style + "\" d=\"" + data + "\"><title>" + escaped(title) + "</title></path>\n";
}

std::string label(double x, double y, const std::string& text) {
    return "<text x=\"" + pathNumber(x) + "\" y=\"" + pathNumber(y) + "\">" + escaped(text) + "</text>";
}

bool isLow(const ReportedPeak& peak) {
    constexpr int belowThreshold = 3;
    return peak.category == belowThreshold;
}

struct Place {
    double x;
    double y;
};

bool isNear(Place place, const std::vector<Place>& others, double dx, double dy) {
    return std::any_of(others.begin(), others.end(), [&](const Place& other) {
        return std::abs(other.x - place.x) < dx && std::abs(other.y - place.y) < dy;
    });
}

} // namespace

CurveChart::CurveChart(const GradeRecord& record, Language language)
    : m_record(record), m_language(language), m_threshold(record.settings.height * record.mean),
      m_x(timeScale(record)), m_y(0, 1, bottom, top) {
    const ValueRange heights = heightRange(record);
    m_thresholdFits = m_threshold >= heights.low() && m_threshold <= mostThresholdShare * heights.high();
    m_y = heightScale(heights, m_threshold, m_thresholdFits);
}

std::string CurveChart::svg(std::string_view labelledBy) const {
    std::string text = R"(<svg class="chart" viewBox=")" + std::string(viewBox) +
                       R"(" role="img" aria-labelledby=")" + std::string(labelledBy) + "\">\n";
    if (!hasSamples(m_record.raw) && !hasSamples(m_record.smoothed)) {
        return text + "<g class=\"times\">" +
               label((left + right) / 2, (top + bottom) / 2,
                     say("no sample to draw", "aucun point à tracer")) +
               "</g></svg>\n";
    }
    text += leftOut() + axes() + curves() + threshold() + valleys() + removedCandidates() + peaks() +
            peakLabels() + notDrawn();
    return text + "</svg>\n";
}

std::string CurveChart::axes() const {
    const std::vector<ChartTick> times = m_x.ticks(timeTicks);
    const std::vector<ChartTick> heights = m_y.ticks(heightTicks);
    std::string grid;
    std::string heightLabels = "<g class=\"heights\">";
    for (const ChartTick& tick : heights) {
        grid += "M" + point(left, tick.pixel) + "H" + pathNumber(right);
        heightLabels += label(left - 8, tick.pixel + 4, tick.label);
    }
    std::string axis = "M" + point(left, bottom) + "H" + pathNumber(right);
    std::string timeLabels = "<g class=\"times\">";
    for (const ChartTick& tick : times) {
        axis += "M" + point(tick.pixel, bottom) + "v4";
        timeLabels += label(tick.pixel, bottom + 18, tick.label);
    }
    return path("grid", grid) + path("axis", axis) + heightLabels + "</g>\n" + timeLabels + "</g>\n" +
           "<g class=\"units\">" + label(0, 12, say("FID signal", "signal FID")) +
           "</g><g class=\"units end\">" + label(right, bottom + 36, say("time (s)", "temps (s)")) + "</g>\n";
}

std::string CurveChart::leftOut() const {
    std::string text;
    if (std::isfinite(m_record.start) && m_record.start > m_x.low()) {
        text += shade(m_x.low(), m_record.start,
                      say("Left out: before the start", "Laissé de côté : avant le départ"));
    }
    ValueRange graded;
    graded.include(m_record.smoothed.x);
    if (!graded.isEmpty() && graded.high() < m_x.high()) {
        text += shade(graded.high(), m_x.high(),
                      say("Left out: after the graded range", "Laissé de côté : après la plage évaluée"));
    }
    return text;
}

std::string CurveChart::shade(double from, double to, const std::string& title) const {
    const double width = m_x.pixel(to) - m_x.pixel(from);
    return titledPath("out",
                      "M" + point(m_x.pixel(from), top) + "h" + pathNumber(width) + "V" + pathNumber(bottom) +
                          "h" + pathNumber(-width) + "z",
                      title);
}

std::string CurveChart::curves() const {
    return path("raw", curvePath(m_record.raw, m_x, m_y)) +
           path("smoothed", curvePath(m_record.smoothed, m_x, m_y));
}

std::string CurveChart::threshold() const {
    if (!std::isfinite(m_threshold))
        return {};
    const std::string name = trimmedNumber(m_record.settings.height, 3) + say(" × mean = ", " × moyenne = ") +
                             trimmedNumber(m_threshold, 1);
    if (!m_thresholdFits) {
        return "<g class=\"units end\">" +
               label(right, 12, name + say(", outside the drawing", ", hors du dessin")) + "</g>\n";
    }
    const double y = m_y.pixel(m_threshold);
    return path("threshold", "M" + point(left, y) + "H" + pathNumber(right)) + "<g class=\"note end\">" +
           label(right - 4, y - 5, name) + "</g>\n";
}

std::string CurveChart::valleys() const {
    std::string data;
    for (const ReportedPeak* peak : highestMarks(m_record.peaks)) {
        for (const std::size_t index : {peak->left, peak->right}) {
            if (index >= std::min(m_record.smoothed.x.size(), m_record.smoothed.y.size()))
                continue;
            const double x = m_record.smoothed.x[index];
            const double y = m_record.smoothed.y[index];
            if (std::isfinite(x) && std::isfinite(y)) {
                data +=
                    "M" + point(m_x.pixel(x), m_y.pixel(y) - valleyTick) + "v" + pathNumber(2 * valleyTick);
            }
        }
    }
    return data.empty() ? data : path("valley", data);
}

std::string CurveChart::removalTitle(const RemovedPeak& candidate) const {
    const std::string place = say("Removed candidate at ", "Candidat retiré à ") +
                              trimmedNumber(candidate.x, 1) + say(" s, height ", " s, hauteur ") +
                              trimmedNumber(candidate.y, 1) + say(": ", " : ");
    if (candidate.cause == RemovalCause::early)
        return place + say("too close to the start", "trop près du départ");
    if (!std::isfinite(candidate.ratio) || candidate.ratio < 0)
        return place + say("does not rise above its valleys", "ne dépasse pas ses vallées");
    return place + say("coelution ratio ", "rapport de coélution ") + trimmedNumber(candidate.ratio, 3);
}

std::string CurveChart::removedCandidates() const {
    std::string text;
    for (const RemovedPeak* candidate : highestMarks(m_record.removed)) {
        text += titledPath("removed",
                           "M" + point(m_x.pixel(candidate->x), m_y.pixel(candidate->y)) +
                               "m-3 0a3 3 0 1 0 6 0a3 3 0 1 0-6 0",
                           removalTitle(*candidate));
    }
    return text;
}

GradeKind CurveChart::markerOf(const ReportedPeak& peak) const {
    if (isLow(peak))
        return GradeKind::flat;
    // Three peaks count as flat whatever their heights: the square is kept for peaks below the threshold.
    const GradeKind kind = kindOf(m_record);
    return kind == GradeKind::flat ? GradeKind::other : kind;
}

std::string CurveChart::peaks() const {
    std::string text;
    for (const ReportedPeak* peak : highestMarks(m_record.peaks)) {
        const GradeKind marker = markerOf(*peak);
        text += titledPath(
            "marker " + std::string(kindClass(marker)),
            "M" + point(m_x.pixel(peak->x), m_y.pixel(peak->y)) + std::string(kindShape(marker)),
            say("Peak at ", "Pic à ") + trimmedNumber(peak->x, 1) + say(" s, height ", " s, hauteur ") +
                trimmedNumber(peak->y, 1) +
                (isLow(*peak) ? say(", below the height threshold", ", sous le seuil de hauteur")
                              : say(", reaches the height threshold", ", atteint le seuil de hauteur")));
    }
    return text;
}

std::string CurveChart::peakLabels() const {
    constexpr double halfWidth = 52;
    constexpr double lineHeight = 16;
    constexpr double above = 11;
    const std::vector<const ReportedPeak*> marked = highestMarks(m_record.peaks);
    // Whatever a label must not cover: first the markers, then the labels already placed.
    std::vector<Place> markers;
    markers.reserve(marked.size());
    for (const ReportedPeak* peak : marked)
        markers.push_back({m_x.pixel(peak->x), m_y.pixel(peak->y)});
    std::vector<Place> labels;
    std::string text = "<g class=\"note middle\">";
    for (std::size_t i = 0; i < marked.size(); ++i) {
        const Place place{std::clamp(markers[i].x, left + halfWidth, right - halfWidth),
                          markers[i].y - above};
        if (isNear(place, markers, halfWidth, above - 1) || isNear(place, labels, 2 * halfWidth, lineHeight))
            continue;
        labels.push_back(place);
        text +=
            label(place.x, place.y, trimmedNumber(marked[i]->x, 1) + " s, " + trimmedNumber(marked[i]->y, 1));
    }
    return text + "</g>\n";
}

std::string CurveChart::notDrawn() const {
    std::string list;
    const auto note = [&list, this](std::size_t count, const std::string& one, const std::string& several) {
        if (count > mostMarks) {
            list += (list.empty() ? say("not drawn: ", "non tracé : ") : ", ") +
                    counted(count - mostMarks, one, several);
        }
    };
    note(m_record.peaks.size(), say("lower peak", "pic plus bas"), say("lower peaks", "pics plus bas"));
    note(m_record.removed.size(), say("lower removed candidate", "candidat retiré plus bas"),
         say("lower removed candidates", "candidats retirés plus bas"));
    if (list.empty())
        return list;
    return "<g class=\"units\">" + label(left, bottom + 36, list) + "</g>\n";
}

} // namespace gradereport
