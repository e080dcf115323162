// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtTest/QTest>

/** What a finished child process has left. */
struct ChildResult
{
    bool bFinished = false;
    int exitCode = -1; ///< stays so where the process crashed or did not end
    QString output;
    QString errors;
};

/** Runs a program that finds the libraries beside the test program; waits until it ends. */
inline ChildResult runChild(const QString &program, const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PATH", QDir::toNativeSeparators(QCoreApplication::applicationDirPath()) +
                                   QDir::listSeparator() + environment.value("PATH"));
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    ChildResult result;
    result.bFinished = process.waitForFinished(60'000) && process.exitStatus() == QProcess::NormalExit;
    if (result.bFinished)
        result.exitCode = process.exitCode();
    result.output = QString::fromUtf8(process.readAllStandardOutput()).remove('\r');
    result.errors = QString::fromUtf8(process.readAllStandardError()).remove('\r');
    return result;
}

/** Runs this program for what its probe does with @p what. */
inline ChildResult runOwnProbe(const QString &what)
{
    return runChild(QCoreApplication::applicationFilePath(), {"--probe", what});
}

/**
 * The main() of a test with a probe: int probe(int argc, char **argv), which runOwnProbe() calls in a process
 * of its own, with what it shall do in argv[2] and before there is an application object.
 */
#define PYX_TEST_MAIN_WITH_PROBE(Test, probe)                                                                \
    int main(int argc, char **argv)                                                                          \
    {                                                                                                        \
        if (argc == 3 && qstrcmp(argv[1], "--probe") == 0)                                                   \
            return probe(argc, argv);                                                                        \
        QCoreApplication application(argc, argv);                                                            \
        Test test;                                                                                           \
        return QTest::qExec(&test, argc, argv);                                                              \
    }
