// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// The language changes while the program runs. CMakeLists.txt makes the translation file.
#include <PYXBroker.h>
#include <PYXITransConnector.h>
#include <PYXRuntime.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTextStream>
#include <QTimer>
#include <QVBoxLayout>

using PYXRuntime::PYXBroker;
using PYXRuntime::PYXITransConnector;

class ReceiverWindow : public QWidget
{
    Q_OBJECT
public:
    ReceiverWindow()
    {
        auto *translations = PYXBroker::getInstance()->topObject<PYXITransConnector>();
        connect(translations, &PYXITransConnector::si_localeChanged, this, &ReceiverWindow::sl_retranslate);

        auto *layout = new QVBoxLayout(this);
        layout->addWidget(m_gain);
        for (const auto &locale : translations->getSupportedLocales()) { // those whose files are all there
            auto *button = new QPushButton(locale.displayName);
            layout->addWidget(button);
            connect(button, &QPushButton::clicked, translations,
                    [=] { translations->changeLocale(locale.localeName); });
        }
        sl_retranslate();
    }

public Q_SLOTS:
    void sl_retranslate()
    {
        m_gain->setText(tr("Gain: %1 dB").arg(12.5)); // every text that was set once is set again
        QTextStream(stdout) << m_gain->text() << '\n';
    }

private:
    QLabel *m_gain = new QLabel;
};

/** With "--quit" it does what the user would do. */
static void rehearse()
{
    if (!QApplication::arguments().contains("--quit"))
        return;
    QTimer::singleShot(0, [] {
        auto *translations = PYXBroker::getInstance()->topObject<PYXITransConnector>();
        const bool ok = translations->changeLocale("de") && translations->changeLocale("en");
        QApplication::exit(ok ? 0 : 1);
    });
}
Q_COREAPP_STARTUP_FUNCTION(rehearse)

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("05 Language"); // before anything that is called after it
    PYXRuntime::initialize_PYXRuntime();
    int result = 0;
    {
        ReceiverWindow window; // everything that uses the library, in a scope of its own
        window.show();
        result = QApplication::exec();
    }
    PYXRuntime::uninitialize_PYXRuntime();
    return result; // the application object goes last
}

#include "language.moc"
