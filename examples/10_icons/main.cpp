// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// A tool bar with an icon that all applications share, one of the application's own, and one made of two.
#include <PYXRuntime.h>
#include <PYXStandardIcons.h>

#include <QApplication>
#include <QTextStream>
#include <QToolBar>

using PYXRuntime::PYXStandardIcons;
using PYXRuntime::QIconHelpers;

namespace {

constexpr uint TunerIcon = PYXStandardIcons::FirstFreeId; // the application's own ids begin here

void fill(QToolBar &bar)
{
    bar.addAction(PYXStandardIcons::staticRegisteredIcon(PYXStandardIcons::ekIcon_Save), "Save");

    // All files ":/tuner/tuner_<mode>_<state>.*"; from the one that is here, the others are derived.
    PYXStandardIcons::staticRegisterIcon(TunerIcon, ":/tuner/tuner");
    bar.addAction(PYXStandardIcons::staticRegisteredIcon(TunerIcon), "Tuner");

    // The plus sign in whichever corner of the document is emptiest, half its size.
    bar.addAction(PYXStandardIcons::staticRegisteredIconAutoOverlaid(PYXStandardIcons::ekIcon_Document,
                                                                     PYXStandardIcons::ekIcon_Add, 0.5,
                                                                     QIconHelpers::ekOverlayRegion_Corners),
                  "New document");

    // An id that nobody has registered: an empty icon here, and a sign that says so without "Raw".
    bar.addAction(PYXStandardIcons::staticRawRegisteredIcon(TunerIcon + 1), "Nonsense");
}

} // namespace

int main(int argc, char **argv)
{
    // Before the application object, for icons that are sharp on every screen.
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("10 Icons");
    PYXRuntime::initialize_PYXRuntime();

    int result = 0;
    {
        QToolBar bar;
        fill(bar);
        bar.show();
        for (const QAction *action : bar.actions())
            QTextStream(stdout) << action->text() << ": "
                                << (action->icon().pixmap(24).isNull() ? "missing\n" : "found\n");
        if (!QApplication::arguments().contains("--quit"))
            result = QApplication::exec();
    }
    PYXRuntime::uninitialize_PYXRuntime();
    return result;
}
