// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtWidgets/QMenu>

namespace BandMonitor {

/** A menu of the recordings that were opened last, the newest first. They are kept in the user's settings. */
class RecentRecordings final : public QMenu
{
    Q_OBJECT
public:
    static constexpr int MaximumCount = 8;

    explicit RecentRecordings(QWidget *parent = nullptr);

    static QStringList paths();
    static void add(const QString &path);

Q_SIGNALS:
    void si_chosen(const QString &a_path);

protected:
    void changeEvent(QEvent *event) override;

private:
    void _sl_aboutToShow();
};

} // namespace BandMonitor
