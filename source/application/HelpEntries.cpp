// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "HelpEntries.h"

#include "PYXTraceWrapper.h"

#include <QtCore/QFile>
#include <QtCore/QXmlStreamReader>

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\PYXHelpConnectorImpl";
const QLatin1String RootTag("HelpEntries");
const QLatin1String EntryTag("Entry");
const QLatin1String StartAttribute("start");
const QLatin1String ContextAttribute("context");
const QLatin1String PageAttribute("page");

QUrl pageUrl(const QUrl &base, const QString &page)
{
    return page.isEmpty() ? QUrl() : base.resolved(QUrl(page));
}

struHelpEntries readEntries(QXmlStreamReader &reader, const QUrl &base)
{
    struHelpEntries entries;
    if (!reader.readNextStartElement())
        return entries;
    if (reader.name() != RootTag) {
        reader.raiseError(QStringLiteral("this is no help-entry file"));
        return entries;
    }
    entries.start = pageUrl(base, reader.attributes().value(StartAttribute).toString());
    while (reader.readNextStartElement()) {
        const QXmlStreamAttributes attributes = reader.attributes();
        const QString context = attributes.value(ContextAttribute).toString();
        const QUrl page = pageUrl(base, attributes.value(PageAttribute).toString());
        if (reader.name() == EntryTag && !context.isEmpty() && page.isValid())
            entries.pages.insert(context, page);
        else
            PYXTraceWrapper::staticTraceWarn(
                QStringLiteral("Help entry in line %1 has no context or no page.").arg(reader.lineNumber()),
                TraceFile, __LINE__);
        reader.skipCurrentElement();
    }
    return entries;
}

} // namespace

struHelpEntries readHelpEntries(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        PYXTraceWrapper::staticTraceWarn(
            QStringLiteral("Cannot open help-entry file \"%1\": %2").arg(path, file.errorString()), TraceFile,
            __LINE__);
        return {};
    }
    QXmlStreamReader reader(&file);
    struHelpEntries entries = readEntries(reader, QUrl::fromLocalFile(path));
    if (!reader.hasError())
        return entries;
    PYXTraceWrapper::staticTraceWarn(QStringLiteral("Cannot read help-entry file \"%1\": %2 [%3:%4]")
                                         .arg(path, reader.errorString(),
                                              QString::number(reader.lineNumber()),
                                              QString::number(reader.columnNumber())),
                                     TraceFile, __LINE__);
    return {};
}

} // namespace PYXRuntime
