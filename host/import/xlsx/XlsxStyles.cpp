#include "XlsxStyles.h"

#include "XlsxXml.h"

#include <QCoreApplication>
#include <QHash>

namespace {

constexpr int most = 1'000'000; // Excel has 65,490

void checkCount(const XlsxXml& xml, std::size_t count) {
    if (count > most) {
        xml.fail(
            QCoreApplication::translate("XlsxStyles", "there are too many styles", "il y a trop de styles"));
    }
}

int formatOf(const XlsxXml& xml) {
    return xml.attributes().value(QLatin1String("numFmtId")).toInt();
}

QHash<int, ExcelFormat::Kind> formats(XlsxXml& xml) {
    QHash<int, ExcelFormat::Kind> kinds;
    while (xml.nextChild()) {
        const QString code = xml.attributes().value(QLatin1String("formatCode")).toString();
        kinds.insert(formatOf(xml), ExcelFormat::kindOf(code));
        checkCount(xml, static_cast<std::size_t>(kinds.size()));
        xml.skip();
    }
    return kinds;
}

std::vector<int> styles(XlsxXml& xml) {
    std::vector<int> formats;
    while (xml.nextChild()) {
        formats.push_back(formatOf(xml));
        checkCount(xml, formats.size());
        xml.skip();
    }
    return formats;
}

} // namespace

XlsxStyles::XlsxStyles(XlsxXml& xml) {
    QHash<int, ExcelFormat::Kind> own;
    std::vector<int> used;
    xml.enter(QLatin1String("styleSheet"));
    while (xml.nextChild()) {
        if (xml.name() == QLatin1String("numFmts")) {
            own = formats(xml);
        } else if (xml.name() == QLatin1String("cellXfs")) {
            used = styles(xml);
        } else {
            xml.skip();
        }
    }
    xml.finish();
    m_kinds.reserve(used.size());
    for (const int format : used) {
        const auto found = own.constFind(format);
        m_kinds.push_back(found == own.constEnd() ? ExcelFormat::kindOf(format) : *found);
    }
}

ExcelFormat::Kind XlsxStyles::kindOf(const QStringRef& style) const {
    bool isNumber = false;
    const uint number = style.toUInt(&isNumber);
    return isNumber && number < m_kinds.size() ? m_kinds[number] : ExcelFormat::Kind::Number;
}
