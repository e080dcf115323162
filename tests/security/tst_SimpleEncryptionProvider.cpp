// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "RecordingTracer.h"
#include "SimpleContainer.h"
#include "SimpleEncryptionProvider.h"

#include <QtTest/QtTest>

using namespace PYXRuntime;

namespace {

const QString Text = QString::fromUtf8("Hörfunk 98,5 MHz");
const char *const Md5Container = "U01QTAEAAAAReXcAAAAQJEqDEUCbE8bQMSAf6XIW/MBvAAAAEWyJNWMm7n2t8AgYM9xSW7Re";

/** A sound container with the bytes of its record changed. */
template <typename Change>
QByteArray changed(Change change)
{
    QByteArray record = QByteArray::fromBase64(Md5Container);
    change(record);
    return record.toBase64();
}

} // namespace

class tst_SimpleEncryptionProvider : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { SimpleEncryptionProvider::staticSetDefaultAlgorithm(1); }
    void writesGoldenContainers_data();
    void writesGoldenContainers();
    void coversEveryLength();
    void fallsBackOnTheDefaultAlgorithm();
    void refusesDamage_data();
    void refusesDamage();
    void bearsEveryTruncation();
    void leavesTheCallersDataAlone();
    void sumsAsQtDoes();
};

// Made by golden_containers.py, which shares no code with the library.
void tst_SimpleEncryptionProvider::writesGoldenContainers_data()
{
    QTest::addColumn<int>("algorithm");
    QTest::addColumn<QByteArray>("container");
    const auto row = [](const char *name, int algorithm, const char *container) {
        QTest::newRow(name) << algorithm << QByteArray(container);
    };
    row("MD4", 0, "U01QTAAAAAARrO4AAAAQcpG8C0DHbsONTTehFi+5HP5BAAAAETpSCnkmsgCorXQPjSMP9FQI");
    row("MD5", 1, Md5Container);
    row("SHA-1", 2, "U01QTAIAAAAR6c4AAAAUiMQ38CAx66NS2lfQOHzhbQXL+TVKKgAAABTAB4GCRkSFyHLjb/wNXKwlf4M6gw==");
    row("SHA-224", 3,
        "U01QTAMAAAAR5dkAAAAcK9bVt8fK8dcmcNJugfmS2z0HCvzy6jaH8gNW1U58AAAAHGMVY8Whv5+8BknqQrTZ35NHT8lK"
        "gIxD6Zkjb+0=");
    row("SHA-256", 4,
        "U01QTAQAAAARhpoAAAAgyV99oB/5DLtkdNaY4rBa8Smb+ZpJckJ7DaP2gLT950ZxJwAAACCBnMvSeYxi0ERN7rTXkBe5"
        "U9M6LDsUNxVmg8+4mMjHCw==");
    row("SHA-384", 5,
        "U01QTAUAAAARYNAAAAAwOqvnz02fckoiJ/DJP8m0cBBL/Y7l5nTguUXf99rrZvS7mV3Xp/ck5maWPJ8n3z/bq5MAAAAw"
        "cmhRvSvqHCECHsjlCun5OGoDPjiXgAGO0mXmz/beRrnz4xUUEYVCkwj9HKYf8wr7");
    row("SHA-512", 6,
        "U01QTAYAAAAR6TAAAABA4Y9k/WS/lx+QQfebMwTgqo1WjGA6td3LbV5xOXRpc4UJgsUSrkRHcvoBYISH7Qld5A7gPoqB"
        "kxSOzbyQXs1c0aimAAAAQKlM0o8Cyvl0sHjPtwYkreL3Hk/WSNOopQZ+SAFYXFPIQfiN0Rg2IQeUakC9v8E8falGmnZJ"
        "N+Fy+6PXsGf1cOQ=");
    row("Keccak-224", 7,
        "U01QTAcAAAAR5DcAAAAcX4trxhfqCR0Sswp9Ctzz/EbY6f6mOfRKMcFR2k+SAAAAHBdI3bRxn2d2MooyUT/8vrQ8kCpI"
        "1F+BJFrhaOI=");
    row("Keccak-256", 8,
        "U01QTAgAAAARQasAAAAg5kh4KstHtgbeJR0FALKR2GDzn8gthwezsPb2u0FvtIy2FgAAACCui85YrTLYbf4cJSk1ktyQ"
        "Grtcfl/hct3b1s+DbVqUwQ==");
    row("Keccak-384", 9,
        "U01QTAkAAAARdv0AAAAwNJSCKvexmDtXgD0wf4G+oXRTMF/6C9tp2c/7cgxMPvceTgQMcEI+FC5kUzlWU3uSvb4AAAAw"
        "fFc0WJHE9lB3uQUcSqHz6Q4b8+mIba4Hsu/CSiB5HrpWNEzPxjBYYUAPcwBuf06y");
    row("Keccak-512", 10,
        "U01QTAoAAAARsooAAABAMkX7ONEYSxywSGXLzWBMEFLqK4LgsZkkcsmql+1Is1LrSbOAxzFuqaLfTf4xuXK6rkfvjV+f"
        "0lww2wElyT+OCPMcAAAAQHqGTUq3bSV3kHFd5/hAAVgooug0ktfsShnpk6/BfZMfozP7Q3FDCNzMtG3HCZVHmuMPlcWc"
        "KaA6RbVqBfAHoj0=");
}

void tst_SimpleEncryptionProvider::writesGoldenContainers()
{
    QFETCH(int, algorithm);
    QFETCH(QByteArray, container);
    QCOMPARE(SimpleEncryptionProvider::staticEncrypt(Text.toUtf8(), algorithm), container);
    QCOMPARE(SimpleEncryptionProvider::staticDecryptToQString(container), Text);
    SimpleEncryptionProvider::staticSetDefaultAlgorithm(algorithm);
    QCOMPARE(SimpleEncryptionProvider().encrypt(Text), container);
}

