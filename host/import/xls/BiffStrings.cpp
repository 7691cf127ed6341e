#include "BiffStrings.h"

#include "XlsBudget.h"
#include "XlsRefusal.h"

#include <QtEndian>

#include <algorithm>

namespace BiffStrings {

namespace {

constexpr quint8 wideFlag = 0x01;
constexpr quint8 phoneticFlag = 0x04;
constexpr quint8 richFlag = 0x08;
constexpr qint64 bytesOfRun = 4;

/// As many characters as are left here, up to `count`.
int takeSome(BiffCursor& content, bool isWide, int count, QChar* to) {
    const qint64 bytesOfOne = isWide ? 2 : 1;
    const qint64 taken = std::min<qint64>(count, content.leftHere() / bytesOfOne);
    const char* const from = content.take(taken * bytesOfOne);
    for (qint64 i = 0; i < taken; ++i) {
        to[i] = isWide ? QChar(qFromLittleEndian<quint16>(from + 2 * i)) : QLatin1Char(from[i]);
    }
    return static_cast<int>(taken);
}

/// Of narrow characters the upper byte is 0 whatever code page the file names.
QString characters(BiffCursor& content, bool isWide, int count) {
    QString text(count, Qt::Uninitialized);
    for (int done = 0; done < count;) {
        if (content.leftHere() == 0) {
            content.enterContinue();
            isWide = (content.u8() & wideFlag) != 0;
        }
        const int taken = takeSome(content, isWide, count - done, text.data() + done);
        if (taken == 0 && content.leftHere() != 0) { // half a character
            throw XlsRefusal(XlsRefusal::Cause::Damaged);
        }
        done += taken;
    }
    return text;
}

QString textOf(BiffCursor& content, int count) {
    if (count == 0 && !content.hasMore()) { // some writers leave the flags of an empty text out
        return QLatin1String("");
    }
    const quint8 flags = content.u8();
    const qint64 runs = (flags & richFlag) != 0 ? content.u16() : 0;
    const qint64 phonetic = (flags & phoneticFlag) != 0 ? content.u32() : 0;
    QString text = characters(content, (flags & wideFlag) != 0, count);
    content.skip(runs * bytesOfRun + phonetic);
    return text;
}

} // namespace

QString shortText(BiffCursor& content) {
    const int count = content.u8();
    return textOf(content, count);
}

QString text(BiffCursor& content) {
    const int count = content.u16();
    return textOf(content, count);
}

std::vector<QString> sharedTexts(BiffCursor& content, XlsBudget& budget) {
    content.u32(); // how often they are used
    const qint64 count = content.u32();
    std::vector<QString> texts; // grows with what is there, not with what is claimed
    for (qint64 i = 0; i < count; ++i) {
        texts.push_back(budget.taken(text(content)));
    }
    return texts;
}

} // namespace BiffStrings
