// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// Expert and debug mode, switched by "++expert" and "++debug" or by keys; any part of the program may ask for
// them.
#include <AppInternals.h>
#include <PYXAppInternalsSimple.h>
#include <PYXRuntime.h>

#include <QApplication>
#include <QLabel>
#include <QTextStream>

using namespace PYXRuntime;

class Window : public QLabel
{
    Q_OBJECT
public:
    explicit Window(PYXAppInternalsSimple &internals)
    {
        internals.installShortcuts_AppModes(this); // Ctrl+Shift+A, Ctrl+Shift+M, Ctrl+Shift+E (or D)
        internals.connectSignal_appModesChanged(this, SLOT(sl_showModes()));
        sl_showModes();
    }

public Q_SLOTS:
    void sl_showModes()
    {
        // Asks the broker: this works in modules that know nothing of the application.
        const bool isExpert = appInternals::appIsInExpertMode();
        setText(isExpert ? "expert functions: shown" : "expert functions: hidden");
        QTextStream(stdout) << text() << '\n';
    }
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("12 Modes");
    initialize_PYXRuntime();

    int result = 0;
    {
        PYXAppInternalsSimple internals;            // has read the arguments
        internals.initialize_PYXAppInternalsImpl(); // now the broker knows it
        QTextStream(stdout) << "arguments without those of modes: "
                            << internals.cmdLineArgs_withoutStandard().mid(1).join(' ') << '\n';

        Window window(internals);
        window.show();
        if (internals.cmdLineArgs().contains("--quit"))
            internals.unsetAppModes(PYXIAppInternals::ekAppMode_Expert); // as the keys do
        else
            result = QApplication::exec();
    }
    uninitialize_PYXRuntime();
    return result;
}

#include "main.moc"
