// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// Runs once per user: start it, and then again with the name of a file.
#include <PYXRuntime.h>
#include <PYXSingleInstance.h>

#include <QApplication>
#include <QDir>
#include <QProcess>
#include <QTextStream>
#include <QWidget>

using PYXRuntime::PYXSingleInstance;

namespace {

/** Relative paths are relative to where the other one was started. */
void open(const QStringList &arguments, const QString &workingDirectory)
{
    for (const QString &file : arguments.mid(1))
        QTextStream(stdout) << "opens " << QDir(workingDirectory).absoluteFilePath(file) << '\n';
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example"); // one instance per user and these two names
    QApplication::setApplicationName("12 Single Instance");

    PYXSingleInstance instance;
    const auto result = instance.start();
    if (result == PYXSingleInstance::ekHandedOver)
        return 0; // the first one has the arguments, and opens the file
    QTextStream(stdout) << (result == PYXSingleInstance::ekFirst ? "first instance" : instance.errorString())
                        << '\n';

    PYXRuntime::initialize_PYXRuntime();
    QWidget window;
    window.show();
    QObject::connect(&instance, &PYXSingleInstance::si_argumentsReceived, &window,
                     [&window](const QStringList &arguments, const QString &workingDirectory) {
                         open(arguments, workingDirectory);
                         window.raise();
                         window.activateWindow();
                         if (QApplication::arguments().contains("--quit"))
                             QApplication::quit();
                     });
    QProcess second;
    if (QApplication::arguments().contains("--quit"))
        second.start(QApplication::applicationFilePath(), {"recording.wav"});
    const int exitCode = QApplication::exec();
    second.waitForFinished();
    instance.stop(); // who is started from now on is not kept waiting
    PYXRuntime::uninitialize_PYXRuntime();
    return exitCode;
}
