// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXSettingsTransfer.h"

#include "PYXSettings.h"
#include "PYXStatusHash.h"
#include "SettingsHome.h"

#include <QtCore/QDataStream>
#include <QtTest/QtTest>

using PYXRuntime::PYXSettings;
using PYXRuntime::PYXSettingsTransfer;

class tst_PYXSettingsTransfer : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_home.reset(new SettingsHome); }
    void aStoreComesBack();
    void aGroupIsTakenAlone();
    void secretsStayBehind();
    void secretsGoAlongWhenAskedFor();
    void failuresAreToldAndChangeNothing();

private:
    QScopedPointer<SettingsHome> m_home;
};

void tst_PYXSettingsTransfer::aStoreComesBack()
{
    PYXSettings(PYXSettings::eDefaultApplicationSettings).setValue("Machine", 1);
    const QString file = m_home->path("export.PYXXml");
    PYXSettings source(PYXSettings::eUserApplicationSettings);
    source.setValue("Group/Text", QString("a,b"));
    source.setValue("Group/Colour", QColor(1, 2, 3));
    source.setValue("Group", 1);
    const auto exported = PYXSettingsTransfer::exportTo(file, source);
    QVERIFY2(exported.bOk, qPrintable(exported.error));
    QCOMPARE(exported.entries, 3);
    PYXSettings target(PYXSettings::eUserSharedSettings);
    target.setValue("Kept", 1);
    const auto imported = PYXSettingsTransfer::importFrom(file, target);
    QVERIFY2(imported.bOk, qPrintable(imported.error));
    QCOMPARE(imported.entries, 3);
    QCOMPARE(target.allKeys(true), QStringList({"Group", "Group/Colour", "Group/Text", "Kept"}));
    QCOMPARE(target.colorValue("Group/Colour"), QColor(1, 2, 3));
    QCOMPARE(target.stringValue("Group/Text"), QString("a,b"));
    QVERIFY(PYXSettings(target.fileName(), QSettings::defaultFormat()).contains("Group/Text"));
}

void tst_PYXSettingsTransfer::aGroupIsTakenAlone()
{
    const QString file = m_home->path("export.PYXXml");
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    for (const char *key : {"A/B/x", "A/B", "A/BC/x", "A/y", "B/x"})
        settings.setValue(key, 1);
    QCOMPARE(PYXSettingsTransfer::exportTo(file, settings, "A/B/").entries, 2);
    settings.beginGroup("A");
    QCOMPARE(PYXSettingsTransfer::exportTo(m_home->path("relative"), settings, "B").entries, 2);
    settings.endGroup();
    QCOMPARE(PYXSettingsTransfer::exportTo(m_home->path("all"), settings).entries, 5);
    settings.clear();
    QCOMPARE(PYXSettingsTransfer::importFrom(file, settings, "A/BC").entries, 0);
    QCOMPARE(PYXSettingsTransfer::importFrom(m_home->path("all"), settings, "A\\").entries, 4);
    QCOMPARE(settings.allKeys(true), QStringList({"A/B", "A/B/x", "A/BC/x", "A/y"}));
    settings.clear();
    settings.beginGroup("Elsewhere");
    PYXSettingsTransfer::importFrom(m_home->path("relative"), settings);
    settings.endGroup();
    QCOMPARE(settings.allKeys(true), QStringList({"Elsewhere/B", "Elsewhere/B/x"}));
}

