// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXInterfaceIdentifiers.h"

#include "PYXBroker.h"

namespace PYXRuntime::InterfaceIdentifiers {
namespace {

bool declareInterfaces()
{
    const struct
    {
        QUuid identifier;
        const char *name;
    } interfaces[] = {
        {object(), "QObject"},
        {applicationInfo(), "PYXRuntime::PYXIApplicationInfo"},
        {appInternals(), "PYXRuntime::PYXIAppInternals"},
        {configurator(), "PYXRuntime::PYXIConfigurator"},
        {fileList(), "PYXRuntime::PYXIFileList"},
        {helpConnector(), "PYXRuntime::PYXIHelpConnector"},
        {menuExtension(), "PYXRuntime::PYXIMenuExtension"},
        {transConnector(), "PYXRuntime::PYXITransConnector"},
    };
    PYXBroker *const broker = PYXBroker::getInstance();
    for (const auto &interface : interfaces)
        broker->declareInterface(interface.identifier, QLatin1String(interface.name));
    return true;
}

// Runs while the library loads.
[[maybe_unused]] const bool s_bDeclared = declareInterfaces();

} // namespace

QUuid object()
{
    return {};
}

QUuid applicationInfo()
{
    return {0x4CF3FCA3, 0x26E7, 0x44a9, 0x8C, 0x81, 0xD9, 0x18, 0x32, 0xDC, 0xF0, 0x7D};
}

QUuid appInternals()
{
    return {0x84AAAD84, 0x7DFA, 0x416c, 0x92, 0xAD, 0xD7, 0x19, 0x43, 0x17, 0xC8, 0x6E};
}

QUuid configurator()
{
    return {0x53F44755, 0xAF06, 0x4d6b, 0x81, 0x24, 0x63, 0x80, 0x12, 0xE3, 0xD1, 0x66};
}

QUuid fileList()
{
    return {0x0DF98A0F, 0x076B, 0x4135, 0x96, 0x29, 0x02, 0x03, 0x70, 0x40, 0x73, 0xE4};
}

QUuid helpConnector()
{
    return {0xC620B5DB, 0xC733, 0x43fb, 0xB5, 0xB2, 0x4D, 0xB5, 0x33, 0xCD, 0xAC, 0x15};
}

QUuid menuExtension()
{
    return {0x7139A7EE, 0x1AAD, 0x4e54, 0x94, 0x44, 0xCB, 0x80, 0x5F, 0x83, 0x3F, 0x26};
}

QUuid transConnector()
{
    return {0xE830293E, 0xC4C9, 0x4ce2, 0x88, 0x89, 0xFF, 0x70, 0xA1, 0x50, 0xF2, 0x96};
}

} // namespace PYXRuntime::InterfaceIdentifiers
