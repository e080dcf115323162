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
    void obfuscates();
};

void tst_SecretHelpers::wipesWhoeverShares()
{
    for (const int size : {20, 0}) {
        QByteArray bytes = Secret.toUtf8();
        bytes.reserve(bytes.size());
        bytes.resize(size); // what was behind lies in the buffer still
        const QByteArray shared = bytes;
        const char *const data = shared.constData();
        PYXByteArrayHelpers::safeOverwriteAndClear(bytes);
        QVERIFY(bytes.isNull() && shared.constData() == data && shared.size() == size);
        QVERIFY(size == 0 || !Secret.toUtf8().startsWith(shared.left(8)));
        QCOMPARE(QByteArray(data + size, Secret.size() - size), QByteArray(Secret.size() - size, '\0'));
    }
    QString text = PYXStringHelpers::trueCopy(Secret);
    const QString shared = text;
    PYXStringHelpers::safeOverwriteAndClear(text);
    QVERIFY(text.isNull());
    int kept = 0;
    for (int index = 0; index < Secret.size(); ++index)
        kept += shared[index] == Secret[index] ? 1 : 0;
    QVERIFY2(kept < 3, qPrintable(QString::number(kept)));
}

void tst_SecretHelpers::leavesForeignBuffers()
{
    // Literals lie in memory that cannot be written.
    QByteArray literal = QByteArrayLiteral("literal");
    QString text = Secret;
    QString view = QString::fromRawData(Secret.constData(), Secret.size());
    PYXByteArrayHelpers::safeOverwriteAndClear(literal);
    for (QString *const wiped : {&text, &view, &text})
        PYXStringHelpers::safeOverwriteAndClear(*wiped);
    QVERIFY(literal.isNull() && text.isNull() && view.isNull());
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

void tst_SecretHelpers::obfuscates()
{
    // python3: base64(pack(">I", length) + zlib.compress(text))
    const std::pair<QString, QString> forms[] = {
        {"", "AAAAAA=="},
        {QString::fromUtf8("Grün & blau"), "AAAADHiccy86vCdPQU0hKSexFAAgVwSx"},
        {QString::fromLatin1("a\0b", 3), "AAAAA3icS2RIAgABiADE"}};
    for (const auto &[text, obfuscated] : forms) {
        QCOMPARE(PYXStringHelpers::obfuscateString(text), obfuscated);
        QCOMPARE(PYXStringHelpers::unobfuscateString(obfuscated), text);
    }
    // What it did not write: neither a crash nor gigabytes for the length that the first letters spell.
    for (const char *const foreign : {"", "secret", "fffffff password", "f/////////////8="})
        QCOMPARE(PYXStringHelpers::unobfuscateString(foreign), QString());
}

QTEST_APPLESS_MAIN(tst_SecretHelpers)
#include "tst_SecretHelpers.moc"
