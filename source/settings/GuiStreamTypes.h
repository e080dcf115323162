// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QDataStream>

namespace PYXRuntime {

class StreamCursor;

/** The formats in which QtGui streams its value types, for stream versions Qt_4_0 and Qt_4_6. */
namespace GuiStreamTypes {

/** Walks over one value of a type of QtGui; fails at any other type. */
bool walk(StreamCursor &cursor, int typeId, QDataStream::Version version);

} // namespace GuiStreamTypes
} // namespace PYXRuntime
