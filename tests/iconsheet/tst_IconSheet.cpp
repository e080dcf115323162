// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SheetPainter.h"

#include <PYXStandardIcons.h>

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtGui/QPainter>
#include <QtTest/QtTest>

#include <algorithm>

using namespace IconSheet;
using PYXRuntime::PYXStandardIcons;

namespace {

constexpr int SmallExtent = 16;

QImage drawn(const struIconEntry &entry)
{
    return entry.icon.pixmap(SmallExtent, QIcon::Normal, entry.state)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32);
}

int inkedPixels(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) > 128 ? 1 : 0;
    return count;
}

} // namespace

class tst_IconSheet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyIconIsDrawnOnceOnly();
    void specialIconsHaveAllSizes();
    void filterTakesAllWords();
    void programWritesTheSheet();
    void programRefuses_data();
    void programRefuses();
};

void tst_IconSheet::everyIconIsDrawnOnceOnly()
{
    // By intention alike: the logo is the application's icon too.
    const QSet<QString> mayBeTwice{QStringLiteral("Misc_KuT_Logo"), QStringLiteral("Overlay_Eye_Interleaved"),
                                   QStringLiteral("Overlay_Eye_Interleaved (on)")};
    QVector<QImage> seen;
    for (const struIconEntry &entry : standardIconEntries()) {
        const QImage image = drawn(entry);
        if (entry.name == QLatin1String("IconInvisibleIcon")) {
            QCOMPARE(image.size(), QSize(SmallExtent, SmallExtent));
            QCOMPARE(inkedPixels(image), 0);
            continue;
        }
        QVERIFY2(inkedPixels(image) >= 12, qPrintable(entry.name));
        QVERIFY2(mayBeTwice.contains(entry.name) || !seen.contains(image), qPrintable(entry.name));
        seen += image;
    }
    QVERIFY(seen.size() > 180);
}

void tst_IconSheet::specialIconsHaveAllSizes()
{
    for (uint id : {PYXStandardIcons::ekIcon_IconInvisibleIcon, PYXStandardIcons::ekIcon_IconNotFoundIcon,
                    PYXStandardIcons::ekIcon_IconNotRegisteredIcon}) {
        QList<QSize> sizes = PYXStandardIcons::staticRegisteredIcon(id).availableSizes();
        std::sort(sizes.begin(), sizes.end(),
                  [](const QSize &a, const QSize &b) { return a.width() < b.width(); });
        QCOMPARE(sizes, (QList<QSize>{{16, 16}, {24, 24}, {32, 32}, {48, 48}}));
    }
}

void tst_IconSheet::filterTakesAllWords()
{
    const QVector<struIconEntry> matching = filtered(standardIconEntries(), QStringLiteral("SAVE column"));
    QStringList names;
    for (const struIconEntry &entry : matching)
        names += entry.name;
    QCOMPARE(names,
             (QStringList{QStringLiteral("Save_Column_Order"), QStringLiteral("Delete_Saved_Column_Order")}));
}

void tst_IconSheet::programWritesTheSheet()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("sheet.png"));
    const QStringList arguments{QStringLiteral("--columns"), QStringLiteral("3"),
                                QStringLiteral("--filter"),  QStringLiteral("Zoom"),
                                QStringLiteral("--png"),     path};
    QCOMPARE(QProcess::execute(QStringLiteral(ICONSHEET_PROGRAM), arguments), 0);
    SheetPainter sheet;
    const QVector<struIconEntry> entries = filtered(standardIconEntries(), QStringLiteral("Zoom"));
    sheet.setEntries(entries);
    const QImage image(path);
    // The height depends on the font, which is the corporate one there.
    QCOMPARE(image.width(), sheet.sheetSize(3).width());
    QVERIFY(image.height() > (entries.size() + 2) / 3 * 128);
    const struIconEntry &first = entries.first();
    const QPoint largest = sheet.cell(0, 3).topLeft() + QPoint(8, 8);
    QImage expected(48, 48, QImage::Format_RGB32);
    expected.fill(image.pixel(largest - QPoint(1, 1)));
    QPainter painter(&expected);
    first.icon.paint(&painter, expected.rect(), Qt::AlignCenter, QIcon::Normal, first.state);
    painter.end();
    QCOMPARE(image.copy(QRect(largest, expected.size())), expected);
}

void tst_IconSheet::programRefuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    const auto arguments = [](const char *text) { return QString::fromLatin1(text).split(QLatin1Char(' ')); };
    QTest::newRow("a file that cannot be written") << arguments("--png /nowhere/at/all/sheet.png");
    QTest::newRow("no columns") << arguments("--png unused.png --columns 0");
    QTest::newRow("an unknown ground") << arguments("--png unused.png --ground green");
}

void tst_IconSheet::programRefuses()
{
    QFETCH(QStringList, arguments);
    QCOMPARE(QProcess::execute(QStringLiteral(ICONSHEET_PROGRAM), arguments), 1);
    QVERIFY(!QFile::exists(QStringLiteral("unused.png")));
}

QTEST_MAIN(tst_IconSheet)
#include "tst_IconSheet.moc"
