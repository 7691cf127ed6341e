#include "XlsxContents.h"

#include "XlsxBudget.h"
#include "XlsxText.h"
#include "XlsxXml.h"

#include <algorithm>

namespace {

/// The attribute whose namespace alone tells it from another of the same name.
QString relationOf(const QXmlStreamAttributes& attributes) {
    const auto found =
        std::find_if(attributes.begin(), attributes.end(), [](const QXmlStreamAttribute& attribute) {
            return attribute.name() == QLatin1String("id") && !attribute.namespaceUri().isEmpty();
        });
    return found == attributes.end() ? QString() : found->value().toString();
}

XlsxContents::Entry entryOf(const QXmlStreamAttributes& attributes) {
    const QStringRef state = attributes.value(QLatin1String("state"));
    return {XlsxText::unescaped(attributes.value(QLatin1String("name")).toString()),
            state == QLatin1String("hidden") || state == QLatin1String("veryHidden"), relationOf(attributes)};
}

bool isTrue(const QStringRef& text) {
    return text == QLatin1String("1") || text == QLatin1String("true") || text == QLatin1String("on");
}

} // namespace

XlsxContents XlsxContents::read(XlsxXml& xml, const XlsxBudget& budget, const XlsxErrors& errors) {
    XlsxContents contents;
    if (!xml.enter(QLatin1String("workbook"))) {
        throw errors.noWorkbook();
    }
    while (xml.nextChild()) {
        if (xml.name() == QLatin1String("workbookPr") &&
            isTrue(xml.attributes().value(QLatin1String("date1904")))) {
            contents.origin = ExcelDate::Origin::Year1904;
        }
        if (xml.name() != QLatin1String("sheets")) {
            xml.skip();
            continue;
        }
        while (xml.nextChild()) {
            contents.sheets.push_back(entryOf(xml.attributes()));
            if (static_cast<int>(contents.sheets.size()) > budget.limits().sheets) {
                throw errors.tooManySheets(budget.limits().sheets);
            }
            xml.skip();
        }
    }
    xml.finish();
    return contents;
}
