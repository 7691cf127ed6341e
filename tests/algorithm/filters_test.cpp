#include "enginetest.h"

#include <cmath>

using namespace enginetest;
using Coelution = algo::chromato::PeakFilterCoelution<double, Values>;
using Position = algo::chromato::PeakFilter<double, Values>::PeakPosition;
using Custom = algo::chromato::PeakFilterCustom<double, Values, std::function<bool(Position)>>;

namespace {

/// A peak whose left valley, top and right valley have these ordinates, at the abscissae 0, 1 and 2.
Peak peakOf(double left, double top, double right) {
    const Iterator begin = counted({left, top, right})->begin();
    return {begin, begin + 1, begin + 2};
}

} // namespace

TEST(Coelution, the_ratio_decides_also_where_it_is_no_number) {
    struct Case {
        double left, top, right, ratio;
        bool removed; // by a criterion of 1.25
    };
    const double nan = std::nan("");
    const double infinite = HUGE_VAL;
    for (const Case& c :
         {Case{1, 6, 5, 1.25, false}, Case{5, 5.96, 1, 1.24, true}, Case{1, 1, 5, 0, true},
          Case{3, 4, 3, infinite, false}, Case{3, 2, 3, -infinite, true}, Case{3, 3, 3, nan, false},
          Case{nan, 4, 3, nan, false}, Case{3, 4, nan, infinite, false}}) {
        const std::vector<Peak> peaks{peakOf(c.left, c.top, c.right)};
        const double ratio = Coelution(1.25, nullptr).ratio(peaks[0]);
        EXPECT_TRUE(std::isnan(c.ratio) ? std::isnan(ratio) : ratio == c.ratio) << ratio;
        EXPECT_EQ(Coelution(1.25, nullptr).isFiltered(peaks.begin()), c.removed) << ratio;
        EXPECT_EQ(Coelution(0, nullptr).isFiltered(peaks.begin()), c.ratio < 0) << ratio;
    }
    const auto baseline = std::make_shared<Line>(0, 0, 2, 4); // 2 at the top
    EXPECT_EQ(Coelution(1, baseline).ratio(peakOf(3, 10, 4)), 4);
    baseline->setDomain(1.5, 2);
    EXPECT_EQ(Coelution(1, baseline).ratio(peakOf(3, 10, 4)), 7);
}

TEST(PeakFilter, keeps_order_grades_and_the_source) {
    std::vector<Peak> peaks{peakOf(0, 1, 0), peakOf(0, 2, 0), peakOf(0, 3, 0)};
    peaks[2].category = 3;
    const auto source = std::make_shared<Chromatogram>(peaks, counted({7}));
    const auto kept = Custom([](Position peak) { return peak->top()->y == 2; }).apply(source, nullptr);
    ASSERT_EQ(kept->peaks().size(), 2U);
    EXPECT_EQ(kept->peaks()[0].top()->y, 1);
    EXPECT_EQ(kept->peaks()[1].category, 3);
    EXPECT_EQ(kept->signal(), source->signal());
    EXPECT_EQ(source->peaks().size(), 3U);
    EXPECT_THROW(Custom(nullptr).apply(source, nullptr), std::bad_function_call);
    EXPECT_RAISES(Custom(nullptr).apply(nullptr, nullptr), "PeakFilter::apply", "chromato/peakfilter.h",
                  "The chromatogram is not defined");
    struct : algo::log::NodeProcessor {
        void childrenChanged(const std::vector<std::unique_ptr<algo::log::Node>>&) override {}
        bool accepts(const std::type_info&, const algo::log::Node&) override { return true; }
    } processor;
    algo::log::Node root("", &processor);
    Coelution(1, nullptr).apply(source, &root);
    EXPECT_EQ(root.children.at(0)->children.at(0)->text, "peaks filtered: 0");
}
