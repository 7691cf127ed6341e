#include "XlsxXml.h"

#include <QCoreApplication>

namespace {

constexpr int deepest = 100;
constexpr int mostAttributes = 200;

QString translated(const char* english, const char* french) {
    return QCoreApplication::translate("XlsxXml", english, french);
}

} // namespace

XlsxXml::XlsxXml(std::unique_ptr<ZipPart> part, const XlsxErrors& errors)
    : m_part(std::move(part)), m_errors(errors), m_reader(m_part.get()) {}

bool XlsxXml::enter(QLatin1String root) {
    return nextChild() && name() == root;
}

bool XlsxXml::nextChild() {
    for (;;) {
        switch (next()) {
        case QXmlStreamReader::StartElement:
            return true;
        case QXmlStreamReader::EndElement:
        case QXmlStreamReader::EndDocument:
            return false;
        default:
            break;
        }
    }
}

void XlsxXml::skip() {
    const int outside = m_depth - 1;
    while (m_depth > outside) {
        next();
    }
}

QString XlsxXml::text() {
    QString text(QLatin1String(""));
    const int outside = m_depth - 1;
    while (m_depth > outside) {
        if (next() == QXmlStreamReader::Characters && m_depth == outside + 1) {
            text += m_reader.text();
        }
        if (text.size() > ZipPart::longestPiece) { // comments may part it into pieces
            fail(translated("a text is too long", "un texte est trop long"));
        }
    }
    return text;
}

void XlsxXml::finish() {
    while (next() != QXmlStreamReader::EndDocument) {
    }
    // Which the reader takes for a mere end: a wrong sum is found behind the last byte.
    if (!m_part->failure().isEmpty()) {
        fail(m_part->failure());
    }
}

void XlsxXml::fail(const QString& cause) const {
    throw m_errors.damagedPart(m_part->name(), m_reader.lineNumber(), cause);
}

QXmlStreamReader::TokenType XlsxXml::next() {
    const QXmlStreamReader::TokenType token = m_reader.readNext();
    m_part->endPiece();
    switch (token) {
    case QXmlStreamReader::Invalid:
    case QXmlStreamReader::NoToken:
        fail(m_part->failure().isEmpty() ? m_reader.errorString() : m_part->failure());
    case QXmlStreamReader::DTD:
        fail(translated("a document type is not allowed", "un type de document n'est pas autorisé"));
    case QXmlStreamReader::StartElement:
        ++m_depth;
        checkElement();
        break;
    case QXmlStreamReader::EndElement:
        --m_depth;
        break;
    default:
        break;
    }
    return token;
}

// Looking names up takes time in proportion to their number.
void XlsxXml::checkElement() {
    if (m_depth > deepest) {
        fail(translated("elements are nested too deep", "les éléments sont trop imbriqués"));
    }
    if (m_reader.attributes().size() > mostAttributes ||
        m_reader.namespaceDeclarations().size() > mostAttributes) {
        fail(translated("an element has too many attributes", "un élément a trop d'attributs"));
    }
}
