// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "Latin1Text.h"

#include <QtCore/QDataStream>

/** The words of the XML form, shared by its reader and its writer. */
namespace PYXRuntime::StatusHashXmlForms {

constexpr QLatin1String StatusHash = latin1("StatusHash"); // also the tag of the element
constexpr QLatin1String MagicAttribute = latin1("magic");
constexpr QLatin1String TypeAttribute = latin1("type");
constexpr QLatin1String EntryTag = latin1("Entry");
constexpr QLatin1String KeyAttribute = latin1("key");

constexpr QLatin1String Bool = latin1("Bool");
constexpr QLatin1String Int = latin1("Int");
constexpr QLatin1String UInt = latin1("UInt");
constexpr QLatin1String LongLong = latin1("LongLong");
constexpr QLatin1String ULongLong = latin1("ULongLong");
constexpr QLatin1String Double = latin1("Double");
constexpr QLatin1String String = latin1("String");
constexpr QLatin1String Point = latin1("Point");
constexpr QLatin1String PointF = latin1("PointF");
constexpr QLatin1String Size = latin1("Size");
constexpr QLatin1String SizeF = latin1("SizeF");
constexpr QLatin1String Rect = latin1("Rect");
constexpr QLatin1String RectF = latin1("RectF");
constexpr QLatin1String Line = latin1("Line");
constexpr QLatin1String LineF = latin1("LineF");
constexpr QLatin1String Hash = latin1("Hash");
constexpr QLatin1String Variant = latin1("Variant");

constexpr QLatin1String True = latin1("true");
constexpr QLatin1String False = latin1("false");

/** Of the percent-encoded values, whatever the version of the hash. */
constexpr QDataStream::Version VariantVersion = QDataStream::Qt_4_6;

} // namespace PYXRuntime::StatusHashXmlForms
