#pragma once

#include "VornCtrl.h"

#include <QCoreApplication>

/// Imports tables of any columns. After a table is stored, each column that the parameter catalogue does not
/// know becomes a parameter of it, whose formula names a pseudo-compound made for it. What goes wrong
/// with that is told on the log and leaves the stored table alone; what was made before stays.
class VORN_EXPORT CustomImportCtrl : public VornCtrl {
    Q_DECLARE_TR_FUNCTIONS(CustomImportCtrl)

public:
    CustomImportCtrl();
    ~CustomImportCtrl() override;

protected:
    VornEditor* initEditor() override;
    AsciiImportWizardStrategy* getStrategy() override;
    void specificProcess(const QAbstractItemModel* model) override;

    bool isParameterExists(const QString& name);

    /// The identifier of the compound of this name, which is made if there is none; "-1" if that failed.
    QString getCompoundID(const QString& name);

    /// The identifier of the EIC that stands for none; "-1" if there is none and none can be made.
    QString getNoneEIC();

private:
    /// False if no parameter came about.
    bool addParameter(const QString& name, const QString& noneEIC);
    void report(const QStringList& existing, const QStringList& added);
};
