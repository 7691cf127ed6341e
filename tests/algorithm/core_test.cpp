#include "enginetest.h"

#include <cmath>

using namespace enginetest;
using algo::core::ErrorParameter;
using algo::core::Parameter;
using Pool = algo::core::MemoryManager<Values>;
using Set = algo::core::ParametersBase<double>;

// The pool lives as long as the process, so each test takes sizes of its own.
TEST(ScratchPool, a_freed_buffer_is_used_again_with_its_old_contents) {
    const auto* storage = &Pool::getVector(11).data();
    Pool::getVector(11).data()[3] = 42;
    const auto again = Pool::getVector(11);
    EXPECT_EQ(&again.data(), storage);
    EXPECT_EQ(again.data()[3], 42);
    EXPECT_EQ(Pool::getVector(11).data(), Values(11, 0.0)); // another one, since the first is in use
    EXPECT_EQ(Pool::getVector(10).data().size(), 10U);      // no larger buffer stands in
}

TEST(ScratchPool, copies_keep_a_buffer_busy_however_far_the_pool_grows) {
    std::vector<algo::core::Vector<Values>> handles;
    for (int i = 0; i < 3000; ++i) { // the vector copies them as it grows
        handles.push_back(Pool::getVector(13));
        handles.back().data()[0] = i;
    }
    for (std::size_t i = 0; i < 3000; ++i) {
        ASSERT_EQ(handles[i].data()[0], i);
    }
    handles[7] = handles[8];
    EXPECT_EQ(Pool::getVector(13).data()[0], 7); // assigned away, so free
    EXPECT_EQ(Pool::getVector(10000000).data().size(), 10000000U);
    EXPECT_RAISES(Pool::getVector(10000001), "MemoryManager::getVector", "core/memorymanager.h",
                  "request over-sized vector");
}

TEST(Parameters, are_set_as_text_of_six_digits_under_known_names_alone) {
    constexpr const char* header = "core/parametrizer.h";
    Set set;
    set.addParameter(std::make_shared<Parameter<double>>("a", 0.7), "first");
    EXPECT_RAISES(set.addParameter(std::make_shared<Parameter<double>>("a", 0.9), "second"),
                  "ParametersBase::addParameter", header, "Parameters of name a already defined");
    const double& value = set.getValue<double>("a");
    EXPECT_EQ(value, 0.7);
    EXPECT_EQ(set.descriptions().at("a"), "first");
    set.setValue("a", -1234567.0);
    EXPECT_EQ(value, -1.23457e6);
    EXPECT_RAISES(set.getValue<double>("A"), "ParametersBase::getValue", header,
                  "Try to get an undefined parameter (A)");
    EXPECT_RAISES(set.setValue("b", 1.0), "ParametersBase::setValue", header,
                  "Try to set an undefined parameter (b)");
}

TEST(Parameters, a_refused_value_raises_a_plain_text_and_the_old_one_stays) {
    Detector::Parameters parameters;
    for (const double outside : {0.0, 1.0, -0.5, 0.9999999, std::nan("")}) {
        try {
            parameters.setValue("sensibility", outside);
            ADD_FAILURE() << outside << " is accepted";
        } catch (const Failure& refused) {
            EXPECT_STREQ(refused.what(), "Bad parameter");
            EXPECT_EQ(dynamic_cast<const ErrorParameter&>(refused).parameter.name, "sensibility");
        }
        EXPECT_EQ(parameters.getValue<double>("sensibility"), 0.7);
    }
}

TEST(Parameters, text_that_is_no_number_gives_zero) {
    Parameter<double> value("a", 7);
    value.setFromString("2.5 apples");
    EXPECT_EQ(value.valueAsString(), "2.5");
    value.setFromString("apples");
    EXPECT_EQ(value.value, 0);
    Parameter<double> unguarded("b", 7, nullptr);
    EXPECT_THROW(unguarded.setFromString("3"), std::bad_function_call);
    EXPECT_EQ(unguarded.value, 3);
}

