#include "enginetest.h"

#include <cmath>

using namespace enginetest;
using algo::core::ErrorParameter;
using algo::core::Parameter;
using algo::core::ParameterBase;
using Set = algo::core::ParametersBase<double>;

TEST(Parameters, a_value_set_by_name_is_rounded_to_six_digits) {
    Set set;
    set.addParameter(std::make_shared<Parameter<double>>("a", 0.7), "first");
    const double& value = set.getValue<double>("a");
    set.setValue("a", 0.1234567);
    EXPECT_EQ(value, 0.123457);
    set.setValue("a", -1234567.0);
    EXPECT_EQ(value, -1.23457e6);
    EXPECT_EQ(algo::core::toString(0.1 + 0.2) + " " + algo::core::toString(1234567.0), "0.3 1.23457e+06");
}

TEST(Parameters, unknown_and_repeated_names_are_refused) {
    constexpr const char* header = "core/parametrizer.h";
    Set set;
    set.addParameter(std::make_shared<Parameter<double>>("a", 0.7), "first");
    EXPECT_RAISES(set.addParameter(std::make_shared<Parameter<double>>("a", 0.9), "second"),
                  "ParametersBase::addParameter", header, "Parameters of name a already defined");
    EXPECT_EQ(set.getValue<double>("a"), 0.7);
    EXPECT_EQ(set.descriptions().at("a"), "first");
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
    EXPECT_EQ(parameters.getValue<double>("signalNoiseFactor"), 3);
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
    ParameterBase base("c");
    base.setFromString("3");
    EXPECT_EQ(base.valueAsString(), "nil");
}
