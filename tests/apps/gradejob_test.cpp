#include "digest.h"
#include "gradejob.h"
#include "rockeval/channels.h"
#include "rockeval/signalreader.h"
#include "sourcerockqaqc/rawsignal.h"
#include "sourcerockqaqc/srqaqcmngr.h"
#include "temporaryfolder.h"

#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <fstream>
#include <map>
#include <sstream>

namespace {

using Values = std::vector<double>;

struct Result {
    int status = 0;
    std::string out;
    std::string err;
};

Result run(const grade::Options& options) {
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    const int status = grade::run(options, {in, out, err, {}, false});
    return {status, out.str(), err.str()};
}

grade::Options optionsFor(std::vector<std::string> paths, grade::Format format = grade::Format::json) {
    grade::Options options;
    options.paths = std::move(paths);
    options.format = format;
    return options;
}

std::vector<rapidjson::Document> jsonLines(const std::string& text) {
    std::vector<rapidjson::Document> documents;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        documents.emplace_back();
        documents.back().Parse<rapidjson::kParseFullPrecisionFlag>(line.c_str());
        EXPECT_FALSE(documents.back().HasParseError()) << line;
    }
    return documents;
}

std::string example(const std::string& name) {
    return std::string(VORN_EXAMPLES) + "/" + name;
}

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

} // namespace

TEST(Examples, every_curve_has_the_grade_and_the_tops_it_was_built_for) {
    const auto lines = jsonLines(run(optionsFor({VORN_EXAMPLES})).out);
    std::map<std::string, const rapidjson::Document*> graded;
    for (const auto& line : lines) {
        graded[line["name"].GetString()] = &line;
    }
    std::ifstream table(example("expected-grades.csv"));
    std::string line;
    std::getline(table, line); // the heading
    std::size_t expected = 0;
    for (; std::getline(table, line); ++expected) {
        SCOPED_TRACE(line);
        std::istringstream cells(line);
        std::string file;
        std::string quality;
        std::string name;
        std::string tops;
        for (std::string* cell : {&file, &quality, &name, &tops}) {
            std::getline(cells, *cell, ',');
        }
        ASSERT_EQ(graded.count(file), 1U);
        const auto& record = *graded[file];
        EXPECT_EQ(std::to_string(record["quality"].GetInt()), quality);
        EXPECT_EQ(record["grade"].GetString(), name);
        const auto peaks = record["peaks"].GetArray();
        std::istringstream times(tops);
        const Values built{std::istream_iterator<double>(times), {}};
        ASSERT_EQ(peaks.Size(), built.size());
        for (unsigned i = 0; i < peaks.Size(); ++i) {
            EXPECT_NEAR(peaks[i]["x"].GetDouble(), built[i], 3.0);
        }
    }
    EXPECT_GE(expected, 24U);
    EXPECT_EQ(lines.size(), expected) << "every raw file stands in the table";
}

TEST(GradeJob, a_file_that_cannot_be_read_costs_the_others_nothing) {
    const TemporaryFolder folder;
    const std::string good = folder.write("3.S00", contentOf(example("good-clean-01.S00")));
    folder.write("1.S00", "");
    folder.write("2.S00", std::string("MZ\0\1", 4));
    folder.write("4.S00", "[Curves pyro]\r\n0\t200\t5\r\n"); // one point has no useful range

    const Result result = run(optionsFor({folder.path(), folder.path("5.S00")}));
    EXPECT_EQ(result.status, 1);
    const auto lines = jsonLines(result.out);
    ASSERT_EQ(lines.size(), 5U);
    for (std::size_t i : {0U, 1U, 3U, 4U}) {
        const std::string file = folder.path(std::to_string(i + 1) + ".S00");
        EXPECT_EQ(lines[i]["file"].GetString(), file);
        EXPECT_EQ(std::string(lines[i]["error"].GetString()).rfind(file, 0), 0U)
            << lines[i]["error"].GetString();
        EXPECT_FALSE(lines[i].HasMember("grade"));
    }
    EXPECT_STREQ(lines[2]["grade"].GetString(), "good");
    EXPECT_EQ(run(optionsFor({good})).status, 0);
}

TEST(GradeJob, the_same_input_gives_the_same_bytes_in_every_output) {
    const TemporaryFolder folder;
    const auto outputs = [&folder](grade::Format format) {
        grade::Options options = optionsFor({VORN_EXAMPLES}, format);
        options.report = folder.path("a.html");
        options.machineLearning = folder.path("a.txt");
        const std::string out = run(options).out;
        EXPECT_TRUE(contains(contentOf(*options.report), "</html>"));
        return std::vector{out, contentOf(*options.report), contentOf(*options.machineLearning)};
    };
    for (const auto format : {grade::Format::table, grade::Format::csv, grade::Format::json}) {
        EXPECT_EQ(outputs(format), outputs(format));
    }
}

