// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

namespace PYXRuntime {

class StreamCursor;

/** The format in which QtGui streams an image: a flag, and a PNG file if there is an image. */
namespace ImageStreamType {

/**
 * Walks over an image. Fails at any other image format, and at a PNG file that claims more pixels than
 * its bytes can unpack to or than any setting needs.
 */
bool walk(StreamCursor &cursor);

} // namespace ImageStreamType
} // namespace PYXRuntime
