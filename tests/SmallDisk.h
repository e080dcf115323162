// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <sys/mount.h>

/** A file system of two megabytes, which can be filled. Only root may mount it. */
class SmallDisk final
{
public:
    SmallDisk() { m_bMounted = mount("tmpfs", mountPoint().constData(), "tmpfs", 0, "size=2m") == 0; }
    ~SmallDisk()
    {
        if (m_bMounted && umount(mountPoint().constData()) != 0)
            qFatal("the small file system cannot be unmounted");
    }
    Q_DISABLE_COPY(SmallDisk)

    bool isMounted() const { return m_bMounted; }
    QString path(const QString &name = QString()) const { return m_directory.filePath(name); }
    QStringList files() const { return QDir(path()).entryList(QDir::Files); }

    /** Takes what is free but some bytes. */
    void fill(qint64 left) const
    {
        QFile filler(path("filler"));
        QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (filler.write(QByteArray(4096, 'x')) == 4096) {
        }
        QVERIFY(filler.resize(qMax<qint64>(0, filler.size() - left)));
    }
    void makeRoom() const { QVERIFY(QFile::remove(path("filler"))); }
    void clear() const
    {
        for (const QString &name : files())
            QFile::remove(path(name));
    }

private:
    QByteArray mountPoint() const { return QFile::encodeName(m_directory.path()); }

    QTemporaryDir m_directory;
    bool m_bMounted = false;
};
