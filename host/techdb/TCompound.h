#pragma once

#include "TCompoundAbstract.h"
#include "THistory.h"
#include "TPropertyObject.h"
#include "TSqlObject.h"

namespace TechDB {

/// A chemical compound: what is set of it is among its properties, under the accessor's name.
class TCompound : public TSqlObject, public THistory, public TCompoundAbstract, public TPropertyObject {
public:
    QString id() const { return property(QStringLiteral("Id")); }
    void setId(const QString& id) { set("Id", id); }
    QString inChI() const { return property(QStringLiteral("InChI")); }
    void setInChI(const QString& inChI) { set("InChI", inChI); }
    QString inChIKey() const { return property(QStringLiteral("InChIKey")); }
    void setInChIKey(const QString& key) { set("InChIKey", key); }
    /// Number in the register of the Chemical Abstracts Service.
    QString cas() const { return property(QStringLiteral("CAS")); }
    void setCAS(const QString& cas) { set("CAS", cas); }
    QString formula() const override { return property(QStringLiteral("Formula")); }
    void setFormula(const QString& formula) { set("Formula", formula); }
    QString family() const { return property(QStringLiteral("Family")); }
    void setFamily(const QString& family) { set("Family", family); }
    /// Atoms of carbon; 0 if it isn't known.
    int carbons() const { return property(QStringLiteral("Carbons")).toInt(); }
    void setCarbons(int carbons) { set("Carbons", QString::number(carbons)); }
    /// Molar mass in g/mol; 0 if it isn't known.
    double mw() const { return property(QStringLiteral("MW")).toDouble(); }
    void setMW(double mass);
    QString compoundName() const override { return name(); }
    /// The unique name; not among the properties.
    void setCompoundName(const QString& name) { setName(name); }

private:
    void set(const char* name, const QString& value);
};

} // namespace TechDB
