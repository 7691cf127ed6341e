#include "Application.h"
#include "ExampleProject.h"
#include "ExpectedWarning.h"
#include "MessageCollector.h"
#include "TavrelStyle.h"
#include "VKDatabaseVornMGR.h"
#include "Walk.h"
#include "core/memorymanager.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QPixmapCache>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <stdexcept>
#include <vector>

#include <malloc.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>

extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // in a header of clang's alone
#endif

namespace {

constexpr int stepsOfRound = 60;
constexpr std::uint64_t longestCurve = 1300;
constexpr int mostRecentProjects = 10; // each an entry of a menu
constexpr int keptByTabBar = 1;      // what it draws a tab with that is being moved, made with the first one
constexpr double warmingUp = 1.2e6;  // bytes: fonts, letters and names that were not met before
constexpr double perRound = 8e3;     // bytes
constexpr unsigned longestStep = 60; // s

std::size_t heapInUse() {
#if defined(__SANITIZE_ADDRESS__)
    return __sanitizer_get_current_allocated_bytes();
#else
    return mallinfo2().uordblks;
#endif
}

/// What is left after a round.
struct Trace {
    std::size_t heap; ///< bytes
    int widgets;
    int objects;
};

int number(const char* variable, int otherwise) {
    bool isThere = false;
    const int value = qEnvironmentVariableIntValue(variable, &isThere);
    return isThere ? value : otherwise;
}

/// Whole and damaged ones, and what is no file of ours at all.
void makeFiles(const QDir& files) {
    files.mkpath(QStringLiteral("a folder.S00"));
    Chance chance(1);
    for (const QString& source : {QStringLiteral(VORN_EXAMPLES), QStringLiteral(VORN_EXAMPLES "/tables")}) {
        for (const QFileInfo& entry : QDir(source).entryInfoList({"*.?00", "*.xls*"}, QDir::Files)) {
            QFile whole(entry.filePath());
            QFile damaged(files.filePath(QStringLiteral("damaged ") + entry.fileName()));
            ASSERT_TRUE(whole.copy(files.filePath(entry.fileName())) && whole.open(QIODevice::ReadOnly));
            QByteArray bytes = whole.readAll();
            for (int changes = 0; changes < 20; ++changes) {
                bytes[chance.below(bytes.size())] = static_cast<char>(chance.below(256));
            }
            ASSERT_TRUE(damaged.open(QIODevice::WriteOnly) && damaged.write(bytes) == bytes.size());
        }
    }
}

class Soak : public testing::Test {
protected:
    Soak() {
        VKDatabaseVornMGR::getInstance()->setPlace(catalogue.filePath("parameters.vorncatalogue"));
        makeFiles(files.path());
        fillPool();
        workbench.window().show();
    }
    ~Soak() override { VKDatabaseVornMGR::getInstance()->close(); }

    /// The engine keeps a buffer of each length that it met, so slider by slider a little more.
    static void fillPool() {
        for (std::uint64_t length = 0; length < longestCurve; ++length) {
            algo::core::MemoryManager<std::vector<double>>::getVector(length);
        }
    }

    /// In a folder and with settings of its own, so that its seed alone brings it back.
    Trace round(unsigned seed) {
        const QTemporaryDir place;
        QSettings().clear();
        QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).removeRecursively();
        workbench.projects().create(place.filePath("round.vornproj"), &ExampleProject::fill);
        {
            Walk walk(workbench, {files.path(), place.path()}, seed);
            const char* last = "the start";
            for (int step = 0; step < stepsOfRound && !HasFailure(); ++step) {
                alarm(longestStep);
                last = walk.step();
                checkLog();
            }
            alarm(0);
            EXPECT_FALSE(HasFailure()) << "after: " << last << "; again with VORN_SOAK_SEED=" << seed;
        }
        Walk::tidyUp(workbench);
        return {heapInUse(), QApplication::allWidgets().size(),
                workbench.window().findChildren<QObject*>().size()};
    }

