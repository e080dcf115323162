// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXBrokerInterface.h"
#include "PYXInterfaceIdentifiers.h"
#include "pyxruntime_export.h"

#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>

namespace PYXRuntime {
class PYXIFileList;
} // namespace PYXRuntime

// Before the class, so that every implementation answers to the interface id without further ado.
Q_DECLARE_INTERFACE(PYXRuntime::PYXIFileList, "com.varnholt.PYXRuntime.PYXIFileList/1.0")
PYX_DECLARE_BROKER_INTERFACE(PYXRuntime::PYXIFileList, PYXRuntime::InterfaceIdentifiers::fileList())

namespace PYXRuntime {

/**
 * The files that the components of the process have written, for whoever offers them to the user.
 *
 * The library's implementation, PYXFileListImpl, registers itself with the broker under the name 0; an
 * application may register its own on top.
 * @code
 * if (auto *files = PYXBroker::getInstance()->topObject<PYXIFileList>())
 *     files->registerFile(path, PYXIFileList::ekFT_AUDIO, "Recorder", begin, end);
 * @endcode
 * Main thread only. No operation fails. The order of the operations is part of the contract.
 */
class PYXRUNTIME_EXPORT PYXIFileList : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXIFileList)
    Q_INTERFACES(PYXRuntime::PYXIFileList)
public:
    enum eFileType {
        ekFT_TEXT = 0,
        ekFT_BINARY = 1,
        ekFT_IMAGE = 2,
        ekFT_AUDIO = 3,
        ekFT_TRACKING = 4,
        ekFT_RECORDING = 5,
        ekFT_SCREENSHOT = 6
    };
    Q_ENUM(eFileType)

    struct struFileData
    {
        QString filePath; ///< with "/" between its parts
        eFileType fileType = ekFT_TEXT;
        QString componentName;   ///< who has registered it
        QDateTime startDateTime; ///< UTC; when the content begins
        QDateTime endDateTime;   ///< UTC; when the content ends
    };

    ~PYXIFileList() override = default;

    /**
     * Adds a file; nothing happens where the same path, type and component are in the list already.
     * @param start,end when the content begins and ends; unless both are valid, the file's creation and last
     *        change are taken, which are invalid where there is no such file.
     */
    virtual void registerFile(const QString &filePath, eFileType fileType, const QString &componentName,
                              const QDateTime &start, const QDateTime &end) = 0;
    /** Forgets all files of a component; si_fileCountChanged() comes even if there were none. */
    virtual void clear(const QString &componentName) = 0;
    /** The oldest registration first. The list itself: copy it to keep it. */
    virtual const QList<struFileData> &fileList() const = 0;
    /** 0 for an unknown component. */
    virtual int fileCount(const QString &componentName) const = 0;

Q_SIGNALS:
    void si_fileCountChanged(const QString &a_componentName, int a_count);

protected:
    explicit PYXIFileList(QObject *parent = nullptr)
        : QObject(parent)
    {}
};

} // namespace PYXRuntime