void tst_SimpleEncryptionProvider::coversEveryLength()
{
    const QByteArray oneByte = "U01QTAEAAAABqw8AAAAQndTkYSaMgDT1yFZOFVxnpnMGAAAAEOWsnBle9PhMjbAuNm0kH94=";
    QCOMPARE(SimpleEncryptionProvider::staticEncrypt(QByteArray("x")), oneByte);
    SimpleEncryptionProvider provider;
    QCOMPARE(provider.encrypt(QByteArray()), QByteArray());
    QByteArray plain;
    for (int length = 1; length < 140; ++length) {
        plain += char(length * 37); // zeros among them
        QCOMPARE(provider.decrypt(provider.encrypt(plain)), plain);
    }
    const QString zeros = QString::fromLatin1("zero\0within", 11);
    QCOMPARE(provider.decryptToQString(provider.encrypt(zeros)), zeros);
}

void tst_SimpleEncryptionProvider::fallsBackOnTheDefaultAlgorithm()
{
    for (const int unknown : {42, -1, 11})
        QCOMPARE(SimpleEncryptionProvider::staticEncrypt(Text.toUtf8(), unknown), QByteArray(Md5Container));
    // A default that is no algorithm is kept, marked by its last byte, and means MD5.
    SimpleEncryptionProvider::staticSetDefaultAlgorithm(300);
    QCOMPARE(SimpleEncryptionProvider::staticDefaultAlgorithm(), 300);
    QCOMPARE(SimpleEncryptionProvider::staticEncrypt(Text),
             changed([](QByteArray &record) { record[4] = 300 - 256; }));
}

void tst_SimpleEncryptionProvider::refusesDamage_data()
{
    QTest::addColumn<QByteArray>("container");
    QTest::addColumn<QString>("reason"); // null: no trace
    QTest::addColumn<QString>("result");
    const auto row = [](const char *name, const QByteArray &container, const char *reason,
                        const QString &result = QString()) {
        QTest::newRow(name) << container << QString(reason) << result;
    };
    const auto xored = [](int position, int mask) {
        return changed([=](QByteArray &record) { record[position] = char(record[position] ^ mask); });
    };
    const auto hashless = [](QByteArray &record) { record.replace(11, 20, QByteArray(4, '\0')); };
    const auto dataless = [](QByteArray &record) { record.replace(33, 21, QByteArray(4, '\xFF')); };
    row("nothing", "", nullptr);
    row("no Base64", "????", "fromBase64 was empty");
    row("magic", xored(0, 1), "magic number is wrong");
    row("no hash", changed(hashless), "unpacked hash was empty");
    row("no data", changed(dataless), "unpacked encrypted data was empty");
    row("hash of 4 GB", xored(11, 0xFF), "unpacked hash was empty");
    row("bit of the hash", xored(20, 4), "checksums for unpacked hash do not match");
    row("bit of its checksum", xored(9, 1), "checksums for unpacked hash do not match");
    row("bit of the data", xored(40, 128), "checksums for unpacked encrypted data do not match");
    row("bit of the marker", xored(4, 8), nullptr, Text);
    row("negative length", xored(5, 128), nullptr);
    row("length beyond the data", xored(7, 1), nullptr, Text);
    row("shorter length", xored(8, 1), nullptr, Text.chopped(1));
    row("more behind", changed([](QByteArray &record) { record += "more"; }), nullptr, Text);
}

void tst_SimpleEncryptionProvider::refusesDamage()
{
    QFETCH(QByteArray, container);
    QFETCH(QString, reason);
    QFETCH(QString, result);
    QString decrypted;
    const QStringList traces =
        tracesOf([&] { decrypted = SimpleEncryptionProvider::staticDecryptToQString(container); });
    QCOMPARE(decrypted, result);
    QCOMPARE(traces.size(), reason.isNull() ? 0 : 1);
    if (!reason.isNull())
        QCOMPARE(traces.first().section('|', 0, 2), "Debug|SimpleEncryptionProvider:staticDecrypt: " +
                                                        reason + "|source\\SimpleEncryptionProvider");
}

void tst_SimpleEncryptionProvider::bearsEveryTruncation()
{
    const QByteArray record = QByteArray::fromBase64(Md5Container);
    const QStringList traces = tracesOf([&record] {
        for (int length = 1; length < record.size(); ++length)
            QCOMPARE(SimpleEncryptionProvider::staticDecrypt(record.left(length).toBase64()), QByteArray());
    });
    QCOMPARE(traces.size(), record.size() - 1);
}

void tst_SimpleEncryptionProvider::leavesTheCallersDataAlone()
{
    const QByteArray plain(1000, 'p');
    const QByteArray container = SimpleEncryptionProvider::staticEncrypt(plain);
    const QByteArray before(container.constData(), container.size());
    const QByteArray decrypted = SimpleEncryptionProvider::staticDecrypt(container);
    QCOMPARE(decrypted, QByteArray(1000, 'p'));
    QCOMPARE(plain, decrypted);
    QCOMPARE(container, before);
}

void tst_SimpleEncryptionProvider::sumsAsQtDoes()
{
    QByteArray bytes;
    for (int length = 0; length < 300; ++length) {
        QCOMPARE(SimpleContainer::checksum(bytes), qChecksum(bytes.constData(), uint(bytes.size())));
        bytes += char(length * length * 7);
    }
}

QTEST_APPLESS_MAIN(tst_SimpleEncryptionProvider)
#include "tst_SimpleEncryptionProvider.moc"