void tst_PYXSettingsTransfer::secretsStayBehind()
{
    QByteArray streamedHash;
    QDataStream stream(&streamedHash, QIODevice::WriteOnly);
    stream << QVariantHash{{"AccessToken", 1}};
    PYXRuntime::PYXStatusHash hash;
    hash.insert("Inner", QVariantHash{{"Passphrase", 1}});
    PYXSettingsTransfer::registerSecret("::Receiver::/Licence/");
    const QList<QPair<QString, QVariant>> secrets = {
        {"Password", 1},
        {"Proxy/userPassWord_2", "x"},
        {"API-Keys/Weather", "x"},
        {"::Receiver::/Licence/Serial", 1}, // registered
        {"State/Url", QUrl("http://me:pw@host/")},
        {"State/Text", "ftp://me:pw@host/"},
        {"State/Xml", "<S><ProxyPassword type=\"x\">a</ProxyPassword></S>"},
        {"State/Bytes", streamedHash},
        {"State/List", QVariantList{1, QVariantMap{{"Secret", 1}}}},
        {"State/Hash", QVariant::fromValue(hash)}};
    const QList<QPair<QString, QVariant>> harmless = {
        {"Proxy/Host", "password.example.org"},   {"::Receiver::/Licences", 1},
        {"Plain/Url", "http://me@host:80/a:b@c"}, {"Plain/Xml", "<S><Title>no password</Title></S>"},
        {"Plain/Bytes", QByteArray(64, '\1')},    {"Plain/Map", QVariantMap{{"Name", 1}}}};
    PYXSettings source(PYXSettings::eUserApplicationSettings);
    const auto stored = [&source](const QList<QPair<QString, QVariant>> &entries) {
        QStringList keys;
        for (const auto &[key, value] : entries) {
            source.setValue(key, value);
            keys += key;
        }
        keys.sort();
        return keys;
    };
    const QStringList leftOut = stored(secrets);
    const QStringList kept = stored(harmless);
    const QString file = m_home->path("export.PYXXml");
    const auto exported = PYXSettingsTransfer::exportTo(file, source);
    QVERIFY(exported.bOk);
    QCOMPARE(exported.leftOut, leftOut);
    QCOMPARE(PYXSettings(file).allKeys(), kept);
    source.beginGroup("::Receiver::"); // keys are whole for what is registered
    QCOMPARE(PYXSettingsTransfer::exportTo(file, source).leftOut, QStringList("Licence/Serial"));
}

void tst_PYXSettingsTransfer::secretsGoAlongWhenAskedFor()
{
    const QString file = m_home->path("export.PYXXml");
    PYXSettings source(PYXSettings::eUserApplicationSettings);
    source.setValue("Password", "x");
    QVERIFY(PYXSettingsTransfer::exportTo(file, source, "", PYXSettingsTransfer::ekSecrets_Include).bOk);
    // Windows keeps no permissions of this kind.
    const bool bPermissions = QSysInfo::kernelType() != "winnt";
    QVERIFY(!bPermissions || !(QFile::permissions(file) & (QFile::ReadGroup | QFile::ReadOther)));
    PYXSettings target(PYXSettings::eUserSharedSettings);
    target.setValue("Password", "own");
    QCOMPARE(PYXSettingsTransfer::importFrom(file, target).leftOut, QStringList("Password"));
    QCOMPARE(target.stringValue("Password"), QString("own"));
    PYXSettingsTransfer::importFrom(file, target, "", PYXSettingsTransfer::ekSecrets_Include);
    QCOMPARE(target.stringValue("Password"), QString("x"));
}

void tst_PYXSettingsTransfer::failuresAreToldAndChangeNothing()
{
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    settings.setValue("Key", 1);
    const auto unwritable = PYXSettingsTransfer::exportTo(m_home->path("no/directory/x"), settings);
    QVERIFY(!unwritable.bOk && unwritable.error.contains("no/directory/x"));
    const QString file = m_home->path("export.PYXXml");
    QVERIFY(PYXSettingsTransfer::exportTo(file, settings).bOk);
    QFile damaged(file);
    QVERIFY(damaged.resize(damaged.size() - 20));
    settings.setValue("Key", 2);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("error setting content"));
    for (const QString &name : {file, m_home->path("missing")}) {
        const auto result = PYXSettingsTransfer::importFrom(name, settings);
        QVERIFY(!result.bOk && result.error.contains(name));
        QCOMPARE(settings.intValue("Key"), 2);
    }
}

QTEST_GUILESS_MAIN(tst_PYXSettingsTransfer)
#include "tst_PYXSettingsTransfer.moc"
