// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>
#include <QtCore/QThread>

/** A thread of a module: uses for some seconds what may be used in any thread, and ends. */
class SoakWorker final : public QThread
{
    Q_OBJECT
public:
    explicit SoakWorker(const QString &directory)
        : m_directory(directory)
    {}

protected:
    void run() override;

private:
    void _work(int round) const;

    const QString m_directory;
};
