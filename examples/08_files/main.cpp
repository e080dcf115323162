// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// A recording goes to one file after the other, the oldest are deleted, and the user finds all that were
// written.
#include <PYXBroker.h>
#include <PYXIFileList.h>
#include <PYXRetainingFileSet.h>
#include <PYXRuntime.h>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTextStream>

using namespace PYXRuntime;

namespace {

/** Writes ten blocks, two in a file. */
bool record(const QString &directory)
{
    PYXRetainingFileSet recording;
    recording.setBaseDirectory(directory);      // must exist
    recording.setBaseFileName("antenna2.iq");   // antenna2_2026-11-21_07-20-00_UTC.iq and so on
    recording.setMaximumWeightPerFile(131'072); // a file ends with the write that reaches this
    recording.setMaximumNumberOfFiles(3);
    recording.setRegisterWrittenFiles(true);
    recording.setRegisterFileType(PYXIFileList::ekFT_RECORDING);
    recording.setRegisterFileComponentName("Recorder");
    QObject::connect(&recording, &PYXRetainingFileSet::si_writeError,
                     [](const QString &message) { QTextStream(stderr) << message << '\n'; });

    const QByteArray block(64 * 1024, '\0');
    if (!recording.open(QIODevice::WriteOnly))
        return false;
    for (int i = 0; i < 10; ++i)
        if (recording.write(block) != block.size()) // the disk is full, perhaps: the next write tries again
            return false;
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("08 Files");
    initialize_PYXRuntime();

    const QTemporaryDir directory;
    const bool isWritten = record(directory.path());
    const auto kept = QDir(directory.path()).entryList({"antenna2_*_UTC*.iq"}).size();

    // Whoever shows the files to the user:
    auto *files = PYXBroker::getInstance()->topObject<PYXIFileList>();
    const int listed = files->fileCount("Recorder");
    QTextStream(stdout) << "the newest " << kept << " of 5 files are kept\nlisted for the user: " << listed
                        << '\n';
    uninitialize_PYXRuntime();
    return isWritten ? 0 : 1;
}
