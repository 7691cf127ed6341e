#include "XlsxSharedStrings.h"

#include "XlsxBudget.h"
#include "XlsxText.h"
#include "XlsxXml.h"

#include <QCoreApplication>

XlsxSharedStrings::XlsxSharedStrings(XlsxXml& xml, XlsxBudget& budget) {
    const auto most = static_cast<std::size_t>(budget.limits().cells);
    xml.enter(QLatin1String("sst"));
    while (xml.nextChild()) {
        if (xml.name() != QLatin1String("si")) {
            xml.skip();
            continue;
        }
        m_texts.push_back(XlsxText::read(xml, budget));
        if (m_texts.size() > most) {
            xml.fail(QCoreApplication::translate("XlsxSharedStrings", "there are too many texts",
                                                 "il y a trop de textes"));
        }
    }
    xml.finish();
}

std::optional<QString> XlsxSharedStrings::at(const QString& index) const {
    bool isNumber = false;
    const uint number = index.toUInt(&isNumber);
    return isNumber && number < m_texts.size() ? std::optional<QString>(m_texts[number]) : std::nullopt;
}
