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
    void secretsStayBehind_data();
    void secretsStayBehind();
    void secretsGoAlongWhenAskedFor();
    void registeredKeysAreSecrets();
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

void tst_PYXSettingsTransfer::secretsStayBehind_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("secret");
    QTest::newRow("plain name") << "Password" << QVariant(1) << true;
    QTest::newRow("part of a name") << "Proxy/userPassWord_2" << QVariant("x") << true;
    QTest::newRow("name of a group") << "API-Keys/Weather" << QVariant("x") << true;
    QTest::newRow("harmless") << "Proxy/Host" << QVariant("password.example.org") << false;
    QTest::newRow("URL") << "Server" << QVariant(QUrl("http://me:pw@host/")) << true;
    QTest::newRow("URL as text") << "Server" << QVariant("ftp://me:pw@host/") << true;
    QTest::newRow("URL with a user") << "Server" << QVariant("http://me@host:80/a:b@c") << false;
    QTest::newRow("XML element") << "State" << QVariant("<S><ProxyPassword type=\"x\">a</ProxyPassword></S>")
                                 << true;
    QTest::newRow("XML text") << "State" << QVariant("<S><Title>no password</Title></S>") << false;
    QByteArray streamed;
    QDataStream stream(&streamed, QIODevice::WriteOnly);
    stream << QVariantHash{{"AccessToken", 1}};
    QTest::newRow("streamed name") << "State" << QVariant(streamed) << true;
    QTest::newRow("bytes") << "Geometry" << QVariant(QByteArray(64, '\1')) << false;
    QTest::newRow("map in a list") << "State" << QVariant(QVariantList{1, QVariantMap{{"Secret", 1}}})
                                   << true;
    PYXRuntime::PYXStatusHash hash;
    hash.insert("Inner", QVariantHash{{"Passphrase", 1}});
    QTest::newRow("status hash") << "State" << QVariant::fromValue(hash) << true;
    QTest::newRow("map") << "State" << QVariant(QVariantMap{{"Name", 1}}) << false;
}

void tst_PYXSettingsTransfer::secretsStayBehind()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QFETCH(bool, secret);
    const QString file = m_home->path("export.PYXXml");
    PYXSettings source(PYXSettings::eUserApplicationSettings);
    source.setValue(key, value);
    source.setValue("Other", 1);
    const auto exported = PYXSettingsTransfer::exportTo(file, source);
    QVERIFY(exported.bOk);
    QCOMPARE(exported.leftOut, secret ? QStringList(key) : QStringList());
    QCOMPARE(PYXSettings(file).allKeys().contains(key), !secret);
    QVERIFY(PYXSettings(file).contains("Other"));
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

void tst_PYXSettingsTransfer::registeredKeysAreSecrets()
{
    PYXSettingsTransfer::registerSecret("::Receiver::/Licence/");
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    settings.setValue("::Receiver::/Licence/Serial", 1);
    settings.setValue("::Receiver::/Licences", 1);
    settings.beginGroup("::Receiver::");
    const auto result = PYXSettingsTransfer::exportTo(m_home->path("export"), settings);
    QCOMPARE(result.leftOut, QStringList("Licence/Serial"));
    QCOMPARE(result.entries, 1);
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
