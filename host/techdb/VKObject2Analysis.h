#pragma once

#include "VKObject2.h"

#include <memory>

class VKObject2Signal;

/// A stored analysis: one measured curve under a unique name.
class VKObject2Analysis : public VKObject2 {
public:
    enum class Curve { Stored, Missing };

    VKObject2Analysis(TechDB::TDatabase* db, qint64 key, const QString& name, Curve curve = Curve::Stored);
    ~VKObject2Analysis() override;

    VKObjectType type() const override;

    /// The signal that stands for the curve: it bears the analysis's name and lives as long as the analysis.
    /// Null if no curve is stored.
    virtual const VKObject2Signal* TIC() const;

    /// The folder, beside a database, for the files of analyses.
    static QString folderName();

protected:
    void setName(const QString& name) override;

private:
    std::unique_ptr<VKObject2Signal> m_tic;
};
