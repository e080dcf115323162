// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QObject>

class QWidget;

namespace PYXRuntime {
class PYXSettingsDialog;
class PYXSettingsHandlerWidget;
} // namespace PYXRuntime

namespace BandMonitor {

/** All settings of the program in one dialog: its own pages, and those of the library. */
class ApplicationSettings final : public QObject
{
    Q_OBJECT
public:
    enum ePage {
        ekPage_Last, ///< the one that was shown when the dialog was closed
        ekPage_Detector
    };

    /** The dialog is made, as a child of the window, when it is first asked for. */
    explicit ApplicationSettings(QWidget *window);

    /** Returns when the user has closed the dialog. */
    void run(ePage page = ekPage_Last);

Q_SIGNALS:
    /** Pages have been applied: what they store may have changed. */
    void si_applied();
    /** The user wants these modes, see PYXRuntime::SHW_Debug_AppMode. */
    void si_appModesApplied(quint64 a_appModes);

private:
    void _createDialog();

    QWidget *m_window;
    PYXRuntime::PYXSettingsDialog *m_dialog = nullptr;
    PYXRuntime::PYXSettingsHandlerWidget *m_detectorPage = nullptr;
};

} // namespace BandMonitor
