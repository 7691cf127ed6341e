#include "TDatabase.h"
#include "Transaction.h"

#include <QCoreApplication>

#include <chrono>
#include <cstdio>
#include <thread>

// writer PATH TYPE COUNT: stores COUNT analyses of 20,000 points, removes the one called "before", says so
// and waits for its end. TYPE "commit" commits all that before it says so, "hold" leaves it uncommitted.
int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const std::unique_ptr<TechDB::TDatabase> database = TechDB::TDatabase::open(arguments.value(1));
    std::vector<float> x(20000);
    for (std::size_t i = 0; i < x.size(); ++i) {
        x[i] = static_cast<float>(i);
    }
    const TAnalysisData curve(x, x);
    TechDB::Transaction transaction(*database);
    for (int i = 0; i < arguments.value(3).toInt(); ++i) {
        database->addAnalysis(QStringLiteral("during %1").arg(i), {}, curve);
    }
    database->removeAnalysis(database->analyses().first().key);
    if (arguments.value(2) == QLatin1String("commit")) {
        transaction.commit();
    }
    std::puts("written");
    std::fflush(stdout);
    std::this_thread::sleep_for(std::chrono::minutes(5));
    return 0;
}
