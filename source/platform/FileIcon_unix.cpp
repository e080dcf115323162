// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileIcon.h"

#include <QtCore/QFileInfo>
#include <QtCore/QMimeDatabase>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

namespace PYXRuntime::Platform {
namespace {

/** For systems without an icon theme. */
QIcon iconOfStyle(const QString &path)
{
    if (qobject_cast<QApplication *>(QCoreApplication::instance()) == nullptr)
        return {};
    return QApplication::style()->standardIcon(QFileInfo(path).isDir() ? QStyle::SP_DirIcon
                                                                       : QStyle::SP_FileIcon);
}

} // namespace

QIcon fileIcon(const QString &path, int)
{
    const QMimeType type = QMimeDatabase().mimeTypeForFile(path);
    for (const QString &name : {type.iconName(), type.genericIconName(), QStringLiteral("unknown")}) {
        if (QIcon::hasThemeIcon(name))
            return QIcon::fromTheme(name);
    }
    return iconOfStyle(path);
}

} // namespace PYXRuntime::Platform
