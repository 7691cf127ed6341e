#include "rockeval/french.h"
#include "rockeval/readbytes.h"
#include "rockeval/readerror.h"
#include "rockeval/resultreader.h"
#include "rockeval/signalreader.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace {

using rockeval::inFrench;

void expectFrench(const std::vector<rockeval::Warning>& warnings, std::size_t count) {
    EXPECT_EQ(warnings.size(), count);
    for (const rockeval::Warning& warning : warnings)
        EXPECT_NE(inFrench(warning.text), warning.text) << warning.text;
}

std::string problemOf(const std::function<void()>& read) {
    try {
        read();
    } catch (const rockeval::ReadError& error) {
        return error.problem();
    }
    return {};
}

} // namespace

TEST(French, whatever_the_readers_remark_has_a_french_form_that_keeps_what_stood_in_the_file) {
    const auto signal =
        rockeval::readSignal("[Curves pyro]\n0\t1\t5\n1\t1\n2\t1\tx between y\n0\t1\t5\n9\t1\t5\n"
                             "[Curves pyro]\n",
                             "a.S00");
    expectFrench(signal.warnings, 5);
    EXPECT_EQ(inFrench(signal.warnings[3].text), "secondes manquantes : 8 entre 0 s et 9 s");
    EXPECT_EQ(inFrench(warningText(signal.warnings[3])),
              "ligne 6 : secondes manquantes : 8 entre 0 s et 9 s");
    EXPECT_EQ(inFrench("line x: missing"), "line x: missing");
    EXPECT_EQ(inFrench("line "), "line ");
    EXPECT_EQ(
        inFrench(signal.warnings[1].text),
        "ligne laissée de côté : \"x between y\", dans la colonne FID, n'est pas un nombre qui peut être "
        "enregistré");
    expectFrench(rockeval::readSignal("[Curves pyro]\n0\t1\t5\n1\t1\t5", "a.S00").warnings, 1);
    const auto results = rockeval::readResults("x=1\n[A\nno key\nk=1\nk=2\n[A]\n", "a.R00");
    expectFrench(results.warnings, 5);
}

TEST(French, whatever_ends_a_reading_has_a_french_form) {
    const auto signal = [](const std::string& text) {
        return problemOf([&] { (void)rockeval::readSignal(text, "a.S00"); });
    };
    for (const std::string& problem :
         {signal(""), signal(std::string("a\0b", 3)), signal("\xFF\xFE"), signal("[Curves pyro]\nx\n"),
          signal("[Other]\n"), problemOf([] { (void)rockeval::readResults("no section", "a.R00"); }),
          problemOf([] { (void)rockeval::readBytes("/nowhere/a.S00"); }),
          problemOf([] { (void)rockeval::readBytes("/"); }),
          problemOf([] { (void)rockeval::readBytes("/dev/null"); })}) {
        EXPECT_FALSE(problem.empty());
        EXPECT_NE(inFrench(problem), problem) << problem;
    }
    EXPECT_EQ(inFrench("a text of nobody"), "a text of nobody");
    EXPECT_EQ(inFrench("missing seconds: 3"), "missing seconds: 3") << "half a form is none";
}
