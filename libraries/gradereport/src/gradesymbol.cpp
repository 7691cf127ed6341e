#include "gradesymbol.h"

#include <array>

namespace gradereport {

namespace {

constexpr std::array<std::string_view, gradeKindCount> classes{"good", "twin",  "flat",
                                                               "none", "other", "failed"};

constexpr std::array<std::string_view, gradeKindCount> shapes{
    "m-5 0a5 5 0 1 0 10 0a5 5 0 1 0-10 0",
    "m0-6.5l6 6.5-6 6.5-6-6.5z",
    "m-4.5-4.5h9v9h-9z",
    "m-5.5-1.5h11v3h-11z",
    "m0-6l6.2 10.5h-12.4z",
    "m-5-3l2-2 3 3 3-3 2 2-3 3 3 3-2 2-3-3-3 3-2-2 3-3z",
};

} // namespace

std::string_view kindClass(GradeKind kind) {
    return classes[static_cast<std::size_t>(kind)];
}

std::string_view kindShape(GradeKind kind) {
    return shapes[static_cast<std::size_t>(kind)];
}

std::string symbolDefinitions() {
    std::string text = "<svg class=\"symbols\" width=\"0\" height=\"0\" aria-hidden=\"true\">\n";
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        text.append("<symbol id=\"")
            .append(classes[i])
            .append(R"(" viewBox="-8 -8 16 16"><path d="M0 0)")
            .append(shapes[i])
            .append("\"/></symbol>\n");
    }
    return text + "</svg>\n";
}

std::string kindIcon(GradeKind kind) {
    const std::string name(kindClass(kind));
    return "<svg class=\"icon " + name + R"(" aria-hidden="true"><use href="#)" + name + "\"/></svg>";
}

} // namespace gradereport