    void checkLog() {
        const MessageLogModel& log = workbench.log();
        for (; logged < log.rowCount(); ++logged) {
            const QString text = log.index(logged, MessageLogModel::TextColumn).data().toString();
            EXPECT_FALSE(text.startsWith("An operation failed") || text.startsWith("Une opération a échoué"))
                << text.toStdString();
        }
    }

    const QTemporaryDir files;
    const QTemporaryDir catalogue;
    Workbench workbench;
    int logged = 0;
};

template <class Value>
Value leastOf(const std::vector<Trace>& rounds, std::size_t from, std::size_t to, Value Trace::*value) {
    Value least = rounds.at(from).*value;
    for (std::size_t i = from; i < to; ++i) {
        least = std::min(least, rounds[i].*value);
    }
    return least;
}

} // namespace

TEST_F(Soak, whatever_a_user_does_nothing_breaks_and_nothing_is_left) {
    const auto seed = static_cast<unsigned>(number("VORN_SOAK_SEED", 1));
    const int seconds = number("VORN_SOAK_SECONDS", 15);
    QElapsedTimer clock;
    clock.start();
    std::vector<Trace> rounds;
    for (unsigned turn = 0; !HasFailure() && (turn == 0 || clock.elapsed() < 1000 * seconds); ++turn) {
        qInfo("soak: round %u, seed %u", turn, seed + turn);
        rounds.push_back(round(seed + turn));
        qInfo("soak: heap %zu, widgets %d, objects %d", rounds.back().heap, rounds.back().widgets,
              rounds.back().objects);
    }
    const std::size_t third = rounds.size() / 3;
    if (HasFailure() || third < 2) {
        return;
    }
    const auto growth = [&](auto Trace::*value) {
        return static_cast<double>(leastOf(rounds, 2 * third, rounds.size(), value)) -
               static_cast<double>(leastOf(rounds, third, 2 * third, value));
    };
    EXPECT_LE(growth(&Trace::widgets), keptByTabBar);
    EXPECT_LE(growth(&Trace::objects), mostRecentProjects);
    EXPECT_LE(growth(&Trace::heap), warmingUp + perRound * static_cast<double>(third));
}

TEST(LastNet, what_leaves_a_slot_is_logged_and_the_window_lives_on) {
    MessageCollector log;
    MessageLoggerInterface::setDefaultLogger(&log);
#if defined(__SANITIZE_ADDRESS__)
    const __lsan::ScopedDisabler guardsOfQt; // which an exception does not unwind: a few bytes each
#endif
    QPushButton button;
    int clicks = 0;
    QObject::connect(&button, &QPushButton::clicked, [&clicks] {
        if (++clicks == 1) {
            throw std::runtime_error("the <b>curve</b> has no end");
        }
        if (clicks == 2) {
            throw 3;
        }
    });
    button.show();
    for (int i = 0; i < 3; ++i) {
        QTest::mouseClick(&button, Qt::LeftButton);
    }
    EXPECT_EQ(clicks, 3);
    const QStringList errors = log.messages(MessageLevel::Error);
    MessageLoggerInterface::setDefaultLogger(nullptr);
    ASSERT_EQ(errors.size(), 2);
    EXPECT_TRUE(errors[0].contains("the &lt;b&gt;curve&lt;/b&gt; has no end")) << errors[0].toStdString();
}

int main(int argc, char** argv) {
    const QTemporaryDir home;
    for (const char* const place : {"HOME", "XDG_RUNTIME_DIR", "XDG_DATA_HOME", "XDG_CONFIG_HOME"}) {
        qputenv(place, home.path().toLocal8Bit());
    }
    QDir::setCurrent(home.path());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    TavrelStyle::prepareApplication();
    Application application(argc, argv);
    QCoreApplication::setOrganizationName("vorn");
    QCoreApplication::setApplicationName("soak");
    QApplication::setStyle(new TavrelStyle);
    application.setQuitOnLastWindowClosed(false);
    QPixmapCache::setCacheLimit(0); // it fills slowly, and forgets to forget the names of what it drops
    ExpectedWarning::installGuard();
    const int result = RUN_ALL_TESTS();
#if defined(__SANITIZE_ADDRESS__)
    __lsan_do_leak_check(); // before Qt leaves its own things behind
#endif
    return result;
}
