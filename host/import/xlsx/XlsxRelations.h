#pragma once

#include <QHash>
#include <QString>

class XlsxErrors;
class ZipArchive;

/// Which parts of a workbook belong to one of its parts, by what they are and by the names that part gives
/// them. What lies outside the workbook is left out.
class XlsxRelations {
public:
    /// One part that another names.
    struct Relation {
        QString type; ///< the last word of it, the same in both dialects: worksheet, sharedStrings
        QString part; ///< the name in the archive
    };

    /// Of the part of this name; of the whole package without one. Empty if it has none. Throws VKError for
    /// relations that can't be read.
    XlsxRelations(ZipArchive& archive, const QString& part, const XlsxErrors& errors);

    /// Empty if there is none of this name.
    Relation relation(const QString& id) const { return m_relations.value(id); }
    /// The part of this type; empty if there is none.
    QString partOfType(QLatin1String type) const;

private:
    QHash<QString, Relation> m_relations;
};
