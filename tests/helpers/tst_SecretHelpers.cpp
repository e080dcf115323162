// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXByteArrayHelpers.h"
#include "PYXStringHelpers.h"

#include <QtTest/QtTest>

using namespace PYXRuntime;

namespace {

const QString Secret = QStringLiteral("long enough that chance does not write it again");

} // namespace

class tst_SecretHelpers : public QObject
{
    Q_OBJECT
private slots:
    void wipesWhoeverShares();
    void leavesForeignBuffers();
    void trueCopiesShareNothing();
    void obfuscates_data();
    void obfuscates();
};

void tst_SecretHelpers::wipesWhoeverShares()
{
    QByteArray bytes = Secret.toUtf8();
    bytes.truncate(20); // what was behind lies in the buffer still
    const QByteArray sharedBytes = bytes;
    const char *const data = sharedBytes.constData();
    PYXByteArrayHelpers::safeOverwriteAndClear(bytes);
    QVERIFY(bytes.isNull());
    QCOMPARE(sharedBytes.constData(), data);
    QCOMPARE(sharedBytes.size(), 20);
    QVERIFY(!Secret.toUtf8().startsWith(sharedBytes.left(8)));
    QCOMPARE(QByteArray(data + 20, Secret.size() - 20), QByteArray(Secret.size() - 20, '\0'));

    QString text = PYXStringHelpers::trueCopy(Secret);
    const QString sharedText = text;
    PYXStringHelpers::safeOverwriteAndClear(text);
    QVERIFY(text.isNull());
    QCOMPARE(sharedText.size(), Secret.size());
    int kept = 0;
    for (int index = 0; index < Secret.size(); ++index)
        kept += sharedText[index] == Secret[index] ? 1 : 0;
    QVERIFY2(kept < 3, qPrintable(QString::number(kept)));
}

void tst_SecretHelpers::leavesForeignBuffers()
{
    const QByteArray constant("held by somebody else");
    QByteArray viewed = QByteArray::fromRawData(constant.constData(), constant.size());
    PYXByteArrayHelpers::safeOverwriteAndClear(viewed);
    QVERIFY(viewed.isNull());
    QCOMPARE(constant, QByteArray("held by somebody else"));

    // A literal lies in memory that cannot be written.
    QByteArray literal = QByteArrayLiteral("literal");
    PYXByteArrayHelpers::safeOverwriteAndClear(literal);
    QString text = Secret;
    PYXStringHelpers::safeOverwriteAndClear(text);
    QVERIFY(Secret.startsWith("long enough"));
    QString view = QString::fromRawData(Secret.constData(), Secret.size());
    PYXStringHelpers::safeOverwriteAndClear(view);
    QVERIFY(literal.isNull() && text.isNull() && view.isNull());
    PYXStringHelpers::safeOverwriteAndClear(text);
    QVERIFY(Secret.startsWith("long enough"));
}

void tst_SecretHelpers::trueCopiesShareNothing()
{
    for (const QString &text : {QString(), QString(""), Secret, QString::fromLatin1("with\0zero", 9)}) {
        QString copy = PYXStringHelpers::trueCopy(text);
        QCOMPARE(copy, text);
        QCOMPARE(copy.isNull(), text.isNull());
        QVERIFY(copy.isEmpty() || copy.constData() != text.constData());
        QByteArray bytes = text.isNull() ? QByteArray() : text.toLatin1();
        const QByteArray copiedBytes = PYXByteArrayHelpers::trueCopy(bytes);
        QCOMPARE(copiedBytes.isNull(), bytes.isNull());
        PYXByteArrayHelpers::safeOverwriteAndClear(bytes);
        QCOMPARE(copiedBytes, text.toLatin1());
    }
}

void tst_SecretHelpers::obfuscates_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("obfuscated"); // python3: base64(pack(">I", length) + zlib.compress(text))
    QTest::newRow("nothing") << ""
                             << "AAAAAA==";
    QTest::newRow("text") << QString::fromUtf8("Grün & blau") << "AAAADHiccy86vCdPQU0hKSexFAAgVwSx";
    QTest::newRow("zero within") << QString::fromLatin1("a\0b", 3) << "AAAAA3icS2RIAgABiADE";
}

void tst_SecretHelpers::obfuscates()
{
    QFETCH(QString, text);
    QFETCH(QString, obfuscated);
    QCOMPARE(PYXStringHelpers::obfuscateString(text), obfuscated);
    QCOMPARE(PYXStringHelpers::unobfuscateString(obfuscated), text);
    // What it did not write: neither a crash nor gigabytes for the length that the first letters spell.
    for (const char *const foreign : {"", "secret", "fffffff password", "f/////////////8="}) {
        QCOMPARE(PYXStringHelpers::unobfuscateString(foreign), QString());
    }
}

QTEST_APPLESS_MAIN(tst_SecretHelpers)
#include "tst_SecretHelpers.moc"
