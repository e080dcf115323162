// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Bytes are read as an executable file, and as the block of a version resource, and everything in the tree is
// looked at: a node's children together hold no more than the node.

#include "PeImage.h"
#include "VersionNode.h"

#include <QtCore/QBuffer>

#include <cstdint>
#include <cstdlib>

using PYXRuntime::PeImage;
using PYXRuntime::VersionNode;

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

void walk(const VersionNode &node, int depth, int &bytesLeft)
{
    bytesLeft -= node.key().size() * 2;
    require(bytesLeft >= 0);
    require(node.text().size() + node.value().size() <= 3 * 0xFFFF);
    for (VersionNode child = node.firstChild(); child.isValid() && depth > 0; child = child.next())
        walk(child, depth - 1, bytesLeft);
}

void look(const QByteArray &block)
{
    require(block.size() <= 0xFFFF);
    const VersionNode root(block);
    int bytesLeft = block.size();
    walk(root, 3, bytesLeft);
    root.child(QStringLiteral("StringFileInfo")).child(QStringLiteral("040904B0")).firstChild().text();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    look(bytes.left(0xFFFF));
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly);
    const PeImage image(file);
    const QByteArray block = image.resource(16, 1, {0, 0x0409}, 0xFFFF);
    require(block.size() <= bytes.size());
    look(block);
    return 0;
}
