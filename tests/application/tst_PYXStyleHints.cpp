// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ContrastColor.h"
#include "PYXStyleHints.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QFontInfo>
#include <QtGui/QPalette>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

using namespace PYXRuntime;

namespace {

constexpr PYXStyleHints::eColor Meanings[] = {PYXStyleHints::ekColor_Error, PYXStyleHints::ekColor_Warning,
                                              PYXStyleHints::ekColor_Success,
                                              PYXStyleHints::ekColor_Information};

} // namespace

class tst_PYXStyleHints : public QObject
{
    Q_OBJECT
private slots:
    void contrastIsThatOfTheGuidelines();
    void coloursCanBeRead_data();
    void coloursCanBeRead();
    void followsPaletteAndFont();
    void asksTheStyle();
};

void tst_PYXStyleHints::contrastIsThatOfTheGuidelines()
{
    // The worked figures of WCAG 2.1 and its tools: black on white, and the darkest grey that fails.
    QCOMPARE(contrastRatio(Qt::black, Qt::white), 21.0);
    QVERIFY(qAbs(contrastRatio(QColor("#777777"), Qt::white) - 4.48) < 0.005);
    QVERIFY(qAbs(contrastRatio(Qt::white, QColor("#767676")) - 4.54) < 0.005);
}

void tst_PYXStyleHints::coloursCanBeRead_data()
{
    QTest::addColumn<QColor>("window");
    QTest::addColumn<QColor>("base");
    QTest::addColumn<bool>("bDark");
    QTest::newRow("white") << QColor(Qt::white) << QColor(Qt::white) << false;
    QTest::newRow("usual light") << QColor("#efefef") << QColor(Qt::white) << false;
    QTest::newRow("usual dark") << QColor("#353535") << QColor("#232323") << true;
    QTest::newRow("black") << QColor(Qt::black) << QColor(Qt::black) << true;
    QTest::newRow("coloured") << QColor("#fff3c4") << QColor("#ffe08a") << false;
}

void tst_PYXStyleHints::coloursCanBeRead()
{
    QFETCH(QColor, window);
    QFETCH(QColor, base);
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Base, base);
    QApplication::setPalette(palette);
    QTEST(PYXStyleHints::staticIsDark(), "bDark");
    QSet<QRgb> colours;
    for (const auto meaning : Meanings) {
        const QColor colour = PYXStyleHints::staticColor(meaning);
        QVERIFY2(contrastRatio(colour, window) >= 4.5 && contrastRatio(colour, base) >= 4.5,
                 qPrintable(colour.name()));
        QVERIFY(colour.hslSaturation() > 100); // neither black nor white
        colours += colour.rgb();
    }
    QCOMPARE(colours.size(), 4);
}

void tst_PYXStyleHints::followsPaletteAndFont()
{
    QSignalSpy spy(PYXStyleHints::getInstance(), &PYXStyleHints::si_styleHintsChanged);
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Window, Qt::black);
    palette.setColor(QPalette::Base, Qt::black);
    QApplication::setPalette(palette);
    QCOMPARE(spy.size(), 1);
    QFont font = QApplication::font();
    font.setPointSize(17);
    QApplication::setFont(font);
    QCOMPARE(spy.size(), 2);
    QCOMPARE(PYXStyleHints::staticMonospaceFont().pointSize(), 17);
    // Wine may have no such font at all.
    if (QFontInfo(QFontDatabase::systemFont(QFontDatabase::FixedFont)).fixedPitch())
        QVERIFY(QFontInfo(PYXStyleHints::staticMonospaceFont()).fixedPitch());
    // Grounds between which nothing can be read still give the best there is.
    palette.setColor(QPalette::Base, Qt::white);
    QApplication::setPalette(palette);
    for (const auto meaning : Meanings) {
        const QColor colour = PYXStyleHints::staticColor(meaning);
        QVERIFY(qMin(contrastRatio(colour, Qt::black), contrastRatio(colour, Qt::white)) > 4.0);
    }
    PYXStyleHints::destroyInstance();
}

void tst_PYXStyleHints::asksTheStyle()
{
    const QStyle &style = *QApplication::style();
    QCOMPARE(PYXStyleHints::staticIconSize(PYXStyleHints::ekIconSize_Small).width(),
             style.pixelMetric(QStyle::PM_SmallIconSize));
    QCOMPARE(PYXStyleHints::staticIconSize(PYXStyleHints::ekIconSize_ToolBar).height(),
             style.pixelMetric(QStyle::PM_ToolBarIconSize));
    QCOMPARE(PYXStyleHints::staticIconSize(PYXStyleHints::ekIconSize_Large).width(),
             style.pixelMetric(QStyle::PM_LargeIconSize));
    QCOMPARE(PYXStyleHints::staticWindowMargins().left(), style.pixelMetric(QStyle::PM_LayoutLeftMargin));
    QVERIFY(PYXStyleHints::staticSpacing() > 0);
}

QTEST_MAIN(tst_PYXStyleHints)
#include "tst_PYXStyleHints.moc"
