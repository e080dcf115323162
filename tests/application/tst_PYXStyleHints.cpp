// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ContrastColor.h"
#include "DataRows.h"
#include "PYXStyleHints.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QFontInfo>
#include <QtGui/QPalette>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

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
    void coloursCanBeRead();
    void followsPaletteAndFont();
};

void tst_PYXStyleHints::contrastIsThatOfTheGuidelines()
{
    // The worked figures of WCAG 2.1 and its tools: black on white, and the darkest grey that fails.
    QCOMPARE(contrastRatio(Qt::black, Qt::white), 21.0);
    QVERIFY(qAbs(contrastRatio(QColor("#777777"), Qt::white) - 4.48) < 0.005);
    QVERIFY(qAbs(contrastRatio(Qt::white, QColor("#767676")) - 4.54) < 0.005);
}

void tst_PYXStyleHints::coloursCanBeRead()
{
    const Rows<QColor, QColor, bool> rows = {{"white", Qt::white, Qt::white, false},
                                             {"usual light", "#efefef", Qt::white, false},
                                             {"usual dark", "#353535", "#232323", true},
                                             {"black", Qt::black, Qt::black, true},
                                             {"coloured", "#fff3c4", "#ffe08a", false}};
    forRows(rows, [](const QColor &window, const QColor &base, bool bDark) {
        QPalette palette;
        palette.setColor(QPalette::Window, window);
        palette.setColor(QPalette::Base, base);
        QApplication::setPalette(palette);
        QCOMPARE(PYXStyleHints::staticIsDark(), bDark);
        QSet<QRgb> colours;
        for (const auto meaning : Meanings) {
            const QColor colour = PYXStyleHints::staticColor(meaning);
            QVERIFY2(contrastRatio(colour, window) >= 4.5 && contrastRatio(colour, base) >= 4.5,
                     qPrintable(colour.name()));
            QVERIFY(colour.hslSaturation() > 100); // neither black nor white
            colours += colour.rgb();
        }
        QCOMPARE(colours.size(), 4);
    });
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

QTEST_MAIN(tst_PYXStyleHints)
#include "tst_PYXStyleHints.moc"
