// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QDataStream>

namespace PYXRuntime {

class StreamCursor;

/** Types whose streamed form is another one in data-stream versions beside those of Qt 4.0 and 4.6. */
namespace LaterStreamTypes {

/** Whether walk() is to be asked for the type, not the walkers of the two basic versions. */
bool isDifferent(int typeId, QDataStream::Version version);

/** Walks over such a value. @return false where it is none; GUI types of Qt 4.2 to 4.5 are not known. */
bool walk(StreamCursor &cursor, int typeId, QDataStream::Version version);

} // namespace LaterStreamTypes

} // namespace PYXRuntime
