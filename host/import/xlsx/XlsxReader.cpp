#include "XlsxReader.h"

#include "XlsxBudget.h"
#include "XlsxContents.h"
#include "XlsxErrors.h"
#include "XlsxRelations.h"
#include "XlsxSheetParser.h"
#include "XlsxXml.h"
#include "ZipArchive.h"

#include <QCoreApplication>

namespace {

QString translated(const char* english, const char* french) {
    return QCoreApplication::translate("XlsxReader", english, french);
}

QString bold(const QString& name) {
    return QStringLiteral("<b>%1</b>").arg(name.toHtmlEscaped());
}

/// The reading of one file.
class Reading {
public:
    Reading(const QByteArray& bytes, const QString& fileName, const Workbook::Limits& limits)
        : m_errors(fileName), m_budget(limits, m_errors), m_archive(bytes, m_errors, limits) {}

    Workbook::Book book() {
        const QString main = mainPart();
        XlsxXml xml(m_archive.part(main), m_errors);
        const XlsxContents contents = XlsxContents::read(xml, m_budget, m_errors);
        const XlsxRelations relations(m_archive, main, m_errors);
        readCommon(relations);
        m_common.origin = contents.origin;
        for (const XlsxContents::Entry& entry : contents.sheets) {
            readSheet(entry, relations.relation(entry.relation));
        }
        if (m_book.sheets.empty()) {
            throw m_errors.noSheet();
        }
        warnOfCutTexts();
        return std::move(m_book);
    }

private:
    QString mainPart() {
        QString main = XlsxRelations(m_archive, {}, m_errors).partOfType(QLatin1String("officeDocument"));
        if (main.endsWith(QLatin1String(".bin"), Qt::CaseInsensitive)) {
            throw m_errors.binaryWorkbook();
        }
        if (main.isEmpty() || !m_archive.has(main)) {
            throw m_archive.has(QStringLiteral("META-INF/manifest.xml")) ? m_errors.openDocument()
                                                                         : m_errors.noWorkbook();
        }
        return main;
    }

    void readCommon(const XlsxRelations& relations) {
        const QString strings = relations.partOfType(QLatin1String("sharedStrings"));
        if (!strings.isEmpty()) {
            XlsxXml xml(m_archive.part(strings), m_errors);
            m_common.strings = XlsxSharedStrings(xml, m_budget);
        }
        const QString styles = relations.partOfType(QLatin1String("styles"));
        if (!styles.isEmpty()) {
            XlsxXml xml(m_archive.part(styles), m_errors);
            m_common.styles = XlsxStyles(xml);
        }
    }

    void readSheet(const XlsxContents::Entry& entry, const XlsxRelations::Relation& relation) {
        if (!relation.type.isEmpty() && relation.type != QLatin1String("worksheet")) {
            m_book.warnings += translated("Sheet %1 holds no table and was left out.",
                                          "La feuille %1 ne contient pas de tableau et a été ignorée.")
                                   .arg(bold(entry.name));
            return;
        }
        Workbook::Sheet sheet;
        sheet.name = entry.name;
        sheet.hidden = entry.hidden;
        XlsxXml xml(m_archive.part(relation.part), m_errors);
        XlsxSheetParser parser(xml, m_common, m_budget, sheet);
        parser.parse();
        if (parser.formulasWithoutResult() > 0) {
            warnOfFormulas(entry.name, parser);
        }
        m_book.sheets.push_back(std::move(sheet));
    }

    void warnOfFormulas(const QString& sheet, const XlsxSheetParser& parser) {
        m_book.warnings += translated("In sheet %1, %2 formulas have no stored result and count as empty, "
                                      "first %3; open the file in a spreadsheet program and save it.",
                                      "Dans la feuille %1, %2 formules n'ont pas de résultat enregistré et "
                                      "comptent comme vides, d'abord %3 ; ouvrez le fichier dans un tableur "
                                      "et enregistrez-le.")
                               .arg(bold(sheet), QString::number(parser.formulasWithoutResult()),
                                    parser.firstOfThem().text());
    }

    void warnOfCutTexts() {
        if (m_budget.cutTexts() > 0) {
            m_book.warnings += translated("%1 texts were cut after %2 characters.",
                                          "%1 textes ont été coupés après %2 caractères.")
                                   .arg(m_budget.cutTexts())
                                   .arg(m_budget.limits().textLength);
        }
    }

    XlsxErrors m_errors;
    XlsxBudget m_budget;
    ZipArchive m_archive;
    XlsxSheetParser::Common m_common;
    Workbook::Book m_book;
};

} // namespace

Workbook::Book XlsxReader::read(const QByteArray& bytes, const QString& fileName,
                                const Workbook::Limits& limits) {
    return Reading(bytes, fileName, limits).book();
}
