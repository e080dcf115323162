// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SheetPainter.h"

#include <PYXStandardIcons.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>

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
    void filterTakesAllWords();
    void programWritesTheSheet();
    void programRefuses();
};

void tst_IconSheet::everyIconIsDrawnOnceOnly()
{
    // By intention alike: the logo is the application's icon too.
    const QSet<QString> mayBeTwice{"Misc_KuT_Logo", "Overlay_Eye_Interleaved",
                                   "Overlay_Eye_Interleaved (on)"};
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

void tst_IconSheet::filterTakesAllWords()
{
    const QVector<struIconEntry> matching = filtered(standardIconEntries(), "SAVE column");
    QStringList names;
    for (const struIconEntry &entry : matching)
        names += entry.name;
    QCOMPARE(names, (QStringList{"Save_Column_Order", "Delete_Saved_Column_Order"}));
}

void tst_IconSheet::programWritesTheSheet()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath("sheet.png");
    const QStringList arguments{"--columns", "3", "--filter", "Zoom", "--png", path};
    QCOMPARE(QProcess::execute(QStringLiteral(ICONSHEET_PROGRAM), arguments), 0);
    SheetPainter sheet;
    const QVector<struIconEntry> entries = filtered(standardIconEntries(), "Zoom");
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

void tst_IconSheet::programRefuses()
{
    // A file that cannot be written, no columns, an unknown ground.
    for (const QString arguments : {"--png /nowhere/at/all/sheet.png", "--png unused.png --columns 0",
                                    "--png unused.png --ground green"}) {
        QCOMPARE(QProcess::execute(QStringLiteral(ICONSHEET_PROGRAM), arguments.split(' ')), 1);
        QVERIFY2(!QFile::exists("unused.png"), qPrintable(arguments));
    }
}

QTEST_MAIN(tst_IconSheet)
#include "tst_IconSheet.moc"
