#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <sched.h>
#include <sys/mount.h>

/// A disk of its own, seen by this process alone.
class SmallDisk {
public:
    explicit SmallDisk(const QString& folder) : m_folder(folder.toLocal8Bit()) {
        m_mounted = unshare(CLONE_NEWNS) == 0 &&
                    mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                    mount("none", m_folder, "tmpfs", 0, "size=1m") == 0;
    }
    ~SmallDisk() {
        if (m_mounted) {
            umount2(m_folder, MNT_DETACH);
        }
    }

    bool isMounted() const { return m_mounted; }
    QString file(const QString& name) const { return QDir(m_folder).filePath(name); }

private:
    QByteArray m_folder;
    bool m_mounted;
};

/// A file that takes all room of its disk but so much, for as long as it lives.
class Ballast {
public:
    Ballast(const QString& path, int room) : m_file(path) {
        EXPECT_TRUE(m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (m_file.write(QByteArray(4096, 'x')) == 4096) {
        }
        m_file.resize(m_file.size() - room);
    }
    ~Ballast() { m_file.remove(); }

private:
    QFile m_file;
};
