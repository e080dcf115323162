// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXXmlSettings.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

/** A place for settings that belongs to one test: "user" and "system", with XML as the default format. */
class SettingsHome final
{
public:
    SettingsHome()
    {
        QCoreApplication::setOrganizationName("Organisation");
        QCoreApplication::setApplicationName("Application");
        QSettings::setDefaultFormat(PYXRuntime::PYXXmlSettings::format());
        hold(PYXRuntime::PYXXmlSettings::format());
    }

    /** Puts the files of a format here too. */
    void hold(QSettings::Format format) const
    {
        QSettings::setPath(format, QSettings::UserScope, path("user"));
        QSettings::setPath(format, QSettings::SystemScope, path("system"));
    }

    QString path(const QString &name) const { return m_directory.filePath(name); }
    /** Every file below, relative. */
    QStringList files() const
    {
        QStringList found;
        collect(QDir(m_directory.path()), found);
        return found;
    }

private:
    void collect(const QDir &directory, QStringList &found) const
    {
        const auto entries = directory.entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QFileInfo &entry : entries) {
            if (entry.isDir())
                collect(QDir(entry.filePath()), found);
            else
                found += QDir(m_directory.path()).relativeFilePath(entry.filePath());
        }
    }

    QTemporaryDir m_directory;
};
