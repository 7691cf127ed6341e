#include "ImportExcel.h"

#include "MessageLoggerInterface.h"
#include "RegularFile.h"
#include "TFileBuffer.h"
#include "WorkbookModel.h"
#include "WorkbookReader.h"

#include <QDir>
#include <QFileInfo>

namespace {

bool hasNameOfTable(const QString& path) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix == QLatin1String("xls") || suffix == QLatin1String("xlsx") ||
           suffix == QLatin1String("xlsm");
}

} // namespace

ImportExcel::ImportExcel() = default;

ImportExcel::~ImportExcel() = default;

void ImportExcel::prepareForProbe(bool probe) {
    if (probe) {
        forget();
    }
}

bool ImportExcel::acceptsFile(TFileBuffer& buffer, const QString& path, QString& text) {
    if (!hasNameOfTable(path)) {
        return false;
    }
    const QString refusal = refusalOf(buffer, path);
    if (refusal.isEmpty()) {
        return true;
    }
    text =
        tr("The file <b>%1</b> can't be imported: %2", "Le fichier <b>%1</b> ne peut pas être importé : %2")
            .arg(QDir::toNativeSeparators(path).toHtmlEscaped(), refusal);
    MessageLoggerInterface::Error(text);
    return false;
}

QString ImportExcel::refusalOf(const TFileBuffer& buffer, const QString& path) {
    if (!buffer.isEmpty()) {
        return refusalOf(buffer.data().left(WorkbookReader::beginningSize));
    }
    RegularFile file(path);
    const QByteArray beginning = file.read(WorkbookReader::beginningSize);
    return file.refusal().isEmpty() ? refusalOf(beginning) : file.refusal();
}

QString ImportExcel::refusalOf(const QByteArray& beginning) {
    if (WorkbookReader::looksLikeWorkbook(beginning)) {
        return {};
    }
    return tr("its content is no Excel workbook, whatever its name; save it as one",
              "son contenu n'est pas un classeur Excel, quel que soit son nom ; enregistrez-le comme tel");
}

void ImportExcel::setSource(const QString&, const QString& name, const QString&, TFileBuffer* buffer) {
    forget();
    m_name = name;
    m_buffer.reset(buffer);
}

QAbstractItemModel* ImportExcel::importedModel() {
    if (m_model != nullptr || m_name.isEmpty()) {
        return m_model.get();
    }
    if (m_buffer == nullptr) {
        m_buffer = std::make_unique<TFileBuffer>(m_name, true);
    }
    const QString fileName = QFileInfo(m_name).fileName();
    Workbook::Book book = WorkbookReader::read(m_buffer->data(), fileName);
    m_buffer.reset();
    for (const QString& warning : qAsConst(book.warnings)) {
        MessageLoggerInterface::Warning(
            tr("Workbook <b>%1</b>: %2", "Classeur <b>%1</b> : %2").arg(fileName.toHtmlEscaped(), warning));
    }
    m_model = std::make_unique<WorkbookModel>(std::move(book), fileName);
    return m_model.get();
}

void ImportExcel::forget() {
    m_name.clear();
    m_buffer.reset();
    m_model.reset();
}
