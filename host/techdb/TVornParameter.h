#pragma once

#include "TPropertyObject.h"

#include <QStringList>

/// What a parameter of studies is made of. Texts that were never set are null, numbers 0.
class TVornParameter {
public:
    /// The name that it goes by in every study.
    QString MasterName() const { return value("MasterName"); }
    void setMasterName(const QString& text) { set("MasterName", text); }
    /// How it is computed: keys of pairs in square brackets, "[17]".
    QString ComputeFormula() const { return value("ComputeFormula"); }
    void setComputeFormula(const QString& text) { set("ComputeFormula", text); }
    int DisplayOrder() const { return value("DisplayOrder").toInt(); }
    void setDisplayOrder(int order) { set("DisplayOrder", QString::number(order)); }
    QString DisplayFormula() const { return value("DisplayFormula"); }
    void setDisplayFormula(const QString& text) { set("DisplayFormula", text); }
    /// What it is measured by.
    QString AnalysisType() const { return value("AnalysisType"); }
    void setAnalysisType(const QString& text) { set("AnalysisType", text); }
    QString StudyType() const { return value("StudyType"); }
    void setStudyType(const QString& text) { set("StudyType", text); }
    QString ProcessType() const { return value("ProcessType"); }
    void setProcessType(const QString& text) { set("ProcessType", text); }
    /// Names of the extracted ion chromatograms that it is read from.
    QString EICList() const { return value("EICList"); }
    void setEICList(const QString& text) { set("EICList", text); }
    QString FamilyName() const { return value("FamilyName"); }
    void setFamilyName(const QString& text) { set("FamilyName", text); }
    QString Comment() const { return value("Comment"); }
    void setComment(const QString& text) { set("Comment", text); }
    QString LiteratureReference() const { return value("LiteratureReference"); }
    void setLiteratureReference(const QString& text) { set("LiteratureReference", text); }
    QString UniqueKey() const { return value("UniqueKey"); }
    void setUniqueKey(const QString& text) { set("UniqueKey", text); }
    QStringList synonyms() const;
    void setSynonyms(const QStringList& names);

    /// All that was set, each under its accessor's name; several synonyms are lines.
    const QList<TProperty>& parameterProperties() const { return m_values.properties(); }

private:
    QString value(const char* name) const { return m_values.property(QLatin1String(name)); }
    void set(const char* name, const QString& value) { m_values.setProperty(QLatin1String(name), value); }

    TechDB::TPropertyObject m_values;
};
