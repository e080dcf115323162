// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QDataStream>
#include <QtCore/QString>

/** The words of the XML form, shared by its reader and its writer. */
namespace PYXRuntime::StatusHashXmlForms {

constexpr QLatin1String StatusHash("StatusHash"); // also the tag of the element
constexpr QLatin1String MagicAttribute("magic");
constexpr QLatin1String TypeAttribute("type");
constexpr QLatin1String EntryTag("Entry");
constexpr QLatin1String KeyAttribute("key");

constexpr QLatin1String Bool("Bool");
constexpr QLatin1String Int("Int");
constexpr QLatin1String UInt("UInt");
constexpr QLatin1String LongLong("LongLong");
constexpr QLatin1String ULongLong("ULongLong");
constexpr QLatin1String Double("Double");
constexpr QLatin1String String("String");
constexpr QLatin1String Point("Point");
constexpr QLatin1String PointF("PointF");
constexpr QLatin1String Size("Size");
constexpr QLatin1String SizeF("SizeF");
constexpr QLatin1String Rect("Rect");
constexpr QLatin1String RectF("RectF");
constexpr QLatin1String Line("Line");
constexpr QLatin1String LineF("LineF");
constexpr QLatin1String Hash("Hash");
constexpr QLatin1String Variant("Variant");

constexpr QLatin1String True("true");
constexpr QLatin1String False("false");

/** Of the percent-encoded values, whatever the version of the hash. */
constexpr QDataStream::Version VariantVersion = QDataStream::Qt_4_6;

} // namespace PYXRuntime::StatusHashXmlForms
