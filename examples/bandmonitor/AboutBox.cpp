// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "AboutBox.h"

#include <PYXBroker.h>
#include <PYXIApplicationInfo.h>
#include <PYXSettings.h>

#include <QtCore/QDir>
#include <QtGui/QIcon>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

using namespace PYXRuntime;

namespace BandMonitor {
namespace {

constexpr int IconSize = 48;

struct AboutBoxTexts
{
    Q_DECLARE_TR_FUNCTIONS(BandMonitor::AboutBox)
};

} // namespace

void showAboutBox(QWidget *parent)
{
    auto *const info = PYXBroker::getInstance()->topObject<PYXIApplicationInfo>();
    const bool bPortable = info != nullptr && info->isRunningFromPortableDevice();
    const QString settings =
        QDir::toNativeSeparators(PYXSettings(PYXSettings::eUserApplicationSettings).fileName());

    auto *const box = new QMessageBox(
        QMessageBox::NoIcon, AboutBoxTexts::tr("About %1").arg(QCoreApplication::applicationName()),
        QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion(),
        QMessageBox::Ok, parent);
    box->setObjectName(QStringLiteral("aboutBox"));
    box->setIconPixmap(QApplication::windowIcon().pixmap(IconSize));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    const QString purpose = AboutBoxTexts::tr("Shows the signals in a recording, or in a band of its own.") +
                            QLatin1String("\n\n");
    box->setInformativeText(purpose + (bPortable ? AboutBoxTexts::tr("Settings, portable:\n%1\n\nQt %2")
                                                 : AboutBoxTexts::tr("Settings:\n%1\n\nQt %2"))
                                          .arg(settings, QLatin1String(qVersion())));
    box->open();
}

} // namespace BandMonitor
