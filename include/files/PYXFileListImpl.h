// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXBrokerRegistration.h"
#include "PYXIFileList.h"
#include "pyxruntime_export.h"

#include <QtCore/QHash>

namespace PYXRuntime {

/**
 * The library's list of written files: the last 1000 that were registered. Nothing is kept on disk.
 * Initialising the library makes it and shutting it down destroys it; meanwhile the broker knows it. Main
 * thread only.
 */
class PYXRUNTIME_EXPORT PYXFileListImpl final : public PYXIFileList
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXFileListImpl)
public:
    ~PYXFileListImpl() override;

    static PYXFileListImpl *getInstance();
    static bool hasInstance();
    static void makeSureInitialized();
    static void destroyInstance();

    void registerFile(const QString &filePath, eFileType fileType, const QString &componentName,
                      const QDateTime &start, const QDateTime &end) override;
    void clear(const QString &componentName) override;
    const QList<struFileData> &fileList() const override { return m_fileList; }
    int fileCount(const QString &componentName) const override { return m_fileCounts.value(componentName); }

private:
    PYXFileListImpl();
    bool _contains(const struFileData &file) const;
    int _changeCount(const QString &componentName, int change);
    bool _makeRoomFor(const struFileData &file);

    QList<struFileData> m_fileList;
    QHash<QString, int> m_fileCounts;
    PYXBrokerRegistration m_registration;
};

} // namespace PYXRuntime
