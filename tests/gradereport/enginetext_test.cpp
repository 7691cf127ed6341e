#include "gradereport/candidates.h"
#include "gradereport/enginetext.h"
#include "sourcerockqaqc/rawsignal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <exception>
#include <set>
#include <string>
#include <vector>

namespace {

using gradereport::Language;
using Values = std::vector<double>;
using Points = std::vector<float>;

/// What the engine says of a curve; nothing if it grades it.
std::string refusal(const Points& x, const Points& y, const gradereport::EngineSettings& settings) {
    try {
        const auto signal =
            algo::sr_qaqc::rawSignal<double, Values>(x.data(), y.data(), static_cast<int>(x.size()));
        (void)algo::sr_qaqc::grade<double, Values>(signal, settings);
    } catch (const std::exception& error) {
        return error.what();
    }
    return {};
}

} // namespace

TEST(EngineText, every_refusal_of_a_curve_has_a_french_form) {
    std::set<std::string> said;
    for (const double start : {-40.0, 0.0, 170.0, 400.0}) {
        for (const double step : {0.0, 0.3, 1.0, 90.0, 1e6}) {
            for (const int points : {1, 2, 3, 5, 40, 400}) {
                Points x;
                Points y;
                for (int i = 0; i < points; ++i) {
                    x.push_back(static_cast<float>(start + step * i * i / std::max(1, points / 2)));
                    y.push_back(10.0F * static_cast<float>(i % 7));
                }
                const std::string what = refusal(x, y, {});
                if (!what.empty()) {
                    said.insert(gradereport::engineText(what, Language::english));
                    EXPECT_NE(gradereport::engineText(what, Language::french),
                              gradereport::engineText(what, Language::english));
                }
            }
        }
    }
    EXPECT_GE(said.size(), 2U) << "too few of the refusals were met";
    EXPECT_EQ(gradereport::engineText("Error in f ( file g) :\ncan not extrapolate at X=1.5: index=7, size=8",
                                      Language::french),
              "extrapolation impossible en X = 1.5 : indice = 7, taille = 8");
    EXPECT_EQ(gradereport::engineText("vector", Language::french),
              "refus de la bibliothèque standard : vector");
}
