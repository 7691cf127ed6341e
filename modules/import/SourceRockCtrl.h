#pragma once

#include "VornCtrl.h"

#include <QCoreApplication>

class ImportRockEvalVI;

/// Imports source-rock data: tables, and the raw files of a Rock-Eval VI. A .S00 file becomes an analysis,
/// which the quality check takes, a .R00 file a dataset of one sample.
class VORN_EXPORT SourceRockCtrl : public VornCtrl {
    Q_DECLARE_TR_FUNCTIONS(SourceRockCtrl)

public:
    SourceRockCtrl();
    ~SourceRockCtrl() override;

    /// Stores a curve as a file beside the import database and as an analysis of the project. The name comes
    /// back as it was made unique. Reads `count` values of each channel and keeps none of the arrays.
    void saveAnalysis(QString& name, QList<float*> channels, int count);

protected:
    VornEditor* initEditor() override;
    AsciiImportWizardStrategy* getStrategy() override;

    /// Tables first, then raw files. Raises if raw files cannot be read at all, which ends the pass before
    /// any file: the module is not what its name says then.
    void retrieveDLLImport(VKImportCtrl& importCtrl, QList<VKImportInterface*>& interfaces) override;

    using VornCtrl::import;
    void import(VKImportAnalysisInterface* importInterface, const QString& path) override;

    void importR00(ImportRockEvalVI* importInterface, const QString& name);
    void importS00(ImportRockEvalVI* importInterface, QString& name);
};
