#include "XlsGlobals.h"

#include "BiffStream.h"
#include "BiffStrings.h"
#include "XlsBudget.h"
#include "XlsRefusal.h"

namespace {

using Cause = XlsRefusal::Cause;

constexpr quint16 biff8 = 0x0600;
constexpr quint16 globalsSubstream = 0x0005;

void checkStart(BiffRecord record) {
    switch (record.kind) {
    case BiffRecord::BofOfBiff2:
    case BiffRecord::BofOfBiff3:
    case BiffRecord::BofOfBiff4:
        throw XlsRefusal(Cause::OlderFormat);
    case BiffRecord::Bof:
        break;
    default:
        throw XlsRefusal(Cause::Damaged);
    }
    const quint16 version = record.content.u16();
    if (version < biff8) {
        throw XlsRefusal(Cause::OlderFormat);
    }
    if (version > biff8 || record.content.u16() != globalsSubstream) {
        throw XlsRefusal(Cause::Damaged);
    }
}

} // namespace

XlsGlobals::XlsGlobals(const QByteArray& stream, XlsBudget& budget) {
    BiffStream records(stream, 0);
    checkStart(records.next());
    for (BiffRecord record = records.next(); record.kind != BiffRecord::EndOfSubstream;
         record = records.next()) {
        take(record, budget);
    }
}

const QString& XlsGlobals::sharedText(quint32 place) const {
    if (place >= m_texts.size()) {
        throw XlsRefusal(Cause::Damaged);
    }
    return m_texts[place];
}

void XlsGlobals::take(BiffRecord& record, XlsBudget& budget) {
    BiffCursor& content = record.content;
    switch (record.kind) {
    case BiffRecord::FilePass:
        throw XlsRefusal(Cause::Protected);
    case BiffRecord::BoundSheet:
        takeSheet(content, budget);
        break;
    case BiffRecord::SharedStrings:
        m_texts = BiffStrings::sharedTexts(content, budget);
        break;
    case BiffRecord::DateMode:
        m_styles.setOrigin(content.u16() == 1 ? ExcelDate::Origin::Year1904 : ExcelDate::Origin::Year1900);
        break;
    case BiffRecord::Format:
        takeFormat(content);
        break;
    case BiffRecord::ExtendedFormat:
        content.skip(2); // the font
        m_styles.addStyle(content.u16());
        break;
    default:
        break;
    }
}

void XlsGlobals::takeSheet(BiffCursor& content, XlsBudget& budget) {
    budget.takeSheet();
    const qint64 position = content.u32();
    const bool hidden = (content.u8() & 0x03) != 0; // 2 is hidden from the list of hidden ones too
    const quint8 type = content.u8();
    const QString name = BiffStrings::shortText(content);
    if (type == 0) {
        m_worksheets.push_back({name, position, hidden});
    } else {
        m_otherSheets << name;
    }
}

void XlsGlobals::takeFormat(BiffCursor& content) {
    const quint16 format = content.u16();
    m_styles.addFormat(format, BiffStrings::text(content));
}
