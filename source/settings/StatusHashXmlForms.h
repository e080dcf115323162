// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QDataStream>
#include <QtCore/QString>

#include <cstddef>

/** The words of the XML form, shared by its reader and its writer. */
namespace PYXRuntime::StatusHashXmlForms {

template <std::size_t Size>
constexpr QLatin1String word(const char (&text)[Size])
{
    return QLatin1String(text, int(Size) - 1);
}

constexpr QLatin1String StatusHash = word("StatusHash"); // also the tag of the element
constexpr QLatin1String MagicAttribute = word("magic");
constexpr QLatin1String TypeAttribute = word("type");
constexpr QLatin1String EntryTag = word("Entry");
constexpr QLatin1String KeyAttribute = word("key");

constexpr QLatin1String Bool = word("Bool");
constexpr QLatin1String Int = word("Int");
constexpr QLatin1String UInt = word("UInt");
constexpr QLatin1String LongLong = word("LongLong");
constexpr QLatin1String ULongLong = word("ULongLong");
constexpr QLatin1String Double = word("Double");
constexpr QLatin1String String = word("String");
constexpr QLatin1String Point = word("Point");
constexpr QLatin1String PointF = word("PointF");
constexpr QLatin1String Size = word("Size");
constexpr QLatin1String SizeF = word("SizeF");
constexpr QLatin1String Rect = word("Rect");
constexpr QLatin1String RectF = word("RectF");
constexpr QLatin1String Line = word("Line");
constexpr QLatin1String LineF = word("LineF");
constexpr QLatin1String Hash = word("Hash");
constexpr QLatin1String Variant = word("Variant");

constexpr QLatin1String True = word("true");
constexpr QLatin1String False = word("false");

/** Of the percent-encoded values, whatever the version of the hash. */
constexpr QDataStream::Version VariantVersion = QDataStream::Qt_4_6;

} // namespace PYXRuntime::StatusHashXmlForms
