#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>

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
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool isMounted() const { return m_mounted; }
    QString file(const QString& name) const { return QDir(m_folder).filePath(name); }
    /// Takes all room but this.
    void fillUpTo(int room) const {
        QFile ballast(file("ballast"));
        ASSERT_TRUE(ballast.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (ballast.write(QByteArray(4096, 'x')) == 4096) {
        }
        ballast.resize(ballast.size() - room);
    }
    void makeRoom() const { QFile::remove(file("ballast")); }

private:
    QByteArray m_folder;
    bool m_mounted;
};
