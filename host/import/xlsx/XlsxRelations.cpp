#include "XlsxRelations.h"

#include "XlsxXml.h"
#include "ZipArchive.h"

#include <QCoreApplication>
#include <QDir>
#include <QUrl>

#include <algorithm>

namespace {

constexpr int most = 100'000;

QString folderOf(const QString& part) {
    return part.left(part.lastIndexOf('/') + 1);
}

QString resolved(const ZipArchive& archive, const QString& folder, const QString& target) {
    const QString path = target.startsWith('/') ? target : '/' + folder + target;
    const QString part = QDir::cleanPath(path).mid(1);
    return archive.has(part) ? part : QUrl::fromPercentEncoding(part.toUtf8());
}

} // namespace

XlsxRelations::XlsxRelations(ZipArchive& archive, const QString& part, const XlsxErrors& errors) {
    const QString folder = folderOf(part);
    const QString list = QStringLiteral("%1_rels/%2.rels").arg(folder, part.mid(folder.size()));
    if (!archive.has(list)) {
        return;
    }
    XlsxXml xml(archive.part(list), errors);
    xml.enter(QLatin1String("Relationships"));
    while (xml.nextChild()) {
        const QXmlStreamAttributes attributes = xml.attributes();
        const QString type = attributes.value(QLatin1String("Type")).toString();
        if (attributes.value(QLatin1String("TargetMode")) != QLatin1String("External")) {
            m_relations.insert(
                attributes.value(QLatin1String("Id")).toString(),
                {type.mid(type.lastIndexOf('/') + 1),
                 resolved(archive, folder, attributes.value(QLatin1String("Target")).toString())});
        }
        if (m_relations.size() > most) {
            xml.fail(QCoreApplication::translate("XlsxRelations", "there are too many relations",
                                                 "il y a trop de relations"));
        }
        xml.skip();
    }
    xml.finish();
}

QString XlsxRelations::partOfType(QLatin1String type) const {
    const auto found = std::find_if(m_relations.begin(), m_relations.end(),
                                    [type](const Relation& relation) { return relation.type == type; });
    return found == m_relations.end() ? QString() : found->part;
}
