// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// Enumerations and flags by name, for settings, traces and scripts; of the library and of the application.
#include <Enums.h>
#include <Flags.h>
#include <PYXRuntime.h>

#include <QApplication>
#include <QTextStream>

using namespace PYXRuntime;

class Receiver
{
    Q_GADGET
public:
    enum eBand { ekBand_Hf, ekBand_Vhf, ekBand_Uhf };
    Q_ENUM(eBand)

    enum ePart { ekPart_Audio = 0x1, ekPart_Video = 0x2, ekPart_Text = 0x4 };
    Q_DECLARE_FLAGS(eParts, ePart)
    Q_FLAG(eParts)
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("15 Helpers");
    initialize_PYXRuntime(); // makes the tables, with all types of the library
    Enums::registerEnumeration<Receiver::eBand>();
    Flags::registerFlags<Receiver::eParts>();
    QTextStream out(stdout);

    // Names outlive a change of the numbers.
    const QString stored = Enums::nameOf("Receiver::eBand", Receiver::ekBand_Vhf);
    bool isKnown = false;
    const qint64 band = Enums::valueOf("Receiver::eBand", stored, &isKnown);
    out << "stored: " << stored << ", read: " << band << '\n';

    const QString parts = Flags::namesOf("Receiver::eParts", Receiver::ekPart_Audio | Receiver::ekPart_Video);
    out << "flags: " << parts << '\n';

    // A list to choose from, of a type that the program does not know by itself.
    for (const auto &[name, value] : Enums::keys("PYXRuntime::Enums::eProxyVariant"))
        out << value << ' ' << name << '\n';

    uninitialize_PYXRuntime();
    return isKnown && band == Receiver::ekBand_Vhf ? 0 : 1;
}

#include "main.moc"
