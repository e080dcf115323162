// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Any bytes are read as a settings file. What is read must be the same with and without the scanner's short
// cut, and must come back from what is written of it.

#include "XmlSettingsReader.h"
#include "XmlSettingsScanner.h"
#include "XmlSettingsWriter.h"

#include <QtCore/QBuffer>
#include <QtGui/QGuiApplication>

#include <cstdint>
#include <cstdlib>

using namespace PYXRuntime;
using Map = QSettings::SettingsMap;

namespace {

void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) {}

void require(bool condition)
{
    if (!condition)
        std::abort();
}

QByteArray written(const Map &map)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    require(XmlSettingsWriter::write(buffer, map));
    return buffer.data();
}

/** The keys after writing: an entry without a name gets one. */
QStringList writtenKeys(const Map &map)
{
    Map renamed = map;
    for (const QString &key : map.keys()) {
        const bool bUnnamed = key.isEmpty() || key.endsWith(QLatin1Char('/'));
        const auto next = map.lowerBound(key + QLatin1Char('/'));
        const bool bGroup = next != map.end() && next.key().startsWith(key + QLatin1Char('/'));
        if (bUnnamed && !bGroup) {
            renamed.insert(key + QLatin1String("unnamed"), 0);
            renamed.remove(key);
        }
    }
    return renamed.keys();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_HASH_SEED", "0");                     // the same order of hashes in every run
    static QGuiApplication application(*argc, *argv); // values may hold pixmaps
    qInstallMessageHandler(ignoreMessage);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray file(reinterpret_cast<const char *>(data), int(size));
    Map map;
    Map scanned;
    const bool bRead = XmlSettingsReader::readAnyXml(file, map);
    if (XmlSettingsScanner::read(file, scanned)) {
        require(bRead && scanned.keys() == map.keys());
        require(written(scanned) == written(map));
    }
    if (!bRead)
        return 0;
    const QByteArray first = written(map);
    Map again;
    require(XmlSettingsReader::readAnyXml(first, again));
    require(again.keys() == writtenKeys(map));
    // An entry that was given a name has another place the next time, and Qt does not stream everything as it
    // was read: a gradient sorts stops at NaN anew each time.
    if (again.keys() == map.keys() && !first.contains("@Variant("))
        require(written(again) == first);
    return 0;
}