TEST(GradeJob, the_machine_learning_file_is_what_the_manager_exports_with_its_origin_beside_it) {
    const TemporaryFolder folder;
    const std::string path = example("double-clean-01.S00");
    grade::Options options = optionsFor({path});
    options.machineLearning = folder.path("ml.txt");
    ASSERT_EQ(run(options).status, 0);

    const auto channels = rockeval::toChannels(rockeval::readSignalFile(path).curve);
    algo::sr_qaqc::SourceRockQAQCMgr<double, Values> manager(
        std::make_shared<algo::sr_qaqc::SourceRockQAQCSettings<double, Values>>());
    manager.addAnalysis(algo::sr_qaqc::rawSignal<double, Values>(channels.time.data(), channels.fid.data(),
                                                                 static_cast<int>(channels.time.size())),
                        "double");
    std::ostringstream exported;
    manager.exportData(exported);
    EXPECT_EQ(contentOf(folder.path("ml.txt")), exported.str());
    EXPECT_TRUE(contains(exported.str(), "]\n]\ny=[2;]\n"));

    rapidjson::Document origin;
    origin.Parse(contentOf(folder.path("ml.origin.json")).c_str());
    ASSERT_FALSE(origin.HasParseError());
    EXPECT_STREQ(origin["version"].GetString(), grade::version());
    EXPECT_EQ(origin["settings"]["coelution"].GetDouble(), options.settings.coelution);
    ASSERT_EQ(origin["inputs"].Size(), 1U);
    EXPECT_EQ(origin["inputs"][0]["sha256"].GetString(), grade::sha256(contentOf(path)));
    EXPECT_EQ(origin["inputs"][0]["quality"].GetInt(), 2);
    options.machineLearning = "/dev/null";
    EXPECT_EQ(run(options).status, 0) << "nothing can lie beside it";
}

TEST(GradeJob, language_and_settings_reach_the_output_and_leave_the_words_of_programs) {
    const TemporaryFolder folder;
    grade::Options options = optionsFor({folder.write("1.S00", ""), example("good-missing-seconds-01.S00")});
    options.language = gradereport::Language::french;
    const std::string out = run(options).out;
    for (const char* part : {"ligne 1 : le fichier est vide", "secondes manquantes", "Un seul pic subsiste",
                             "\"grade\":\"good\""}) {
        EXPECT_TRUE(contains(out, part)) << part << " in " << out;
    }
    options.settings.heightCriteria = 4.0;
    options.paths.erase(options.paths.begin());
    const auto lines = jsonLines(run(options).out);
    EXPECT_STREQ(lines.at(0)["grade"].GetString(), "flat");
    EXPECT_EQ(lines[0]["settings"]["height"].GetDouble(), 4.0);
    EXPECT_STREQ(lines[0]["version"].GetString(), grade::version());
}

TEST(GradeJob, an_output_that_cannot_be_written_is_told) {
    grade::Options options = optionsFor({example("good-clean-01.S00")});
    std::istringstream in;
    std::ofstream out("/dev/full");
    std::ostringstream err;
    EXPECT_EQ(grade::run(options, {in, out, err, {}, false}), 1);
    EXPECT_FALSE(err.str().empty());

    options.report = "/nonexistent/report.html";
    const Result refused = run(options);
    EXPECT_EQ(refused.status, 2);
    EXPECT_TRUE(refused.out.empty()) << "nothing is graded before the file can be written";
    EXPECT_TRUE(contains(refused.err, *options.report));

    options.report = "/dev/full";
    const Result full = run(options);
    EXPECT_EQ(full.status, 1);
    EXPECT_TRUE(contains(full.err, *options.report));
}

TEST(GradeJob, a_curve_too_long_to_be_a_pyrolysis_is_refused) {
    const TemporaryFolder folder;
    std::string text = "[Curves pyro]\n";
    for (std::size_t t = 0; t <= grade::maxPoints; ++t) {
        text += std::to_string(t) + "\t0\t1\n";
    }
    const auto lines = jsonLines(run(optionsFor({folder.write("long.S00", text)})).out);
    EXPECT_TRUE(contains(lines.at(0)["error"].GetString(), "points"));
}
