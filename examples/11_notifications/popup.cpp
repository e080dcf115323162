// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// Short texts that come and go by themselves, one after the other, from whichever thread.
#include <PYXPopupNotification.h>
#include <PYXRuntime.h>

#include <QApplication>
#include <QMainWindow>
#include <QTextStream>

#include <thread>

using PYXRuntime::PYXPopupNotification;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("11 Popup");
    PYXRuntime::initialize_PYXRuntime();

    {
        QMainWindow window;
        window.resize(640, 480);
        window.show();
        PYXPopupNotification::queueQuickNotification("Recording saved", &window); // centred over the window

        // From any thread; without a window it is centred over the active one.
        std::thread([] { PYXPopupNotification::queueQuickNotification("Station lost"); }).join();

        PYXPopupNotification::connect_queueEmpty(&application, SLOT(quit()));
        QApplication::exec();
    }
    QTextStream(stdout) << "the last one has gone\n";
    PYXRuntime::uninitialize_PYXRuntime();
    return 0;
}
