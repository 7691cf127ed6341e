#include "PackedWorkbook.h"

#include <zip.h>

namespace {

const QByteArray relationships = "http://schemas.openxmlformats.org/officeDocument/2006/relationships";

QByteArray related(const QByteArray& type, const QByteArray& target) {
    return "<Relationship Id=\"" + type + "\" Type=\"" + relationships + '/' + type + "\" Target=\"" +
           target + "\"/>";
}

} // namespace

PackedWorkbook::PackedWorkbook() : PackedWorkbook(QByteArray()) {}

PackedWorkbook::PackedWorkbook(const QByteArray& rows) {
    parts["_rels/.rels"] =
        "<Relationships>" + related("officeDocument", "xl/workbook.xml") + "</Relationships>";
    parts["xl/workbook.xml"] = "<workbook xmlns:r=\"" + relationships +
                               "\"><sheets><sheet name=\"Sheet\" r:id=\"worksheet\"/></sheets></workbook>";
    parts["xl/_rels/workbook.xml.rels"] = "<Relationships>" + related("worksheet", "worksheets/sheet1.xml") +
                                          related("sharedStrings", "sharedStrings.xml") +
                                          related("styles", "styles.xml") + "</Relationships>";
    parts["xl/worksheets/sheet1.xml"] = "<worksheet><sheetData>" + rows + "</sheetData></worksheet>";
    parts["xl/sharedStrings.xml"] = "<sst><si><t>shared</t></si></sst>";
    parts["xl/styles.xml"] =
        "<styleSheet><cellXfs><xf numFmtId=\"0\"/><xf numFmtId=\"14\"/></cellXfs></styleSheet>";
}

QByteArray PackedWorkbook::bytes() const {
    zip_error_t error;
    zip_source_t* const packed = zip_source_buffer_create(nullptr, 0, 0, &error);
    zip_source_keep(packed); // outlives the archive
    zip_t* const archive = zip_open_from_source(packed, ZIP_TRUNCATE, &error);
    for (auto part = parts.begin(); part != parts.end(); ++part) {
        zip_source_t* const source =
            zip_source_buffer(archive, part->constData(), static_cast<zip_uint64_t>(part->size()), 0);
        const zip_int64_t added = zip_file_add(archive, part.key().constData(), source, ZIP_FL_ENC_UTF_8);
        const auto index = static_cast<zip_uint64_t>(added);
        zip_set_file_compression(archive, index, compressed ? ZIP_CM_DEFLATE : ZIP_CM_STORE, 0);
        if (!password.isEmpty()) {
            zip_file_set_encryption(archive, index, ZIP_EM_AES_256, password.constData());
        }
    }
    zip_close(archive);
    zip_stat_t stat;
    zip_source_stat(packed, &stat);
    QByteArray bytes(static_cast<int>(stat.size), '\0');
    zip_source_open(packed);
    zip_source_read(packed, bytes.data(), stat.size);
    zip_source_close(packed);
    zip_source_free(packed);
    return bytes;
}
