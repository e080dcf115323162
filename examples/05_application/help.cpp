// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// F1 opens the help at the page of the widget that has the focus.
#include <PYXBroker.h>
#include <PYXHelpConnectorImpl.h>
#include <PYXRuntime.h>

#include <QApplication>
#include <QDesktopServices>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTextStream>

using namespace PYXRuntime;

namespace {

/** An application with a help window of its own takes the pages that the system's browser would get. */
class HelpWindow : public QObject
{
    Q_OBJECT
public:
    HelpWindow() { QDesktopServices::setUrlHandler("file", this, "sl_show"); }

public Q_SLOTS:
    void sl_show(const QUrl &a_page)
    {
        QTextStream(stdout) << "page: " << a_page.fileName() << (a_page.hasFragment() ? "#" : "")
                            << a_page.fragment() << '\n';
    }
};

/** Does what the user would do. */
void pressF1(QWidget *widget)
{
    widget->window()->activateWindow();
    widget->setFocus();
    QApplication::processEvents();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    QApplication::sendEvent(widget, &press);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("05 Help");
    initialize_PYXRuntime();

    // Before the windows. CMakeLists.txt puts the files beside the program.
    PYXHelpConnectorImpl::getInstance()->setHelpEntryFile(QApplication::applicationDirPath() +
                                                          "/help/help.xml");
    const HelpWindow help;

    QWidget window;
    auto *gain = new QLineEdit;
    gain->setProperty(PYXHelpConnectorImpl::ContextProperty, "ReceiverWindow::Gain");
    auto *name = new QLineEdit; // has no page: its parents' count, and in the end the start page
    auto *button = new QPushButton("Help");
    button->setObjectName("ReceiverWindow");
    auto *helpConnector = PYXBroker::getInstance()->topObject<PYXIHelpConnector>();
    QObject::connect(button, &QPushButton::clicked, helpConnector, &PYXIHelpConnector::sl_onHelpRequested);
    auto *form = new QFormLayout(&window);
    form->addRow("&Gain:", gain);
    form->addRow("&Name:", name);
    form->addRow(button);
    window.show();

    if (QApplication::arguments().contains("--quit")) {
        pressF1(gain);
        pressF1(name);
        button->click();
        window.close();
    } else {
        QApplication::exec();
    }
    uninitialize_PYXRuntime();
    return 0;
}

#include "help.moc"
