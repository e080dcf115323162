// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXIFileList.h"
#include "pyxruntime_export.h"

#include <QtCore/QIODevice>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

namespace PYXRuntime {

class RecordFile;

/**
 * A write-only device that spreads what is written over a sequence of files.
 *
 * Every file is named after the moment it was opened, in UTC: the base file name "trace.log.txt" gives
 * "trace_2018-03-01_12-00-05_UTC.log.txt". Once the weight of what went into the current file is not less
 * than the maximum, the file is closed, and the next write opens the next one; a single write is never
 * divided. This class gives every write the weight 0; subclasses count.
 *
 * - The maximum 0, the default, is reached by every write.
 * - Names are unique to the second only: a file opened within the same second replaces the one before.
 *   PYXRetainingFileSet knows better.
 * - The directory must exist; no file is ever deleted.
 *
 * A write that the disk refuses answers -1 (or how much was taken), sets errorString() and emits
 * si_writeError(); the next one tries again, and also when a file could not be opened or was removed. What
 * was accepted before and not yet written out is kept meanwhile, so nothing is lost or doubled; it may end up
 * in the next file. Data waits to be written out for a second while writes go on, else until flush() or
 * close().
 *
 * One thread, like any QIODevice. Slots may close or delete the set. A tracer may write to it, also when it
 * is told of this very set.
 */
class PYXRUNTIME_EXPORT PYXCountingFileSet : public QIODevice
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXCountingFileSet)
    Q_PROPERTY(QString baseDirectory READ baseDirectory WRITE setBaseDirectory)
    Q_PROPERTY(QString baseFileName READ baseFileName WRITE setBaseFileName)
    Q_PROPERTY(QString currentFilePath READ currentFilePath)
    Q_PROPERTY(QStringList previousFilesPaths READ previousFilesPaths)
    Q_PROPERTY(quint64 weightOfCurrentFile READ weightOfCurrentFile)
    Q_PROPERTY(quint64 maximumWeightPerFile READ maximumWeightPerFile WRITE setMaximumWeightPerFile)
    Q_PROPERTY(bool flushAfterWriting READ doesFlushAfterWriting WRITE setFlushAfterWriting)
    Q_PROPERTY(bool registerWrittenFiles READ doesRegisterWrittenFiles WRITE setRegisterWrittenFiles)
    Q_PROPERTY(
        PYXRuntime::PYXIFileList::eFileType registerFileType READ registerFileType WRITE setRegisterFileType)
    Q_PROPERTY(
        QString registerFileComponentName READ registerFileComponentName WRITE setRegisterFileComponentName)
public:
    explicit PYXCountingFileSet(QObject *parent = nullptr);
    /** Closes the current file. */
    ~PYXCountingFileSet() override;

    /** Default: the directory for temporary files. A change on an open set closes the current file. */
    QString baseDirectory() const { return m_baseDirectory; }
    void setBaseDirectory(const QString &directory);
    /** Its base name and its complete suffix shape every file name. A change closes the current file. */
    QString baseFileName() const { return m_baseFileName; }
    void setBaseFileName(const QString &fileName);
    /** Empty where no file is open. */
    QString currentFilePath() const { return m_currentFilePath; }
    /** All files closed so far, the oldest first. */
    QStringList previousFilesPaths() const { return m_previousFilesPaths; }
    quint64 weightOfCurrentFile() const { return m_weightOfCurrentFile; }
    /** Default: 0. An open set looks at once whether the new maximum is reached. */
    quint64 maximumWeightPerFile() const { return m_maximumWeightPerFile; }
    void setMaximumWeightPerFile(quint64 weight);
    /** Hands every write to the system at once. Default: off. */
    bool doesFlushAfterWriting() const { return m_flushAfterWriting; }
    void setFlushAfterWriting(bool flush);
    /**
     * Registers every file with the broker's PYXIFileList, if there is one, when it is opened. From another
     * thread than the list's, the registration is sent to that thread. Default: off.
     */
    bool doesRegisterWrittenFiles() const { return m_registerWrittenFiles; }
    void setRegisterWrittenFiles(bool bRegister) { m_registerWrittenFiles = bRegister; }
    PYXIFileList::eFileType registerFileType() const { return m_registerFileType; }
    void setRegisterFileType(PYXIFileList::eFileType fileType) { m_registerFileType = fileType; }
    QString registerFileComponentName() const { return m_registerFileComponentName; }
    void setRegisterFileComponentName(const QString &name) { m_registerFileComponentName = name; }

    /**
     * Opens the device and the first file. Of the mode only Text counts (lines end as they do on this
     * system); Unbuffered, Append and Truncate are ignored.
     * @return false on an open device, for a mode with ReadOnly, and where the file cannot be created.
     */
    bool open(OpenMode mode) override;
    void close() override;
    /** Always true: there is no way back in a set of files. */
    bool isSequential() const override { return true; }
    /** Hands the data to the system. @return false where it does not take all; true where no file is open. */
    bool flush();
    /** Closes the current file and opens the next one. @return false on a closed device, and on failure. */
    bool switchToNextFile();

Q_SIGNALS:
    void si_maximumWeightReached();
    /** With the path and the reason; errorString() holds the same text. */
    void si_writeError(const QString &a_message);

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *data, qint64 size) override;

    /** The weight of a write, of which the file has accepted the first @p writtenSize bytes. */
    virtual quint64 _getWeightOfData(const char *data, qint64 requestedSize, qint64 writtenSize);
    /** The name of the file that is opened next, without directory. */
    virtual QString _getNextFileName();

    /** For subclasses that delete files: takes one off previousFilesPaths(). */
    void _forgetPreviousFile(const QString &path) { m_previousFilesPaths.removeOne(path); }
    /** Writes to the runtime scope. */
    void _debug(const QString &text);
    /** For sets whose messages nobody may hear, because they carry the messages themselves. */
    void _setSilent(bool bSilent) { m_bSilent = bSilent; }

private:
    QString _getNextFilePath();
    bool _openNextFile();
    void _closeCurrentFile();
    void _checkWeight();
    bool _isReachedBy(quint64 weight) const;
    bool _drain();
    qint64 _finishWrite(const char *data, qint64 size, qint64 written, quint64 weight);
    void _noteError(const QString &path, const QString &reason);
    void _reportError();

    QString m_baseDirectory;
    QString m_baseFileName;
    QString m_currentFilePath;
    QStringList m_previousFilesPaths;
    OpenMode m_fileOpenMode = NotOpen;
    std::unique_ptr<RecordFile> m_currentFile;
    quint64 m_weightOfCurrentFile = 0;
    quint64 m_maximumWeightPerFile = 0;
    bool m_flushAfterWriting = false;
    bool m_registerWrittenFiles = false;
    PYXIFileList::eFileType m_registerFileType = PYXIFileList::ekFT_TEXT;
    QString m_registerFileComponentName;
    QByteArray m_leftOver; ///< accepted, but not taken by the file that has been closed
    QString m_error;       ///< not yet told
    bool m_bSilent = false;
    bool m_bDebugging = false;
};

} // namespace PYXRuntime
