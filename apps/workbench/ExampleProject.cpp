#include "ExampleProject.h"

#include "RawOrigin.h"
#include "TAnalysisData.h"
#include "TDatabase.h"
#include "Transaction.h"
#include "VKError.h"
#include "VKObject2Analysis.h"
#include "rockeval/channels.h"
#include "rockeval/signalreader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <exception>

namespace {

void store(TechDB::TDatabase& project, const QFileInfo& example) {
    QFile file(example.filePath());
    file.open(QIODevice::ReadOnly);
    const QByteArray bytes = file.readAll();
    const rockeval::RawSignal signal = rockeval::readSignal(
        {bytes.constData(), static_cast<std::size_t>(bytes.size())}, example.fileName().toStdString());
    rockeval::Channels channels = rockeval::toChannels(signal.curve);
    const VKObject2Analysis* const stored =
        project.addAnalysis(example.fileName(), QStringLiteral("Rock-Eval VI"),
                            {std::move(channels.time), std::move(channels.fid)});
    project.setOrigin(stored->key(), RawOrigin::of(example.fileName(), bytes, signal.warnings));
}

} // namespace

void ExampleProject::fill(TechDB::TDatabase& project) {
    TechDB::Transaction transaction(project);
    const QFileInfoList files = QDir(QStringLiteral(":/examples")).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo& file : files) {
        try {
            store(project, file);
        } catch (const std::exception& error) {
            VKError::dispatchError(error);
        }
    }
    transaction.commit();
}
