// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "CommandLine.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>

namespace BandMonitor {
namespace {

const QLatin1String HeadlessOption("headless");
const QLatin1String ScreenshotOption("screenshot");
const QLatin1String SizeOption("size");
const QLatin1String DarkOption("dark");
const QLatin1String LanguageOption("language");
const QLatin1String PortableOption("portable");
const QLatin1String NewInstanceOption("new-instance");

struct CommandLineTexts
{
    Q_DECLARE_TR_FUNCTIONS(BandMonitor::CommandLine)
};

} // namespace

CommandLine::CommandLine()
{
    m_parser.setApplicationDescription(
        CommandLineTexts::tr("Shows the signals in a recording, or in a band of its own.\n\n"
                             "++expert and ++debug switch modes on, --expert and --debug switch them off."));
    m_parser.addHelpOption();
    m_parser.addVersionOption();
    m_parser.addPositionalArgument(
        QStringLiteral("recording"),
        CommandLineTexts::tr("WAV file: one channel of real samples, or two of I/Q."),
        QStringLiteral("[RECORDING]"));
    m_parser.addOption(
        {HeadlessOption, CommandLineTexts::tr("Print the detected signals instead of showing a window.")});
    m_parser.addOption({ScreenshotOption,
                        CommandLineTexts::tr("Process everything, save a picture of the window, and end."),
                        CommandLineTexts::tr("FILE")});
    m_parser.addOption(
        {SizeOption, CommandLineTexts::tr("Size of the window."), CommandLineTexts::tr("WIDTHxHEIGHT")});
    m_parser.addOption({DarkOption, CommandLineTexts::tr("Use dark colours.")});
    m_parser.addOption({LanguageOption, CommandLineTexts::tr("Language of the texts: en, de or fr."),
                        CommandLineTexts::tr("LANGUAGE")});
    m_parser.addOption(
        {PortableOption,
         CommandLineTexts::tr("Keep settings beside the program, not in the user's directories.")});
    m_parser.addOption(
        {NewInstanceOption,
         CommandLineTexts::tr("Open a window of its own, even if one is open that could show this.")});
}

bool CommandLine::isDark() const
{
    return m_parser.isSet(DarkOption);
}

bool CommandLine::isPortable() const
{
    return m_parser.isSet(PortableOption);
}

bool CommandLine::isNewInstance() const
{
    return m_parser.isSet(NewInstanceOption);
}

QString CommandLine::screenshotPath() const
{
    return m_parser.value(ScreenshotOption);
}

QSize CommandLine::size() const
{
    const QStringList numbers = m_parser.value(SizeOption).split(QLatin1Char('x'));
    return numbers.size() == 2 ? QSize(numbers.at(0).toInt(), numbers.at(1).toInt()) : QSize();
}

QString CommandLine::locale() const
{
    return m_parser.value(LanguageOption);
}

QString CommandLine::recordingOf(const QStringList &arguments, const QString &workingDirectory)
{
    CommandLine other;
    other.m_parser.parse(arguments); // that start has complained of what makes no sense
    const QString recording = other.recording();
    return recording.isEmpty() ? QString() : QDir(workingDirectory).absoluteFilePath(recording);
}

} // namespace BandMonitor
