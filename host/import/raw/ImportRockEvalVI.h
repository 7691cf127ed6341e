#pragma once

#include "VKImportAnalysisInterface.h"

#include <QCoreApplication>
#include <QString>

#include <memory>
#include <vector>

class QAbstractItemModel;
class TFileBuffer;
class VKDataModelGeneric;

/// Reads the raw files of a Rock-Eval VI: the signal of a .S00 file, or the table of a .R00 file.
///
/// The extension, in either case, says which of the two a file is. It is read once, when a result is first
/// asked for. What the reader noticed comes as Warnings on the log, with file and line; a file that can't be
/// read is an Error there that says why, and gives no data. What is returned belongs to this object and is
/// valid until the next source.
class ImportRockEvalVI : public VKImportAnalysisInterface {
    Q_DECLARE_TR_FUNCTIONS(ImportRockEvalVI)

public:
    /// `dataCount` of a file that holds a results table.
    static constexpr int R00_TABLE_CODE = -1;
    /// `dataCount` where nothing was read.
    static constexpr int NO_DATA_CODE = -9999;

    ImportRockEvalVI();
    ~ImportRockEvalVI() override;

    void prepareForProbe(bool probe) override;

    /// A file so named is accepted if it is text and a section's header stands near its beginning. A file of
    /// another name is refused without a word.
    bool acceptsFile(TFileBuffer& buffer, const QString& path, QString& text) override;
    void setSource(const QString& folder, const QString& name, const QString& text,
                   TFileBuffer* buffer) override;

    /// Number of points of the signal, or one of the codes.
    virtual int dataCount();
    /// The times in seconds, ascending, `dataCount` of them; null if there is no signal.
    virtual float* firstChannel();
    /// The flame-ionisation signal under pyrolysis, in raw units of the detector, one value for each time.
    virtual float* secondChannel();
    /// The table of a .R00 file as `RockEvalResults` lays it out; null if there is none.
    virtual QAbstractItemModel* resultsModel();

private:
    void forgetSource();
    void read();
    void readContent();
    QByteArray content();

    QString m_name;
    std::unique_ptr<TFileBuffer> m_buffer;
    bool m_read = false;
    int m_count = NO_DATA_CODE;
    std::vector<float> m_time;
    std::vector<float> m_fid;
    std::unique_ptr<VKDataModelGeneric> m_results;
};
