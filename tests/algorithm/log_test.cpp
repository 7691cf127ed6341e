#include "enginetest.h"

#include <set>
#include <sstream>
#include <typeindex>

using namespace enginetest;
using namespace algo::log;

namespace {

using Lines = std::vector<std::string>;
using Kinds = std::set<std::type_index>;

/// A root with a processor that accepts what it was not told to refuse.
struct Log : NodeProcessor {
    void childrenChanged(const std::vector<std::unique_ptr<Node>>& children) override {
        arrivals.push_back(children.size());
    }
    bool accepts(const std::type_info& nodeType, const Node&) override {
        return refused.count(nodeType) == 0;
    }

    Kinds refused;
    std::vector<std::size_t> arrivals;
    Node root{"root", this};
};

/// Text of each child; a method's is its signature, of which compilers have their own form.
Lines outline(const Node& node) {
    Lines lines;
    for (const auto& child : node.children) {
        const auto& target = *child;
        const std::type_index kind(typeid(target));
        const std::string mark = kind == typeid(NodeWarning) ? "warning: "
                                 : kind == typeid(NodeError) ? "error: "
                                                             : "";
        lines.push_back(kind == typeid(NodeMethodCall) ? "method" : mark + child->message());
    }
    return lines;
}

} // namespace

TEST(RunLog, children_keep_their_order_and_refused_ones_leave_the_stream) {
    Log log;
    std::stringstream text("text");
    log.root.add<NodeInfo>(text, &log);
    log.root.addChild(nullptr);
    log.root.add<NodeWarning>(text, &log);
    log.refused = {typeid(NodeError)};
    log.root.add<NodeError>(text, &log);
    EXPECT_EQ(text.str(), "text");
    EXPECT_EQ(outline(log.root), Lines({"text", "warning: text"}));
    EXPECT_EQ(log.arrivals, std::vector<std::size_t>({1, 2}));
    EXPECT_EQ(log.root.children[1]->parent, &log.root);
}

TEST(RunLog, a_scope_acts_once_also_when_it_was_moved_or_an_exception_ends_it) {
    Log log;
    int runs = 0;
    const auto count = [&](NodeMethodCall&) { ++runs; };
    try {
        auto guard = log.root.addScoped<NodeMethodCall>(count, "f()", &log);
        const auto moved = std::move(guard);
        throw std::exception();
    } catch (const std::exception&) {
        EXPECT_EQ(runs, 1);
    }
    EXPECT_EQ(log.root.children.at(0)->message(), "f()");
    EXPECT_THROW(log.root.addScoped<NodeMethodCall>(nullptr, "g()", &log), std::bad_function_call);
    log.refused = {typeid(NodeMethodCall)};
    EXPECT_EQ(log.root.addScoped<NodeMethodCall>(count, "h()", &log).node, nullptr);
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(log.root.children.size(), 2U);
}

TEST(RunLog, an_exception_with_a_node_is_told_there_and_raised_all_the_same) {
    Log log;
    EXPECT_EQ(Failure("told", &log.root).node, &log.root);
    log.refused = {typeid(NodeError)};
    EXPECT_STREQ(Failure("not told", &log.root).what(), "not told");
    EXPECT_EQ(outline(log.root), Lines({"error: told"}));
}

TEST(RunLog, smoother_detector_and_filter_tell_their_stages_in_order) {
    Log log;
    const auto signal = curve({{100, 900, 20}, {130, 300, 10}});
    const auto found = detectorOf(signal, 20.5).detect(signal, &log.root);
    const auto peaks = std::to_string(found->peaks().size());
    EXPECT_THROW(Smoother(signal, -0.1234567, &log.root), Failure);
    algo::chromato::PeakFilterCoelution<double, Values>(-1e9, nullptr).apply(found, &log.root);
    detectorOf(signal, 0).detect(signal, &log.root);
    ASSERT_EQ(outline(log.root), Lines(5, "method")); // the smoother beside the detector
    const auto& calls = log.root.children;
    EXPECT_NE(calls[0]->text.find("::detect("), std::string::npos);
    EXPECT_EQ(
        outline(*calls[0]),
        Lines({"average peak width: 20.5", "smoothed signal", "Valleys redefinition w/overlapping",
               "Number of peaks before filtering w/noise : " + peaks, "final number of peaks : " + peaks}));
    EXPECT_EQ(calls[0]->children[1]->objectTypeName(), typeid(Smoother).name());
    EXPECT_EQ(outline(*calls[1]), Lines({"Mask size:10.25"}));
    EXPECT_EQ(outline(*calls[2]), Lines({"Mask size:-0.123457"}));
    const auto& failed = dynamic_cast<const NodeMethodCall&>(*calls[2]);
    EXPECT_GE(failed.endTime, failed.time);
    EXPECT_EQ(outline(*calls[3]), Lines({"peaks filtered: 0"}));
    EXPECT_EQ(outline(*calls[4]), Lines({"average peak width: 0", "warning: void chromatogram created"}));
}

TEST(RunLog, what_a_processor_refuses_leaves_no_node_and_changes_no_result) {
    Log log;
    log.refused = {typeid(NodeObject<std::shared_ptr<const algo::core::Filter<double, Values>>>),
                   typeid(NodeInfo)};
    const auto signal = curve({{100, 900, 20}});
    for (int run = 0; run < 2; ++run) {
        EXPECT_FALSE(detectorOf(signal, 20).detect(signal, &log.root)->peaks().empty());
        ASSERT_EQ(outline(log.root), Lines({"method", "method"})); // those of the first run
        EXPECT_TRUE(log.root.children[0]->children.empty());
        log.refused = {typeid(NodeMethodCall)};
    }
}
