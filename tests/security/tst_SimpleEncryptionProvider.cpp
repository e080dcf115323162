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
const QByteArray OneByteContainer =
    "U01QTAEAAAABqw8AAAAQndTkYSaMgDT1yFZOFVxnpnMGAAAAEOWsnBle9PhMjbAuNm0kH94=";
/** Of the text, by algorithm. Made by golden_containers.py, which shares no code with the library. */
// Long literals go over several lines. NOLINTBEGIN(bugprone-suspicious-missing-comma)
const QByteArray Containers[] = {
    "U01QTAAAAAARrO4AAAAQcpG8C0DHbsONTTehFi+5HP5BAAAAETpSCnkmsgCorXQPjSMP9FQI",
    Md5Container,
    "U01QTAIAAAAR6c4AAAAUiMQ38CAx66NS2lfQOHzhbQXL+TVKKgAAABTAB4GCRkSFyHLjb/wNXKwlf4M6gw==",
    "U01QTAMAAAAR5dkAAAAcK9bVt8fK8dcmcNJugfmS2z0HCvzy6jaH8gNW1U58AAAAHGMVY8Whv5+8BknqQrTZ35NHT8lKgIxD6Zkjb+"
    "0=",
    "U01QTAQAAAARhpoAAAAgyV99oB/"
    "5DLtkdNaY4rBa8Smb+ZpJckJ7DaP2gLT950ZxJwAAACCBnMvSeYxi0ERN7rTXkBe5U9M6LDsUNxVmg8+4mMjHCw==",
    "U01QTAUAAAARYNAAAAAwOqvnz02fckoiJ/DJP8m0cBBL/Y7l5nTguUXf99rrZvS7mV3Xp/ck5maWPJ8n3z/"
    "bq5MAAAAwcmhRvSvqHCECHsjlCun5OGoDPjiXgAGO0mXmz/beRrnz4xUUEYVCkwj9HKYf8wr7",
    "U01QTAYAAAAR6TAAAABA4Y9k/WS/"
    "lx+"
    "QQfebMwTgqo1WjGA6td3LbV5xOXRpc4UJgsUSrkRHcvoBYISH7Qld5A7gPoqBkxSOzbyQXs1c0aimAAAAQKlM0o8Cyvl0sHjPtwYkreL"
    "3Hk/WSNOopQZ+SAFYXFPIQfiN0Rg2IQeUakC9v8E8falGmnZJN+Fy+6PXsGf1cOQ=",
    "U01QTAcAAAAR5DcAAAAcX4trxhfqCR0Sswp9Ctzz/EbY6f6mOfRKMcFR2k+SAAAAHBdI3bRxn2d2MooyUT/"
    "8vrQ8kCpI1F+BJFrhaOI=",
    "U01QTAgAAAARQasAAAAg5kh4KstHtgbeJR0FALKR2GDzn8gthwezsPb2u0FvtIy2FgAAACCui85YrTLYbf4cJSk1ktyQGrtcfl/"
    "hct3b1s+DbVqUwQ==",
    "U01QTAkAAAARdv0AAAAwNJSCKvexmDtXgD0wf4G+oXRTMF/6C9tp2c/"
    "7cgxMPvceTgQMcEI+FC5kUzlWU3uSvb4AAAAwfFc0WJHE9lB3uQUcSqHz6Q4b8+mIba4Hsu/CSiB5HrpWNEzPxjBYYUAPcwBuf06y",
    "U01QTAoAAAARsooAAABAMkX7ONEYSxywSGXLzWBMEFLqK4LgsZkkcsmql+1Is1LrSbOAxzFuqaLfTf4xuXK6rkfvjV+f0lww2wElyT+"
    "OCPMcAAAAQHqGTUq3bSV3kHFd5/hAAVgooug0ktfsShnpk6/BfZMfozP7Q3FDCNzMtG3HCZVHmuMPlcWcKaA6RbVqBfAHoj0=",
};
// NOLINTEND(bugprone-suspicious-missing-comma)

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
    void writesGoldenContainers();
    void coversEveryLength();
    void refusesDamage();
};

