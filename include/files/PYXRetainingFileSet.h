// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXCountingFileSet.h"

namespace PYXRuntime {

/**
 * A set of files for programs that run day and night: no file replaces another one, and old files go.
 *
 * The second file of a second is called "trace_2018-03-01_12-00-05_UTC_002.log.txt". Each time a file is
 * opened, files of this set that are too many or too large are deleted, the oldest first; files that earlier
 * runs have left under the same base file name count too. So two sets that limit their files must not share
 * directory and base file name. A file that cannot be deleted is tried again the next time. Threads as with
 * PYXCountingFileSet.
 */
class PYXRUNTIME_EXPORT PYXRetainingFileSet : public PYXCountingFileSet
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXRetainingFileSet)
    Q_PROPERTY(eWeight countedWeight READ countedWeight WRITE setCountedWeight)
    Q_PROPERTY(int maximumNumberOfFiles READ maximumNumberOfFiles WRITE setMaximumNumberOfFiles)
    Q_PROPERTY(quint64 maximumSizeOfFiles READ maximumSizeOfFiles WRITE setMaximumSizeOfFiles)
public:
    enum eWeight { ekWeight_Bytes, ekWeight_Lines };
    Q_ENUM(eWeight)

    explicit PYXRetainingFileSet(QObject *parent = nullptr);
    ~PYXRetainingFileSet() override;

    /** What the maximum weight means; to be set before the set is opened. Default: bytes. */
    eWeight countedWeight() const { return m_countedWeight; }
    void setCountedWeight(eWeight weight) { m_countedWeight = weight; }
    /** How many files are kept, with the current one. Default: 0, all. */
    int maximumNumberOfFiles() const { return m_maximumNumberOfFiles; }
    void setMaximumNumberOfFiles(int number) { m_maximumNumberOfFiles = number; }
    /** How many bytes the finished files may hold together. Default: 0, without limit. */
    quint64 maximumSizeOfFiles() const { return m_maximumSizeOfFiles; }
    void setMaximumSizeOfFiles(quint64 bytes) { m_maximumSizeOfFiles = bytes; }

protected:
    quint64 _getWeightOfData(const char *data, qint64 requestedSize, qint64 writtenSize) override;
    /** Makes the file, so that its name is taken, and deletes old ones. */
    QString _getNextFileName() override;

private:
    QString _takeName(bool &bTaken);
    void _deleteOldFiles(const QString &newName);

    eWeight m_countedWeight = ekWeight_Bytes;
    int m_maximumNumberOfFiles = 0;
    quint64 m_maximumSizeOfFiles = 0;
    QString m_lastPath; ///< without the number within its second
    int m_lastNumber = 1;
};

} // namespace PYXRuntime
