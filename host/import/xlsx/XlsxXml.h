#pragma once

#include "XlsxErrors.h"
#include "ZipPart.h"

#include <QXmlStreamReader>

#include <memory>

/// The XML of one part, element by element. Elements are known by their local name: their namespaces differ
/// between the two dialects of the format. Whatever XML of a workbook never has is refused: document types
/// (and with them, entities), deep nesting, elements with hundreds of attributes. All operations throw
/// VKError, with part and line, for that and for XML that is malformed or cut off.
class XlsxXml {
public:
    /// `errors` outlives this object.
    XlsxXml(std::unique_ptr<ZipPart> part, const XlsxErrors& errors);

    /// To the root element; false if it has another name.
    bool enter(QLatin1String root);

    /// Into the next child of the present element; false if there are no more, at this element's end. Each
    /// child is read to its end in between: by this, by `text` or by `skip`.
    bool nextChild();
    void skip();
    /// What stands between the tags of the present element, without its children, to its end. Never null.
    QString text();
    /// Past the root element to the end of the part, which proves it whole.
    void finish();

    QStringRef name() const { return m_reader.name(); }
    QXmlStreamAttributes attributes() const { return m_reader.attributes(); }

    /// For content that makes no sense here.
    [[noreturn]] void fail(const QString& cause) const;

private:
    QXmlStreamReader::TokenType next();
    void checkElement();

    std::unique_ptr<ZipPart> m_part;
    const XlsxErrors& m_errors;
    QXmlStreamReader m_reader;
    int m_depth = 0;
};