void tst_SimpleEncryptionProvider::writesGoldenContainers()
{
    SimpleEncryptionProvider provider;
    for (int algorithm = 0; algorithm <= 10; ++algorithm) {
        const QByteArray &container = Containers[algorithm];
        QCOMPARE(SimpleEncryptionProvider::staticEncrypt(Text.toUtf8(), algorithm), container);
        QCOMPARE(SimpleEncryptionProvider::staticDecryptToQString(container), Text);
        SimpleEncryptionProvider::staticSetDefaultAlgorithm(algorithm);
        QCOMPARE(provider.encrypt(Text), container);
        for (const int unknown : {42, -1, 11})
            QCOMPARE(SimpleEncryptionProvider::staticEncrypt(Text.toUtf8(), unknown), container);
    }
    // A default that is no algorithm is kept, marked by its last byte, and means MD5.
    SimpleEncryptionProvider::staticSetDefaultAlgorithm(300);
    QCOMPARE(SimpleEncryptionProvider::staticDefaultAlgorithm(), 300);
    QCOMPARE(provider.encrypt(Text), changed([](QByteArray &record) { record[4] = 300 - 256; }));
    SimpleEncryptionProvider::staticSetDefaultAlgorithm(1);
    QCOMPARE(provider.encrypt(QByteArray("x")), OneByteContainer);
}

void tst_SimpleEncryptionProvider::coversEveryLength()
{
    SimpleEncryptionProvider provider;
    QByteArray plain;
    for (int length = 0; length < 300; ++length) {
        const QByteArray container = provider.encrypt(plain);
        QCOMPARE(container.isEmpty(), length == 0);
        for (int round = 0; round < 2; ++round) // wiping has left the caller's data alone
            QCOMPARE(provider.decrypt(container), plain);
        QCOMPARE(SimpleContainer::checksum(plain), qChecksum(plain.constData(), uint(length)));
        plain += char(length * length * 7); // zeros among them
    }
    const QString zeros = QString::fromLatin1("zero\0within", 11);
    QCOMPARE(provider.decryptToQString(provider.encrypt(zeros)), zeros);
}

void tst_SimpleEncryptionProvider::refusesDamage()
{
    const auto row = [](const char *name, const QByteArray &container, const QString &reason,
                        const QString &result = QString()) {
        QString decrypted;
        const QStringList traces =
            tracesOf([&] { decrypted = SimpleEncryptionProvider::staticDecryptToQString(container); });
        QVERIFY2(decrypted == result, name);
        QVERIFY2(traces.size() == (reason.isNull() ? 0 : 1), name);
        if (!reason.isNull())
            QCOMPARE(traces.first().section('|', 0, 2), "Debug|SimpleEncryptionProvider:staticDecrypt: " +
                                                            reason + "|source\\SimpleEncryptionProvider");
    };
    const auto xored = [](int position, int mask) {
        return changed([=](QByteArray &record) { record[position] = char(record[position] ^ mask); });
    };
    const auto hashless = [](QByteArray &record) { record.replace(11, 20, QByteArray(4, '\0')); };
    const auto dataless = [](QByteArray &record) { record.replace(33, 21, QByteArray(4, '\xFF')); };
    row("nothing", "", {});
    row("no Base64", "????", "fromBase64 was empty");
    row("magic", xored(0, 1), "magic number is wrong");
    row("no hash", changed(hashless), "unpacked hash was empty");
    row("no data", changed(dataless), "unpacked encrypted data was empty");
    row("hash of 4 GB", xored(11, 0xFF), "unpacked hash was empty");
    row("bit of the hash", xored(20, 4), "checksums for unpacked hash do not match");
    row("bit of its checksum", xored(9, 1), "checksums for unpacked hash do not match");
    row("bit of the data", xored(40, 128), "checksums for unpacked encrypted data do not match");
    row("bit of the marker", xored(4, 8), {}, Text);
    row("negative length", xored(5, 128), {});
    row("length beyond the data", xored(7, 1), {}, Text);
    row("shorter length", xored(8, 1), {}, Text.chopped(1));
    for (int length = 4; length < 54; ++length) {
        const char *const reason =
            length < 31 ? "unpacked hash was empty" : "unpacked encrypted data was empty";
        row("cut", changed([length](QByteArray &record) { record.truncate(length); }), reason);
    }
    row("more behind", changed([](QByteArray &record) { record += "more"; }), {}, Text);
}

QTEST_APPLESS_MAIN(tst_SimpleEncryptionProvider)
#include "tst_SimpleEncryptionProvider.moc"
