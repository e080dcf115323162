// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// Which version this program is, and whether another one is new enough.
#include <PYXRuntime.h>
#include <PYXVersion.h>
#include <PYXWinResVersion.h>

#include <QApplication>
#include <QTextStream>

using namespace PYXRuntime;

namespace {

/** Of a program or library for Windows, read on every system; an empty path means this program. */
PYXVersion versionOf(const QString &path)
{
    const PYXWinResVersion file(path);
    PYXVersion version;
    if (!file.getVersion(PYXWinResVersion::ekProductVersion, version))
        QTextStream(stderr) << path << " has no version\n";
    return version; // not valid then
}

/** Finds the numbers in a text, whatever is around them. */
QString judged(const QString &text)
{
    const PYXVersion installed(text);
    if (!installed.isValid())
        return "no version in " + text;
    if (installed < PYXVersion(4, 2, 7, 0))
        return "demodulator " + installed.toString() + " is too old";
    return "demodulator " + installed.toString() + " will do";
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("13 Versions");
    QApplication::setApplicationVersion("4.2.7.1"); // on Linux; on Windows version.rc says it
    initialize_PYXRuntime();

    const PYXVersion own = versionOf(QString());
    QTextStream(stdout) << "this program: " << own.toFullString() << '\n'
                        << judged("demodulator-4.2.6-win64.zip") << '\n';

    uninitialize_PYXRuntime();
    return own == PYXVersion(4, 2, 7, 1) ? 0 : 1;
}
