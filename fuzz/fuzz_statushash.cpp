// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Bytes are restored as a status hash: the first one is the data-stream version of a binary form, or anything
// else before an XML document. What is restored must come back from both forms of it.

#include "PYXRuntimeCenter.h"
#include "PYXStatusHash.h"
#include "PYXTraceWrapper.h"
#include "RecordingTracer.h"

#include <QtGui/QGuiApplication>
#include <QtXml/QDomDocument>

#include <cstdint>
#include <cstdlib>

using namespace PYXRuntime;

namespace {

RecordingTracer traces;

void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) {}

void require(bool condition)
{
    if (!condition)
        std::abort();
}

QByteArray writtenAnew(PYXStatusHash hash)
{
    hash.insert("changed", true);
    return hash.serialize();
}

/** A document in memory is read as its bytes are. */
void compareWithDocument(const QByteArray &xml, const PYXStatusHash &fromBytes)
{
    QDomDocument document;
    QDomElement element;
    if (document.setContent(xml))
        element = document.documentElement();
    PYXStatusHash fromElement;
    if (fromElement.restoreFromXml(element))
        require(fromElement.keys().size() == fromBytes.keys().size());
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_HASH_SEED", "0");                     // the same order of hashes in every run
    static QGuiApplication application(*argc, *argv); // values may hold pixmaps
    qInstallMessageHandler(ignoreMessage);
    PYXTraceWrapper::addTracer(&traces); // so that nothing is printed
    PYXRuntimeCenter::setEnabled_pyxWarning(false);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char *>(data + 1), int(size) - 1);
    const bool bBinary = data[0] >= QDataStream::Qt_4_0 && data[0] <= QDataStream::Qt_5_15;
    PYXStatusHash hash(bBinary ? QDataStream::Version(data[0]) : PYXStatusHash::DefaultVersion);
    const bool bRestored = bBinary ? hash.restoreFrom(bytes) : hash.restoreFromXml(bytes);
    if (bRestored) {
        require(PYXStatusHash(hash.datastreamVersion()).restoreFrom(writtenAnew(hash)));
        const QByteArray xml = hash.toXml();
        PYXStatusHash fromXml;
        require(fromXml.restoreFromXml(xml));
        compareWithDocument(xml, fromXml);
    }
    traces.calls.clear();
    return 0;
}
