// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Another instance: instanceprobe ID [ARGUMENT]...; tells what it is and, as the first one, what it is given.
#include "PYXSingleInstance.h"

#include <QtCore/QMetaEnum>

#include <cstdio>

using PYXRuntime::PYXSingleInstance;

namespace {

void tell(const QString &line)
{
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    PYXSingleInstance instance(words.at(1));
    instance.setTimeout(30'000);
    QObject::connect(&instance, &PYXSingleInstance::si_argumentsReceived, &instance,
                     [](const QStringList &arguments) { tell(arguments.join('+')); });
    const auto result = instance.start(words.mid(2));
    tell(QMetaEnum::fromType<PYXSingleInstance::eResult>().valueToKey(result));
    return result == PYXSingleInstance::ekFirst ? QCoreApplication::exec() : 0;
}
