// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "ApplicationSettings.h"

#include "PeerModel.h"
#include "SHW_Detector_Parameters.h"
#include "SHW_Display_Window.h"

#include <PYXSettings.h>
#include <PYXSettingsDialog.h>
#include <SHW_Debug_AppMode.h>
#include <SHW_Debug_Broker.h>
#include <SHW_Debug_RuntimeScopes.h>
#include <SHW_General_Language.h>
#include <SHW_General_Messages.h>
#include <SHW_General_Paths.h>
#include <SHW_Network_Entries.h>
#include <SHW_Network_Proxy.h>

using namespace PYXRuntime;

namespace BandMonitor {

ApplicationSettings::ApplicationSettings(QWidget *window)
    : QObject(window)
    , m_window(window)
{}

void ApplicationSettings::run(ePage page)
{
    if (m_dialog == nullptr)
        _createDialog();
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    PYXSettings defaults(PYXSettings::eDefaultApplicationSettings);
    m_dialog->exec(settings, defaults, page == ekPage_Detector ? m_detectorPage : nullptr);
}

void ApplicationSettings::_createDialog()
{
    m_dialog = new PYXSettingsDialog(m_window);
    m_dialog->setObjectName(QStringLiteral("settingsDialog"));
    m_detectorPage = new SHW_Detector_Parameters;
    auto *const modePage = new SHW_Debug_AppMode;
    PYXSettingsHandlerWidget *const pages[] = {new SHW_General_Language,
                                               new SHW_General_Paths,
                                               new SHW_General_Messages,
                                               new SHW_Display_Window,
                                               m_detectorPage,
                                               new SHW_Network_Proxy,
                                               new SHW_Network_Entries(PeerModel::emptyList()),
                                               modePage,
                                               new SHW_Debug_RuntimeScopes,
                                               new SHW_Debug_Broker};
    for (PYXSettingsHandlerWidget *const page : pages)
        m_dialog->registerSettingsHandler(page);
    connect(modePage, &SHW_Debug_AppMode::si_appModesApplied, this, &ApplicationSettings::si_appModesApplied);
    connect(m_dialog, &PYXSettingsDialog::si_settingsPageApplied, this, &ApplicationSettings::si_applied);
}

} // namespace BandMonitor
