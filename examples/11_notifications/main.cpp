// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// A question that its user need not answer twice.
#include <PYXNotification.h>
#include <PYXRuntime.h>

#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QTextStream>
#include <QTimer>

using PYXRuntime::PYXNotification;

namespace {

bool mayStop(QWidget *parent)
{
    const auto answer =
        PYXNotification::question(parent, "Recorder", "The station can still be heard. Stop all the same?",
                                  "Recorder", "StopWhileReceiving", // which message this is
                                  QDialogButtonBox::Yes | QDialogButtonBox::No, QDialogButtonBox::No);
    return answer == QDialogButtonBox::Yes; // not "!= No": Escape gives NoButton
}

bool willAsk()
{
    return PYXNotification::willShowMessage("Recorder", "StopWhileReceiving");
}

/** Does what the user would do: "Yes", and never again. */
void answer()
{
    QTimer::singleShot(0, [] {
        auto *dialog = QApplication::activeModalWidget();
        dialog->findChild<QCheckBox *>()->setChecked(false);
        dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Yes)->click();
    });
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("11 Notifications");
    PYXRuntime::initialize_PYXRuntime();
    // An answer that makes no sense for ever is taken back at the start.
    PYXNotification::fixHiddenForAbsurdReturnButton("Recorder", "StopWhileReceiving", QDialogButtonBox::No);

    QTextStream out(stdout);
    if (QApplication::arguments().contains("--quit"))
        answer();
    out << "stopped: " << (mayStop(nullptr) ? "yes" : "no") << '\n' << Qt::flush;
    out << "asked again: " << (willAsk() ? "yes" : "no") << '\n' << Qt::flush;
    out << "stopped: " << (mayStop(nullptr) ? "yes" : "no") << '\n';

    PYXRuntime::uninitialize_PYXRuntime();
    return 0;
}
