// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Enums.h"
#include "Flags.h"
#include "PYXIFileList.h"
#include "PYXRuntime.h"

#include <QtCore/QDirIterator>
#include <QtTest/QtTest>

using namespace PYXRuntime;

class tst_EnumTables : public QObject
{
    Q_OBJECT
private slots:
    void init() { initialize_PYXRuntime(ekInitialize_NoFonts); }
    void cleanup() { uninitialize_PYXRuntime(); }
    void knowEveryPublicEnumeration();
    void namesAndBack();
    void flags_data();
    void flags();
    void endWithTheLibrary();
};

void tst_EnumTables::knowEveryPublicEnumeration()
{
    QSet<QString> known;
    const QStringList types = Enums::enumerations() + Flags::flagTypes();
    for (const QString &type : types)
        known += type.section("::", -1);
    const QRegularExpression declaration(R"(^\s*enum (?:class )?(e\w+)\s*(?::[^{]*)?\{)",
                                         QRegularExpression::MultilineOption);
    const QRegularExpression privatePart(R"(\n\s*private:.*?(?=\n\s*public:|\n\};))",
                                         QRegularExpression::DotMatchesEverythingOption);
    QStringList unknown;
    int declared = 0;
    QDirIterator headers(PYX_PUBLIC_HEADERS, {"*.h"}, QDir::Files, QDirIterator::Subdirectories);
    while (headers.hasNext()) {
        QFile header(headers.next());
        QVERIFY(header.open(QIODevice::ReadOnly));
        auto match = declaration.globalMatch(QString::fromUtf8(header.readAll()).remove(privatePart));
        for (; match.hasNext(); ++declared) {
            const QString name = match.next().captured(1);
            if (!known.contains(name) && !known.contains(name + 's')) // a set of flags has a plural
                unknown += name + " in " + headers.fileName();
        }
    }
    QCOMPARE(unknown.join(", "), QString());
    QVERIFY(declared >= 10);
}

void tst_EnumTables::namesAndBack()
{
    const QStringList types = Enums::enumerations();
    for (const QString &type : types) {
        const Enums::Keys keys = Enums::keys(type);
        QVERIFY2(!keys.isEmpty(), qPrintable(type));
        for (const auto &[name, value] : keys) {
            bool bOk = false;
            QCOMPARE(Enums::valueOf(type, name, &bOk), value);
            QVERIFY(bOk);
            // The first of several names for one value is the one it is called by.
            QCOMPARE(Enums::valueOf(type, Enums::nameOf(type, value)), value);
        }
    }
    const QString fileType = "PYXRuntime::PYXIFileList::eFileType";
    QCOMPARE(Enums::nameOf(fileType, PYXIFileList::ekFT_AUDIO), QString("ekFT_AUDIO"));
    QCOMPARE(Enums::nameOf("PYXRuntime::Enums::eProxyType", 0), QString("ekProxy_NoProxy"));
    QCOMPARE(Enums::nameOf("PYXRuntime::PYXIApplicationInfo::eSpecialDir", 7),
             QString("eApplicationLogsDir"));
    bool bOk = true;
    QCOMPARE(Enums::nameOf(fileType, 4711) + Enums::nameOf("eNothing", 0), QString());
    QCOMPARE(Enums::valueOf(fileType, "ekft_audio", &bOk), 0);
    QVERIFY(!bOk);
    Enums::registerEnumeration("Viewer::eBand", {{"ekBand_Own", -1}, {"ekBand_Huge", Q_INT64_C(1) << 40}});
    QCOMPARE(Enums::valueOf("Viewer::eBand", "ekBand_Huge"), Q_INT64_C(1) << 40);
}

void tst_EnumTables::flags_data()
{
    QTest::addColumn<quint64>("value");
    QTest::addColumn<QString>("names");
    QTest::newRow("zero with a name") << Q_UINT64_C(0) << "ekInitialize_Default";
    QTest::newRow("one") << Q_UINT64_C(4) << "ekInitialize_CondensedFont";
    QTest::newRow("two") << Q_UINT64_C(9) << "ekInitialize_NoFonts|ekInitialize_KeepApplicationFont";
    QTest::newRow("bits without name")
        << Q_UINT64_C(0x8000000000000012) << "ekInitialize_NoFontSubstitution|0x8000000000000010";
}

void tst_EnumTables::flags()
{
    QFETCH(quint64, value);
    QFETCH(QString, names);
    const QString type = "PYXRuntime::ePYXInitializeFlags";
    QCOMPARE(Flags::namesOf(type, value), names);
    bool bOk = false;
    QCOMPARE(Flags::valueOf(type, names, &bOk), value);
    QVERIFY(bOk);
    for (const QString &wrong : {names + "|ekNothing", names + "|0xg", QString()}) {
        QCOMPARE(Flags::valueOf(type, wrong, &bOk), Q_UINT64_C(0));
        QVERIFY(!bOk);
    }
    Flags::registerFlags("Viewer::eMarks", {{"A", 1}, {"AB", 3}, {"B", 2}});
    QCOMPARE(Flags::namesOf("Viewer::eMarks", 3), QString("A|AB"));
    QCOMPARE(Flags::namesOf("Viewer::eMarks", 0), QString("0"));
    QCOMPARE(Flags::valueOf("Viewer::eMarks", "0", &bOk), Q_UINT64_C(0));
    QVERIFY(bOk);
}

void tst_EnumTables::endWithTheLibrary()
{
    QVERIFY(Enums::hasInstance() && Flags::hasInstance());
    Enums::registerEnumeration("Viewer::eGone", {{"ekGone", 1}});
    uninitialize_PYXRuntime();
    QVERIFY(!Enums::hasInstance() && !Flags::hasInstance());
    initialize_PYXRuntime(ekInitialize_NoFonts);
    QVERIFY(!Enums::enumerations().contains("Viewer::eGone"));
}

QTEST_MAIN(tst_EnumTables)
#include "tst_EnumTables.moc"
