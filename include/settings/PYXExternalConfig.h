// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

namespace PYXRuntime {

/**
 * Configuration that the application was handed from outside (a command line, the environment, another
 * process), for other parts to read. Kept in memory only; the library's start and end leave it alone.
 *
 * The static functions may be called from any thread. The table has no lock: it is filled and read in the
 * thread that called the first getInstance().
 */
class PYXRUNTIME_EXPORT PYXExternalConfig final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXExternalConfig)
public:
    ~PYXExternalConfig() override;

    /** Created on first use. */
    static PYXExternalConfig *getInstance();
    /** The object, or null; never creates one. */
    static PYXExternalConfig *hasInstance();
    /** Belongs in the thread of the first getInstance(); elsewhere it works, with a message. */
    static void destroyInstance();

    void setValue(const QString &key, const QVariant &value);
    QVariant value(const QString &key, const QVariant &defaultValue = QVariant()) const;
    bool contains(const QString &key) const;
    void remove(const QString &key);
    void clear();
    /** In no particular order. */
    QStringList allKeys() const;

private:
    explicit PYXExternalConfig(QObject *parent = nullptr);

    QHash<QString, QVariant> m_values;
};

} // namespace PYXRuntime
