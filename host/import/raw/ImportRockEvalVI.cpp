#include "ImportRockEvalVI.h"

#include "LastReadCurve.h"
#include "MessageLoggerInterface.h"
#include "RawFileKind.h"
#include "RawOrigin.h"
#include "RegularFile.h"
#include "RockEvalResults.h"
#include "TFileBuffer.h"
#include "VKDataModelGeneric.h"
#include "VKError.h"
#include "rockeval/channels.h"
#include "rockeval/french.h"
#include "rockeval/readbytes.h"
#include "rockeval/readerror.h"
#include "rockeval/resultreader.h"
#include "rockeval/signalreader.h"

#include <QFileInfo>

#include <algorithm>
#include <new>
#include <string_view>

using RawFileKind::Kind;

namespace {

/// More warnings of one file than these help nobody: a pass may bring a thousand files.
constexpr std::size_t mostWarnings = 10;

QString shown(const QString& path) {
    return QFileInfo(path).fileName().toHtmlEscaped();
}

/// The readers know no translator, but French.
QString fromReader(const std::string& text) {
    const QByteArray french = QByteArray::fromStdString(rockeval::inFrench(text));
    const QByteArray english = QByteArray::fromStdString(text);
    return ImportRockEvalVI::tr(english.constData(), french.constData()).toHtmlEscaped();
}

std::string_view viewOf(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

/// A sentence about a place in a file; line 0 names none.
QString remark(const QString& name, std::size_t line, const QString& text) {
    if (line == 0) {
        return ImportRockEvalVI::tr("<b>%1</b>: %2.", "<b>%1</b> : %2.").arg(name, text);
    }
    return ImportRockEvalVI::tr("<b>%1</b>, line %2: %3.", "<b>%1</b>, ligne %2 : %3.")
        .arg(name, QString::number(line), text);
}

void logWarnings(const QString& name, const std::vector<rockeval::Warning>& warnings) {
    for (std::size_t i = 0; i < std::min(warnings.size(), mostWarnings); ++i) {
        MessageLoggerInterface::Warning(remark(name, warnings[i].line, fromReader(warnings[i].text)));
    }
    if (warnings.size() > mostWarnings) {
        MessageLoggerInterface::Warning(
            remark(name, warnings[mostWarnings].line,
                   ImportRockEvalVI::tr("there are more such places from this line on; check the file",
                                        "il y en a d'autres à partir de cette ligne ; vérifiez le fichier")));
    }
}

/// The first bytes of a file on disk. Throws VKError.
QByteArray headOf(const QString& path) {
    RegularFile file(path);
    QByteArray head = file.read(RawFileKind::headSize);
    if (!file.refusal().isEmpty()) {
        throw VKError(remark(shown(path), 0, file.refusal()));
    }
    return head;
}

} // namespace

ImportRockEvalVI::ImportRockEvalVI() = default;
ImportRockEvalVI::~ImportRockEvalVI() = default;

void ImportRockEvalVI::prepareForProbe(bool probe) {
    if (probe) {
        forgetSource();
    }
}

bool ImportRockEvalVI::acceptsFile(TFileBuffer& buffer, const QString& path, QString& text) {
    if (RawFileKind::ofName(path) == Kind::Other) {
        return false;
    }
    try {
        const QByteArray head = buffer.isEmpty() ? headOf(path) : buffer.data().left(RawFileKind::headSize);
        if (RawFileKind::looksRaw(head)) {
            return true;
        }
        text =
            remark(shown(path), 0,
                   tr("no section in square brackets stands near its beginning, so this is no raw "
                      "Rock-Eval file; export it from the analyser again as plain text",
                      "aucune section entre crochets ne figure près du début, ce n'est donc pas un fichier "
                      "brut Rock-Eval ; exportez-le à nouveau de l'analyseur en texte brut"));
    } catch (const VKError& error) {
        text = error.text();
    }
    MessageLoggerInterface::Error(text);
    return false;
}

void ImportRockEvalVI::setSource(const QString&, const QString& name, const QString&, TFileBuffer* buffer) {
    forgetSource();
    m_name = name;
    m_buffer.reset(buffer);
}

int ImportRockEvalVI::dataCount() {
    read();
    return m_count;
}

float* ImportRockEvalVI::firstChannel() {
    read();
    return m_time.empty() ? nullptr : m_time.data();
}

float* ImportRockEvalVI::secondChannel() {
    read();
    return m_fid.empty() ? nullptr : m_fid.data();
}

QAbstractItemModel* ImportRockEvalVI::resultsModel() {
    read();
    return m_results.get();
}

void ImportRockEvalVI::forgetSource() {
    m_name.clear();
    m_buffer.reset();
    m_read = false;
    m_count = NO_DATA_CODE;
    m_time.clear();
    m_fid.clear();
    m_results.reset();
}

void ImportRockEvalVI::read() {
    if (m_read || m_name.isEmpty()) {
        return;
    }
    m_read = true;
    try {
        readContent();
    } catch (const rockeval::ReadError& error) {
        MessageLoggerInterface::Error(remark(shown(m_name), error.line(), fromReader(error.problem())));
    } catch (const std::bad_alloc&) {
        MessageLoggerInterface::Error(
            remark(shown(m_name), 0,
                   tr("there is not enough memory for this file; close other programs and import it again",
                      "la mémoire ne suffit pas pour ce fichier ; fermez d'autres programmes et importez-le "
                      "à nouveau")));
    } catch (const VKError& error) {
        MessageLoggerInterface::Error(error.text());
    }
}

void ImportRockEvalVI::readContent() {
    const QByteArray bytes = content();
    const std::string name = m_name.toStdString();
    if (RawFileKind::ofName(m_name) == Kind::Results) {
        const rockeval::ResultTable table = rockeval::readResults(viewOf(bytes), name);
        m_results = RockEvalResults::model(table);
        m_count = R00_TABLE_CODE;
        logWarnings(shown(m_name), table.warnings);
        MessageLoggerInterface::Information(tr("<b>%1</b>: a table of %2 results was read.",
                                               "<b>%1</b> : un tableau de %2 résultats a été lu.")
                                                .arg(shown(m_name), QString::number(m_results->rowCount())));
        return;
    }
    const rockeval::RawSignal signal = rockeval::readSignal(viewOf(bytes), name);
    rockeval::Channels channels = rockeval::toChannels(signal.curve);
    m_time = std::move(channels.time);
    m_fid = std::move(channels.fid);
    m_count = static_cast<int>(m_time.size());
    LastReadCurve::returnMe().remember(
        {m_time, m_fid}, RawOrigin::of(QFileInfo(m_name).absoluteFilePath(), bytes, signal.warnings));
    logWarnings(shown(m_name), signal.warnings);
}

QByteArray ImportRockEvalVI::content() {
    const auto buffer = m_buffer ? std::move(m_buffer) : std::make_unique<TFileBuffer>(m_name, false);
    if (buffer->isEmpty()) {
        buffer->read();
    }
    if (static_cast<std::size_t>(buffer->data().size()) > rockeval::maxFileBytes) {
        throw VKError(
            remark(shown(m_name), 0,
                   tr("it is larger than any raw Rock-Eval file; choose a .S00 or .R00 file",
                      "il dépasse tout fichier brut Rock-Eval ; choisissez un fichier .S00 ou .R00")));
    }
    return buffer->data();
}
