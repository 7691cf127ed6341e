#include "ImportTextPairs.h"

#include "MessageLoggerInterface.h"
#include "RegularFile.h"
#include "TFileBuffer.h"
#include "TextPairs.h"
#include "WorkbookModel.h"

#include <QFileInfo>

namespace {

Workbook::Book bookOf(const TextPairs::Table& table) {
    Workbook::Sheet sheet;
    for (const TextPairs::Pair& pair : table.pairs) {
        sheet.rows.push_back({pair.sample, pair.value});
    }
    return {{std::move(sheet)}, {}};
}

} // namespace

ImportTextPairs::ImportTextPairs() = default;

ImportTextPairs::~ImportTextPairs() = default;

void ImportTextPairs::prepareForProbe(bool probe) {
    if (probe) {
        forget();
    }
}

bool ImportTextPairs::acceptsFile(TFileBuffer& buffer, const QString& path, QString& text) {
    if (QFileInfo(path).suffix().toLower() != QLatin1String("txt")) {
        return false;
    }
    // Opening what is no file, a pipe for instance, would wait for ever; the host's class refuses it
    // unopened.
    const QString refusal = buffer.isEmpty() ? RegularFile(path).refusal() : QString();
    if (refusal.isEmpty()) {
        return true;
    }
    text =
        tr("The file <b>%1</b> can't be imported: %2", "Le fichier <b>%1</b> ne peut pas être importé : %2")
            .arg(path.toHtmlEscaped(), refusal);
    MessageLoggerInterface::Error(text);
    return false;
}

void ImportTextPairs::setSource(const QString&, const QString& name, const QString&, TFileBuffer* buffer) {
    forget();
    m_name = name;
    m_buffer.reset(buffer);
}

QAbstractItemModel* ImportTextPairs::importedModel() {
    if (m_model != nullptr || m_name.isEmpty()) {
        return m_model.get();
    }
    if (m_buffer == nullptr) {
        m_buffer = std::make_unique<TFileBuffer>(m_name, true);
    }
    const QString fileName = QFileInfo(m_name).fileName();
    const TextPairs::Table table = TextPairs::read(m_buffer->data(), fileName);
    for (const TextPairs::Warning& warning : table.warnings) {
        MessageLoggerInterface::Warning(
            tr("File <b>%1</b>, line %2: %3", "Fichier <b>%1</b>, ligne %2 : %3")
                .arg(fileName.toHtmlEscaped(), QString::number(warning.line), warning.text));
    }
    m_buffer.reset();
    m_model = std::make_unique<WorkbookModel>(bookOf(table), fileName);
    return m_model.get();
}

void ImportTextPairs::forget() {
    m_name.clear();
    m_buffer.reset();
    m_model.reset();
}
