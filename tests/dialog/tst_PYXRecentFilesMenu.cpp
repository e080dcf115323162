// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileContents.h"
#include "PYXRecentFilesMenu.h"
#include "SettingsHome.h"

#include <QtTest/QtTest>

using namespace PYXRuntime;

class tst_PYXRecentFilesMenu : public QObject
{
    Q_OBJECT
private slots:
    void filesInTheirOrder();
    void missingFiles();

private:
    static QStringList texts(PYXRecentFilesMenu &menu)
    {
        emit menu.aboutToShow();
        QStringList texts;
        for (const QAction *const action : menu.actions()) {
            if (!action->isSeparator())
                texts += (action->isEnabled() ? "" : "-") + action->text();
        }
        return texts;
    }
    static QString touch(const QString &path)
    {
        QDir().mkpath(QFileInfo(path).path());
        put(path, {});
        return path;
    }
};

void tst_PYXRecentFilesMenu::filesInTheirOrder()
{
    const SettingsHome home;
    PYXRecentFilesMenu menu("Recent");
    PYXRecentFilesMenu other("Recent");
    QVERIFY(!menu.menuAction()->isEnabled());
    menu.setMaximumCount(3);
    const QString first = touch(home.path("a/same.wav"));
    const QString second = touch(home.path("b/same.wav"));
    const QString third = touch(home.path("R&D.wav"));
    for (const QString &path :
         {touch(home.path("oldest")), first, second, third, home.path("a/../a/same.wav")})
        menu.addFile(path);
    QCOMPARE(menu.files(), QStringList({first, third, second}));
    const QStringList expected{"&1 " + QDir::toNativeSeparators(first), "&2 R&&D.wav",
                               "&3 " + QDir::toNativeSeparators(second), "&Clear List"};
    QCOMPARE(texts(menu), expected);
    QCOMPARE(texts(other), expected);
    QSignalSpy chosen(&menu, &PYXRecentFilesMenu::si_fileChosen);
    connect(&menu, &PYXRecentFilesMenu::si_fileChosen, &menu, &PYXRecentFilesMenu::addFile);
    menu.actions().at(2)->trigger();
    QTRY_COMPARE(chosen.size(), 1);
    QCOMPARE(menu.files(), QStringList({second, first, third}));
    menu.removeFile(first);
    QCOMPARE(menu.files(), QStringList({second, third}));
    menu.actions().last()->trigger();
    QTRY_VERIFY(menu.files().isEmpty());
    QVERIFY(!menu.menuAction()->isEnabled());
}

void tst_PYXRecentFilesMenu::missingFiles()
{
    const SettingsHome home;
    PYXRecentFilesMenu menu("Recent");
    menu.addFile(touch(home.path("kept")));
    menu.addFile(touch(home.path("gone")));
    QVERIFY(QFile::remove(home.path("gone")));
    QCOMPARE(texts(menu), QStringList({"-&1 gone", "&2 kept", "&Clear List"}));
    menu.setMissingFiles(PYXRecentFilesMenu::ekMissingFiles_Remove);
    QCOMPARE(texts(menu), QStringList({"&1 kept", "&Clear List"}));
    QCOMPARE(menu.files().size(), 1);
}

QTEST_MAIN(tst_PYXRecentFilesMenu)
#include "tst_PYXRecentFilesMenu.moc"