TEST(ScalarFunction, clamps_to_the_nearest_bound_or_fails_by_policy) {
    Line line(0, 1, 2, 5);
    EXPECT_EQ(line(-100), -199); // no domain, no test
    line.setDomain(-1, 1);
    EXPECT_EQ(line(2), 3);
    EXPECT_EQ(line(-2), -1);
    EXPECT_EQ(line.evaluate(2), 5);
    EXPECT_EQ(line.outOfDefinedDomain(-1), 3); // inside counts as above
    line.setOutOfDomainPolicy(0);
    EXPECT_EQ(line(1), 3);
    EXPECT_RAISES(line(2.5), "ScalarFunction1D::outOfDefinedDomain", "core/scalarfunction1d.h",
                  "try to evaluate a function out of its domain definition. x = 2.5, xmin=-1, xmax=1");
    line.setDomain(3, 3);
    EXPECT_EQ(line(2), 5); // equal bounds are no domain
}

TEST(NormalDistribution, gives_the_density_around_its_mean_scaled_to_its_area) {
    EXPECT_DOUBLE_EQ(algo::core::NormalDistribution<double>(2, 5, 10).evaluate(8), 0.6475879783294587);
    for (const double sigma : {0.0, -1.0}) {
        EXPECT_RAISES(algo::core::NormalDistribution<double>(sigma, 0, 1),
                      "NormalDistribution::NormalDistribution", "core/simplescalfunctions.h",
                      "sigma has to be positive for a normal distribution");
    }
}

TEST(NoiseLaw, clamps_its_argument_with_the_upper_bound_last_and_draws_the_same_in_copies) {
    const double nan = std::nan("");
    EXPECT_EQ(Noise(0, 1e9, 0.5, 0, 1)(49), 7);
    EXPECT_EQ(Noise(0, 1e9, 0.5, 0, 1)(-49), 0);
    EXPECT_EQ(Noise(5, 2, 1, 0, 1)(1), 2);
    EXPECT_EQ(Noise(3, 9, 2, 1, 10)(nan), 40);
    EXPECT_TRUE(std::isnan(Noise(-4, 9, 0.5, 0, 1)(-4)));
    Noise law(0, 1e9, 1, 0, 1);
    Noise copy = law;
    const double deviate = law.draw(3);
    EXPECT_NE(deviate, law.draw(3));
    EXPECT_EQ(deviate, copy.draw(3));
    EXPECT_EQ(Noise(1, 1, 1, 0, 0).draw(3), 0);
}

TEST(SignalIterator, ends_are_equal_wherever_they_stand_and_a_search_clears_the_flag) {
    const auto five = counted({5, 4, 3, 4, 5});
    const auto walk = [&five](std::uint64_t from, bool steps) {
        return Iterator([steps](const auto& point) { return steps && point.index % 2 == 0; }, five->at(from),
                        false, five);
    };
    EXPECT_TRUE(walk(2, true) == walk(2, false));
    EXPECT_TRUE(walk(2, true) != walk(3, true));
    EXPECT_TRUE(walk(2, true) + 9 == five->end());
    EXPECT_TRUE(five->begin() != five->begin() + 9);
    EXPECT_EQ((--walk(1, false))->index, 0);
    Iterator scan = walk(0, true) + 9;
    EXPECT_EQ(scan.search(walk(2, false) + 9, true)->index, 2);
    EXPECT_FALSE(scan.atEnd());
    EXPECT_EQ(scan.search(walk(2, false), false, counted({9, 8, 7}))->y, 7);
    EXPECT_RAISES(std::make_shared<Signal>(0)->begin(), "Signal1D::at", "core/signal1d.h",
                  "try to get an index out of signal's data range; i=0; size=0");
    EXPECT_THROW(Signal(2).begin(), std::bad_weak_ptr);
    EXPECT_THROW(++Iterator(nullptr, five->at(0), false, five), std::bad_function_call);
}
