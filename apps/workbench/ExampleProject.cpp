#include "ExampleProject.h"

#include "TAnalysisData.h"
#include "TDatabase.h"
#include "Transaction.h"
#include "VKError.h"
#include "rockeval/channels.h"
#include "rockeval/signalreader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <exception>

namespace {

TAnalysisData curveOf(const QString& path) {
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    const QByteArray bytes = file.readAll();
    const rockeval::RawSignal signal =
        rockeval::readSignal({bytes.constData(), static_cast<std::size_t>(bytes.size())}, path.toStdString());
    rockeval::Channels channels = rockeval::toChannels(signal.curve);
    return {std::move(channels.time), std::move(channels.fid)};
}

} // namespace

void ExampleProject::fill(TechDB::TDatabase& project) {
    TechDB::Transaction transaction(project);
    const QFileInfoList files = QDir(QStringLiteral(":/examples")).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo& file : files) {
        try {
            project.addAnalysis(file.fileName(), QStringLiteral("Rock-Eval VI"), curveOf(file.filePath()));
        } catch (const std::exception& error) {
            VKError::dispatchError(error);
        }
    }
    transaction.commit();
}
