#pragma once

#include <QString>

class QAbstractItemModel;
class TDataEditor2Ctrl;
class TProgressBarMgr;
class VKDataModelGeneric;

/// The samples of one table on their way into one dataset, each as a column of its own. A row is a sample
/// if its first cell, the identifier, is not empty. All that is handed over outlives the writer.
class SampleWriter {
public:
    SampleWriter(const QAbstractItemModel& table, const VKDataModelGeneric& emptySample,
                 TDataEditor2Ctrl& dataEditor, const QString& dataset);

    /// Saves the samples and returns how many there are. One that can't be saved is counted all the same,
    /// and the log says so.
    int saveAll(TProgressBarMgr& progress);

    /// What names a sample: an identifier that is a number without its fraction and in plain digits, any
    /// other as it stands.
    static QString sampleId(const QString& text);

private:
    void save(int row, const QString& sampleName);

    const QAbstractItemModel& m_table;
    const VKDataModelGeneric& m_emptySample;
    TDataEditor2Ctrl& m_dataEditor;
    const QString m_dataset;
};
