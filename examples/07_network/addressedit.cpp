// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// A field for an address, which takes it as it is typed or pasted.
#include <PYXIPEdit.h>
#include <PYXRuntime.h>

#include <QApplication>
#include <QFormLayout>
#include <QTextStream>

using PYXRuntime::PYXIPEdit;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("07 Address Edit");
    PYXRuntime::initialize_PYXRuntime();
    QTextStream out(stdout);

    QWidget window;
    auto *form = new QFormLayout(&window);
    auto *edit = new PYXIPEdit; // or PYXIPv4Edit, PYXIPv6Edit
    edit->setProtocol(QAbstractSocket::AnyIPProtocol);
    form->addRow("&Station:", edit); // the label names the edit to a screen reader, too
    QObject::connect(edit, &PYXIPEdit::si_addressChanged, [&](const QHostAddress &address) {
        if (address.isNull()) // it cannot be used yet; the edit shows why
            out << edit->text() << " is incomplete\n";
        else
            out << "address " << address.toString() << '\n';
    });
    window.show();

    int result = 0;
    if (QApplication::arguments().contains("--quit")) {
        edit->setText("10.0.0.5");
        edit->setText("10.0.0");
        edit->setText("10.0.0.5");
        edit->setAddress(QHostAddress("fe80::1"));
        result = edit->address() == QHostAddress("fe80::1") ? 0 : 1;
    } else {
        result = QApplication::exec();
    }
    PYXRuntime::uninitialize_PYXRuntime();
    return result;
}
