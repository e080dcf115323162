// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// File dialogs that know the application's kinds of files, and begin where the last one ended.
#include <PYXFileFilter.h>
#include <PYXRuntime.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

using PYXRuntime::PYXFileFilter;

namespace {

QString chooseRecording()
{
    // Once in the program; what the user reads goes through tr().
    PYXFileFilter::registerFilter("Recordings", "Recordings", {"*.wav", "*.flac"});

    const PYXFileFilter recordings("OpenRecording", {"Recordings"});
    return recordings.getOpenFileName(nullptr, "Open Recording");
}

/** Does what the user would do. */
void choose(const QString &path)
{
    QTimer::singleShot(0, [path] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        dialog->setDirectory(QFileInfo(path).absoluteDir());
        dialog->selectFile(path);
        dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Open)->click();
    });
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("05 File Dialog");
    PYXRuntime::initialize_PYXRuntime();

    const QTemporaryDir directory;
    QDir(directory.path()).mkdir("recordings");
    const QString path = directory.filePath("recordings/station.wav");
    QFile(path).open(QIODevice::WriteOnly);
    if (QApplication::arguments().contains("--quit"))
        choose(path);

    const QString chosen = chooseRecording();
    const QString next = QFileInfo(PYXFileFilter("OpenRecording", {}).startPlace()).absolutePath();
    QTextStream(stdout) << "chosen: " << chosen << "\nnext dialog begins in " << next << '\n';
    PYXRuntime::uninitialize_PYXRuntime();
    return 0;
}
