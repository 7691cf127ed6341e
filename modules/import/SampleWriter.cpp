#include "SampleWriter.h"

#include "ImportConstants.h"
#include "MessageLoggerInterface.h"
#include "TDataEditor2Ctrl.h"
#include "TProgressBarMgr.h"
#include "VKDataModelGeneric.h"
#include "VornCtrl.h"

SampleWriter::SampleWriter(const QAbstractItemModel& table, const VKDataModelGeneric& emptySample,
                           TDataEditor2Ctrl& dataEditor, const QString& dataset)
    : m_table(table), m_emptySample(emptySample), m_dataEditor(dataEditor), m_dataset(dataset) {}

int SampleWriter::saveAll(TProgressBarMgr& progress) {
    int samples = 0;
    const int rows = m_table.rowCount();
    for (int row = 0; row < rows; ++row) {
        const QString id = sampleId(m_table.data(m_table.index(row, 0), Qt::DisplayRole).toString());
        if (id.isEmpty()) {
            continue;
        }
        ++samples;
        save(row, QStringLiteral("Sample %1").arg(id));
        progress.setProgress(row, true);
    }
    return samples;
}

// Tables write whole numbers as 12.0, 007 or 1e3. In single precision, as the host stores numbers: digits
// that it does not hold name no sample of their own. What no int holds stays the text that it is, or all
// such samples would get one name.
QString SampleWriter::sampleId(const QString& text) {
    constexpr float limit = 2147483648.0F;
    bool isNumber = false;
    const float value = text.toFloat(&isNumber);
    const bool fits = isNumber && value >= -limit && value < limit;
    return fits ? QString::number(static_cast<int>(value), 10) : text;
}

// The identifier is copied with the rest, so that a sample tells it by itself.
void SampleWriter::save(int row, const QString& sampleName) {
    const auto sample = QSharedPointer<VKDataModelGeneric>::create(&m_emptySample);
    const int columns = m_table.columnCount();
    for (int column = 0; column < columns; ++column) {
        const QVariant cell = m_table.data(m_table.index(row, column), Qt::DisplayRole);
        sample->setData(sample->index(column, 0), cell, DATASET_ROLE);
    }
    if (!m_dataEditor.save(sample.data(), m_dataset, sampleName, DATASET_ROLE, nullptr)) {
        MessageLoggerInterface::Error(
            VornCtrl::tr("An error occurred while saving sample: <b>%1</b>",
                         "Une erreur est survenue lors de la sauvegarde de l'échantillon : <b>%1</b>")
                .arg(sampleName.toHtmlEscaped()));
    }
}
