#include "ZipArchive.h"

#include "ZipEnd.h"
#include "ZipPart.h"

#include <zip.h>

namespace {

// Far more files than a workbook of a thousand sheets has; the archive's library keeps them all in memory.
constexpr qint64 longestList = 2LL * 1024 * 1024;

// What text packs to at the very best is far from what packed zeros unpack to.
constexpr quint64 suspectSize = 16ULL * 1024 * 1024;
constexpr quint64 suspectRatio = 250;

QString key(const QString& name) {
    QString path = name.toLower().replace('\\', '/'); // some writers use the separator of their system
    while (path.startsWith('/')) {
        path.remove(0, 1);
    }
    return path;
}

QString textOf(zip_error_t& error) {
    QString text = QString::fromUtf8(zip_error_strerror(&error));
    zip_error_fini(&error);
    return text;
}

zip* opened(const QByteArray& bytes, const XlsxErrors& errors) {
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* const source =
        zip_source_buffer_create(bytes.constData(), static_cast<zip_uint64_t>(bytes.size()), 0, &error);
    zip* const archive = source == nullptr ? nullptr : zip_open_from_source(source, ZIP_RDONLY, &error);
    if (archive == nullptr) {
        zip_source_free(source);
        throw errors.damagedArchive(textOf(error));
    }
    zip_error_fini(&error);
    return archive;
}

} // namespace

void ZipArchive::Closer::operator()(zip* archive) const {
    zip_discard(archive);
}

ZipArchive::ZipArchive(const QByteArray& bytes, const XlsxErrors& errors, const Workbook::Limits& limits)
    : m_errors(errors), m_mayUnpack(limits.unpackedBytes) {
    if (bytes.size() > limits.fileBytes) {
        throw errors.tooLarge(limits.fileBytes);
    }
    if (ZipEnd::bytesOfLists(bytes) > longestList) {
        throw errors.tooManyParts();
    }
    m_archive.reset(opened(bytes, errors));
    const auto count = static_cast<quint64>(zip_get_num_entries(m_archive.get(), 0));
    for (quint64 index = 0; index < count; ++index) {
        const char* const name = zip_get_name(m_archive.get(), index, 0);
        const QString path = name == nullptr ? QString() : key(QString::fromUtf8(name));
        if (!m_indexes.contains(path)) {
            m_indexes.insert(path, index);
        }
    }
}

ZipArchive::~ZipArchive() = default;

bool ZipArchive::has(const QString& name) const {
    return m_indexes.contains(key(name));
}

std::unique_ptr<ZipPart> ZipArchive::part(const QString& name) {
    const auto found = m_indexes.constFind(key(name));
    if (found == m_indexes.constEnd()) {
        throw m_errors.missingPart(name);
    }
    zip_stat_t stat;
    zip_stat_init(&stat);
    constexpr zip_uint64_t needed = ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_ENCRYPTION_METHOD;
    if (zip_stat_index(m_archive.get(), *found, 0, &stat) != 0 || (stat.valid & needed) != needed) {
        throw m_errors.damagedPart(name, QString::fromUtf8(zip_strerror(m_archive.get())));
    }
    if (stat.encryption_method != ZIP_EM_NONE) {
        throw m_errors.encrypted(name);
    }
    checkSize(name, stat.size, stat.comp_size);
    zip_file* const file = zip_fopen_index(m_archive.get(), *found, 0);
    if (file == nullptr) {
        throw m_errors.damagedPart(name, QString::fromUtf8(zip_strerror(m_archive.get())));
    }
    return std::make_unique<ZipPart>(file, name, static_cast<qint64>(stat.size));
}

// A part can't be longer than it says, so this holds before it is unpacked.
void ZipArchive::checkSize(const QString& name, quint64 size, quint64 packed) {
    if (size > suspectSize && size / suspectRatio > packed) {
        throw m_errors.bomb(name);
    }
    if (size > static_cast<quint64>(m_mayUnpack - m_unpacked)) {
        throw m_errors.unpacksTooLarge(m_mayUnpack);
    }
    m_unpacked += static_cast<qint64>(size);
}
