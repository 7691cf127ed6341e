#include "TKnownProperty.h"

#include <gtest/gtest.h>

namespace {

std::string plain(const char* name) {
    return TKnownProperty::plain(QString::fromUtf8(name)).toStdString();
}

} // namespace

TEST(TKnownPropertyPlain, what_writers_choose_freely_does_not_count) {
    EXPECT_EQ(plain(" T_max (°C) "), "tmaxc");
    EXPECT_EQ(plain("ÉTHANE"), plain("e\u0301thane"));
    EXPECT_EQ(plain("i-C₄"), "ic4");
    EXPECT_EQ(plain("δ¹³C-CH₄ (‰)"), "d13cch4");
    EXPECT_EQ(plain("Δ13C CH4"), plain("∆13C\u00A0CH4"));
    EXPECT_EQ(plain("Ｃ１"), "c1");
}

TEST(TKnownPropertyPlain, a_plus_and_a_slash_stay_where_they_tell_names_apart) {
    EXPECT_EQ(plain("C₆ +"), "c6+");
    EXPECT_EQ(plain("S1 + S2"), "s1+s2");
    EXPECT_EQ(plain("C1/(C2 + C3)"), "c1/c2+c3");
    EXPECT_EQ(plain("S1\u2215TOC"), "s1/toc");
    EXPECT_EQ(plain("/+ depth / "), "depth");
    EXPECT_EQ(plain("C6++"), "c6+");
    EXPECT_EQ(plain("C2+ / C1+"), "c2+/c1+");
    EXPECT_EQ(plain("S3’ CO"), "s3'co");
    EXPECT_EQ(plain("Indice d'hydrogène"), "indicedhydrogene");
    EXPECT_EQ(plain("S3’ CO"), "s3'co");
    EXPECT_EQ(plain("Indice d'hydrogène"), "indicedhydrogene");
}

TEST(TKnownPropertyPlain, names_of_signs_alone_are_empty_and_other_scripts_stay) {
    EXPECT_EQ(plain(" / (%) — "), "");
    EXPECT_EQ(plain("Глубина"), "глубина");
    EXPECT_EQ(plain("𐌰 1"), "𐌰1");
}
