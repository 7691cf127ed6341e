#pragma once

#include "BiffRecord.h"
#include "XlsStyles.h"

#include <QByteArray>
#include <QStringList>

#include <vector>

class XlsBudget;

/// What all sheets of a workbook share: their list, the texts and the styles. Faults of the file are thrown
/// as XlsRefusal.
class XlsGlobals {
public:
    /// A worksheet of the list, and where its records begin.
    struct SheetPlace {
        QString name;
        qint64 position = 0; ///< in the workbook's stream; not checked
        bool hidden = false;
    };

    /// From the start of the workbook's stream.
    XlsGlobals(const QByteArray& stream, XlsBudget& budget);

    const std::vector<SheetPlace>& worksheets() const { return m_worksheets; }
    /// Names of the sheets that are charts or macros.
    const QStringList& otherSheets() const { return m_otherSheets; }
    const XlsStyles& styles() const { return m_styles; }

    /// Of those that cells name by their place; refuses a place that isn't there.
    const QString& sharedText(quint32 place) const;

private:
    void take(BiffRecord& record, XlsBudget& budget);
    void takeSheet(BiffCursor& content, XlsBudget& budget);
    void takeFormat(BiffCursor& content);

    std::vector<SheetPlace> m_worksheets;
    QStringList m_otherSheets;
    std::vector<QString> m_texts;
    XlsStyles m_styles;
};
