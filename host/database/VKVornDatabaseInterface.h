#pragma once

#include "VKVornRecord.h"

class VKObject2;

namespace TechDB {
class TVornCompound;
}

/// A catalogue of parameters: compounds, extracted ion chromatograms (EIC), pairs of one of each, and
/// parameters, whose formulas name pairs.
///
/// What isn't there, and what fails, is null; a failure is also an Error on the log, with its cause. Nothing
/// is thrown. What is returned belongs to the catalogue until that is closed. In names, blanks at the ends
/// don't count, and line breaks count as blanks; otherwise they are unique letter by letter. A `value` is a
/// number as text, and -9999 none. For the interface thread only.
class VKVornDatabaseInterface {
public:
    virtual ~VKVornDatabaseInterface();
    VKVornDatabaseInterface(const VKVornDatabaseInterface&) = delete;
    VKVornDatabaseInterface& operator=(const VKVornDatabaseInterface&) = delete;

    /// A parameter by its name or its master's.
    virtual VKObject2* lookupParameter(const QString& name) = 0;
    /// A draft, until `commitParameters`; an older draft of this name is replaced. The formula holds keys of
    /// pairs in square brackets.
    virtual VKObject2* createParameter(const QString& name, const QString& masterName,
                                       const QString& computeFormula, const QString& processType,
                                       int displayOrder, const QString& analysisType,
                                       const QString& studyType, const QString& eicList,
                                       const QString& familyName, const QString& comment,
                                       const QString& literatureReference) = 0;
    /// By the record identifiers of both.
    virtual VKObject2* findPair(const QString& compoundId, const QString& eicId) = 0;
    virtual VKVornRecord* pairRecord(const VKObject2* pair) = 0;
    virtual VKVornRecord* addPair(const QString& compoundId, const QString& eicId, const QString& value) = 0;
    virtual VKObject2* findEIC(const QString& name) = 0;
    virtual VKVornRecord* addEIC(const QString& name, const QString& value) = 0;
    virtual VKVornRecord* compoundRecord(const VKObject2* compound) = 0;
    /// A compound.
    virtual VKObject2* findByName(const QString& name) = 0;
    /// Keeps a copy of name and properties; the compound gets the key of its row.
    virtual VKVornRecord* addCompound(TechDB::TVornCompound* compound, const QString& value) = 0;
    /// Publishes all drafts of parameters, each with the pair that is its formula and what that is made of.
    virtual void commitParameters() = 0;

protected:
    VKVornDatabaseInterface() = default;
};
