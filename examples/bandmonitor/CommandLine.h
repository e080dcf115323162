// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QCommandLineParser>
#include <QtCore/QSize>
#include <QtCore/QStringList>

namespace BandMonitor {

/** What the program is asked to do. */
class CommandLine final
{
public:
    CommandLine();

    /** @param arguments without those that switch modes. Ends the program where they ask for help, or make no
     * sense. */
    void process(const QStringList &arguments) { m_parser.process(arguments); }

    bool isDark() const;
    bool isPortable() const;
    /** Whether the window must be one of its own, whatever runs already. */
    bool isNewInstance() const;
    /** Empty: none is asked for. */
    QString screenshotPath() const;
    /** Invalid: the usual one. */
    QSize size() const;
    /** Of the texts; empty: the stored one. */
    QString locale() const;
    /** Empty: the own band. */
    QString recording() const { return m_parser.positionalArguments().value(0); }

    /**
     * The recording that another start of the program has been given.
     * @param arguments without those that switch modes
     * @param workingDirectory of that start
     * @return a whole path; empty for none
     */
    static QString recordingOf(const QStringList &arguments, const QString &workingDirectory);

private:
    QCommandLineParser m_parser;
};

} // namespace BandMonitor
