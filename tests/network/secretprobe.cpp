// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// A process that is looked at from outside: it puts a proxy with a password in force, says "held" while it
// has the password in the plain, and "wiped" when only the factory needs it still. Each waits for a line of
// input.

#include "PYXProxyManager.h"
#include "PYXSettings.h"
#include "PYXStringHelpers.h"
#include "SettingsHome.h"

#include <QtCore/QCoreApplication>

#include <cstdio>
#include <memory>

using namespace PYXRuntime;

namespace {

/** The password of tst_SecretMemory; its own text never stands in the memory of this process. */
QString password()
{
    constexpr char Masked[] = "&*77 &1e-*76 e'$11 7<e61$5) ";
    const volatile char mask = 0x45; // the compiler must not work it out
    QString text;
    text.reserve(int(sizeof Masked)); // one buffer
    for (const char *character = Masked; *character != 0; ++character)
        text += QLatin1Char(char(*character ^ mask));
    return text;
}

void say(const char *state)
{
    std::puts(state);
    std::fflush(stdout);
    std::getchar();
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const SettingsHome home;
    {
        QString plain = password();
        auto configuration = std::make_unique<ProxyConfiguration>("proxy.example", 3128, "user", plain);
        PYXStringHelpers::safeOverwriteAndClear(plain);
        say("held");
        PYXSettings settings(PYXSettings::eUserApplicationSettings);
        configuration->save(&settings, PYXProxyManager::settingsKey(), true);
        PYXProxyManager::applyProxyConfiguration(*configuration);
        ProxyConfiguration restored =
            ProxyConfiguration::restoredFrom(&settings, PYXProxyManager::settingsKey(), nullptr);
        restored = *configuration;
        configuration->obfuscateProxyPassword();
        configuration->unobfuscateProxyPassword();
    }
    say("wiped");
    return 0;
}
