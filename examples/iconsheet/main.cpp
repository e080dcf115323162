// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "SheetPainter.h"
#include "SheetWindow.h"

#include <PYXRuntime.h>

#include <QtCore/QByteArray>
#include <QtCore/QCommandLineParser>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <cstdio>

using namespace IconSheet;

namespace {

const QLatin1String PngOption("png");
const QLatin1String FilterOption("filter");
const QLatin1String GroundOption("ground");
const QLatin1String ColumnsOption("columns");
constexpr int DefaultColumns = 8;
constexpr int MaximumColumns = 100;

/** In the order of eGround. */
const QStringList &groundNames()
{
    static const QStringList names{QStringLiteral("both"), QStringLiteral("light"), QStringLiteral("dark")};
    return names;
}

QString tr(const char *text)
{
    return QCoreApplication::translate("IconSheet::main", text);
}

int fail(const QString &text)
{
    std::fputs((QLatin1String("iconsheet: ") + text + QLatin1Char('\n')).toLocal8Bit().constData(), stderr);
    return 1;
}

/** Whether there will be no window: has to be known before there is an application. */
bool needsNoDisplay(int argc, char **argv)
{
    return std::any_of(argv + 1, argv + argc, [](const char *argument) {
        const QByteArray option = QByteArray(argument).replace("--", "-");
        return option.startsWith("-png") || option.startsWith("-h");
    });
}

void setUp(QCommandLineParser &parser)
{
    parser.setApplicationDescription(tr("Shows the standard icons in all sizes on light and dark ground."));
    parser.addHelpOption();
    parser.addOption({PngOption, tr("Write the sheet to this file instead of showing it."), tr("FILE")});
    parser.addOption({FilterOption, tr("Only icons whose names contain these words."), tr("WORDS")});
    parser.addOption({GroundOption, tr("The ground: %1.").arg(groundNames().join(QLatin1String(", "))),
                      tr("GROUND"), groundNames().first()});
    parser.addOption(
        {ColumnsOption, tr("Icons in a row of the file."), tr("NUMBER"), QString::number(DefaultColumns)});
}

int writeSheet(const QVector<struIconEntry> &entries, eGround ground, int columns, const QString &path)
{
    SheetPainter sheet;
    sheet.setEntries(entries);
    sheet.setGround(ground);
    QImage image(sheet.sheetSize(columns), QImage::Format_RGB32);
    QPainter painter(&image);
    sheet.paint(&painter, columns, image.rect());
    painter.end();
    return image.save(path, "PNG") ? 0 : fail(tr("The file \"%1\" cannot be written.").arg(path));
}

int run(const QCommandLineParser &parser)
{
    const int ground = groundNames().indexOf(parser.value(GroundOption));
    const int columns = parser.value(ColumnsOption).toInt();
    if (ground < 0)
        return fail(tr("There is no ground \"%1\".").arg(parser.value(GroundOption)));
    if (columns < 1 || columns > MaximumColumns)
        return fail(tr("The number of icons in a row is 1 to %1.").arg(MaximumColumns));
    const QVector<struIconEntry> entries = standardIconEntries();
    const QString filter = parser.value(FilterOption);
    if (parser.isSet(PngOption))
        return writeSheet(filtered(entries, filter), eGround(ground), columns, parser.value(PngOption));
    SheetWindow window(entries);
    window.setFilter(filter);
    window.setGround(eGround(ground));
    window.show();
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    if (needsNoDisplay(argc, argv))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Icon Sheet"));
    QCoreApplication::setOrganizationName(QStringLiteral("PYXRuntime"));
    QCommandLineParser parser;
    setUp(parser);
    parser.process(application);
    PYXRuntime::initialize_PYXRuntime();
    const int result = run(parser);
    PYXRuntime::uninitialize_PYXRuntime();
    return result;
}
