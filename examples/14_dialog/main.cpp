// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// The settings dialog, with a page of the application's own and one of the library's.
#include <PYXBoundSettingsWidget.h>
#include <PYXRuntime.h>
#include <PYXSettings.h>
#include <PYXSettingsDialog.h>
#include <SHW_General_Messages.h>

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QSpinBox>
#include <QTextStream>
#include <QTimer>

using namespace PYXRuntime;

/** A page of plain fields: the binder fills, compares and stores them. */
class SHW_Plots_Waterfall : public PYXBoundSettingsWidget
{
    Q_OBJECT
public:
    SHW_Plots_Waterfall()
    {
        setObjectName("SHW_Plots_Waterfall"); // the dialog finds its help by this
        setHeading(tr("Plots"), tr("Waterfall"));
        auto *lines = new QSpinBox;
        auto *palette = new QComboBox;
        palette->addItem(tr("Grey"), "grey"); // what the user reads, and what is stored
        palette->addItem(tr("Heat"), "heat");
        auto *form = new QFormLayout(this);
        form->addRow(tr("&Lines per second:"), lines);
        form->addRow(tr("&Colours:"), palette);
        binder().bind(lines, "Plots/Waterfall/LinesPerSecond", 25);
        binder().bind(palette, "Plots/Waterfall/Colours", "heat");
    }
};

namespace {

/** Whoever uses the values of the page reads them again. */
void takeEffect(PYXSettingsHandlerWidget *page)
{
    QTextStream(stdout) << "applied " << page->objectName() << '\n';
}

/** Does what the user would do. */
void editAndAccept(PYXSettingsDialog *dialog)
{
    QTimer::singleShot(0, dialog, [dialog] {
        dialog->activePage()->findChild<QSpinBox *>()->setValue(40);
        QTextStream(stdout) << "dialog of " << dialog->grab().width() << " pixels\n";
        for (auto *box : dialog->findChildren<QDialogButtonBox *>())
            if (auto *ok = box->button(QDialogButtonBox::Ok))
                ok->click();
    });
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("14 Dialog");
    initialize_PYXRuntime();

    {
        PYXSettingsDialog dialog;
        auto *waterfall = new SHW_Plots_Waterfall;
        dialog.registerSettingsHandler(waterfall); // belongs to the dialog from now on
        dialog.registerSettingsHandler(new SHW_General_Messages);
        QObject::connect(&dialog, &PYXSettingsDialog::si_settingsPageApplied, takeEffect);
        if (QApplication::arguments().contains("--quit"))
            editAndAccept(&dialog);
        PYXSettings settings(PYXSettings::eUserApplicationSettings);
        PYXSettings defaults(PYXSettings::eDefaultApplicationSettings);
        dialog.exec(settings, defaults, waterfall);
    }
    const PYXSettings settings(PYXSettings::eUserApplicationSettings);
    const int lines = settings.intValue("Plots/Waterfall/LinesPerSecond");
    QTextStream(stdout) << "stored: " << lines << " lines per second, "
                        << settings.value("Plots/Waterfall/Colours", "heat").toString() << '\n';
    uninitialize_PYXRuntime();
    return 0;
}

#include "main.moc"
