// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ChildProcess.h"
#include "DataRows.h"
#include "IconFolder.h"
#include "PYXIconLoader.h"

#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <filesystem>

using namespace PYXRuntime;

namespace {

const QList<QIcon::Mode> Modes{QIcon::Normal, QIcon::Disabled, QIcon::Active, QIcon::Selected};
const QList<QIcon::State> States{QIcon::On, QIcon::Off};
const QString
    Ignored("Image files must specify mode and state in the name: these unspecified files are ignored [%1]");
const QString NotFound("No image files found. baseFilePath [%1] => baseName [%2]");

void expectWarning(const QString &text)
{
    QTest::ignoreMessage(QtWarningMsg, qUtf8Printable(text));
}

/** Loads, and tells every image as "<mode> <state> <side>". */
QStringList imagesOf(PYXIconLoader &loader, const QString &path)
{
    QStringList images;
    const auto connection = QObject::connect(
        &loader, &PYXIconLoader::si_imageLoaded,
        [&images](const QImage &image, QIcon::Mode mode, QIcon::State state) {
            images += QString("%1 %2 %3").arg(_iconModeName(mode), _iconStateName(state)).arg(image.width());
        });
    loader.load(path);
    QObject::disconnect(connection);
    return images;
}

QImage rendered(const QByteArray &svg, int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(svg).render(&painter);
    return image;
}

/** What the icon paints for this logical side on a screen of that ratio. */
QImage painted(const QIcon &icon, int side, qreal ratio)
{
    QImage image(QSize(side, side) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.paint(&painter, 0, 0, side, side);
    image.setDevicePixelRatio(1);
    return image;
}

/** Counts the sizes at which the icon is not what is rendered directly, on a system with screens of that
 * ratio. */
int blurredSizes(qreal ratio)
{
    IconFolder folder;
    folder.draw("a_normal_off.svg", Qt::blue);
    const QIcon icon = PYXIconLoader().load(folder.path("a"));
    int blurred = qFuzzyCompare(qApp->devicePixelRatio(), ratio) ? 0 : 1000;
    for (const int side : {16, 20, 22, 24, 32, 40, 48}) {
        const QImage direct = rendered(IconFolder::svg(Qt::blue), qRound(side * ratio));
        QPixmap pixmap = icon.pixmap(side);
        blurred += qFuzzyCompare(pixmap.devicePixelRatio(), ratio) && pixmap.toImage() == direct ? 0 : 1;
        // The window may be on another screen.
        for (const qreal other : {1.0, ratio})
            blurred += painted(icon, side, other) == rendered(IconFolder::svg(Qt::blue), qRound(side * other))
                           ? 0
                           : 1;
    }
    return blurred;
}

} // namespace

class tst_PYXIconLoader : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { PYXIconLoader::destroyInstance(); }
    void findsFilesByModeAndState();
    void tellsTheBaseNameItLooksFor();
    void leavesOutWhatCannotBeRead();
    void derivesModesAndSizesLikeQIcon();
    void isSharpAtEveryRatio();
    void isEmptyWithoutScreens();
    void sizesOfDrawingsAreAbidedBy();
    void loadsOneModeAndState();
    void keepsAndOverridesIcons();
    void noticesNewFiles();
    void survivesListeners();
    void showsTheIconOfAFile();
};

void tst_PYXIconLoader::findsFilesByModeAndState()
{
    const QStringList one{"normal off 16"};
    const QStringList svg{"normal on 48", "normal on 32", "normal on 24", "normal on 16"};
    // The path, the files, the images found, the warning.
    const Rows<QString, QStringList, QStringList, QString> rows = {
        {"untagged file",
         "save",
         {"save_normal_off.png", "save_disabled_off.png", "save.png"},
         {"normal off 16", "disabled off 16"},
         Ignored.arg("save.png")},
        {"folder, SVG", "save", {"normal_on/save.svg"}, svg, ""},
        {"several images", "save", {"save_active_on.ico"}, {"active on 16", "active on 32"}, ""},
        {"both places",
         "save",
         {"selected_off/save.png", "save_selected_off.png"},
         {"selected off 16", "selected off 16"},
         ""},
        {"any order and case", "save", {"save_OFF_32x32_Normal.png"}, one, ""},
        {"others beside it",
         "save",
         {"save_normal_off.png", "save_all_normal_off.png", "saves.png"},
         one,
         ""},
        {"others in the folder",
         "save",
         {"normal_off/save.png", "normal_off/save_all.png", "normal_off/Save.bmp"},
         one,
         "Unspecified files are ignored [Save.bmp, save_all.png]"},
        {"tags after dots",
         "save",
         {"save.disabled.on.png", "save_normal_on.png"},
         {"normal on 16"},
         Ignored.arg("save.disabled.on.png")},
        {"path with tags", "save_48x48_normal_off", {"save_normal_off.png"}, one, ""},
        {"word inside a name", "print_selected_all", {"print_all_normal_on.png"}, {"normal on 16"}, ""},
        {"no wildcard", "s[a]e", {"sae_normal_off.png", "s[a]e_normal_off.png"}, one, ""}};
    forRows(rows, [](const QString &base, const QStringList &files, const QStringList &images,
                     const QString &warning) {
        IconFolder folder;
        for (const QString &file : files)
            folder.draw(file);
        if (!warning.isEmpty())
            expectWarning(warning);
        PYXIconLoader loader;
        QCOMPARE(imagesOf(loader, folder.path(base)), images);
    });
}

void tst_PYXIconLoader::tellsTheBaseNameItLooksFor()
{
    const std::pair<QString, QString> names[] = {
        {"save", "save"},
        {"save_32x32_normal_off.png", "save"},
        {"save.disabled.on.svg", "save"},
        {"save-16X16-Normal-ON", "save"},
        {"common32x32normal", "common32x32normal"}, // no tag without a separator
        {"save_32x", "save_32x"},
        {"save_no_offrmal", "save_normal"}, // a tag that another one leaves
        {"_normal_off", ""},
        {"*", "*"},
        {"%2", "%2"},
        {QString(QChar(0xD800)) + "/save", "save"}};
    for (const auto &[name, baseName] : names) {
        IconFolder folder;
        folder.draw("_normal_off.png");
        expectWarning(NotFound.arg(folder.path(name), baseName));
        QVERIFY2(PYXIconLoader().load(folder.path(name)).isNull(), qUtf8Printable(name));
    }
}

void tst_PYXIconLoader::leavesOutWhatCannotBeRead()
{
    const Rows<QString, QByteArray> rows = {
        {"empty file", "a_normal_off.png", QByteArray()},
        {"cut short", "a_normal_off.png", IconFolder::png(16, Qt::red).left(40)},
        {"no SVG", "a_normal_off.svg", "<html/>"},
        {"huge SVG", "a_normal_off.svg",
         QByteArray("<svg xmlns='http://www.w3.org/2000/svg'>").leftJustified(5'000'000) + "</svg>"},
        {"hollow ICO", "a_normal_off.ico", QByteArray("\0\0\1\0\xFF\xFF", 6)},
        {"huge picture", "a_normal_off.pbm", QByteArray("P4 4096 4096 ") + QByteArray(4096 * 512, '\0')}};
    forRows(rows, [](const QString &name, const QByteArray &bytes) {
        IconFolder folder;
        folder.write(name, bytes);
        PYXIconLoader loader;
        expectWarning(NotFound.arg(folder.path("a"), "a"));
        QVERIFY(loader.load(folder.path("a")).isNull());
        folder.draw("a_disabled_on.png"); // the empty icon was not kept
        QCOMPARE(imagesOf(loader, folder.path("a")), QStringList("disabled on 16"));
    });
}

void tst_PYXIconLoader::derivesModesAndSizesLikeQIcon()
{
    const QList<QPair<QString, QPair<QIcon::Mode, QIcon::State>>> files{
        {"normal_off", {QIcon::Normal, QIcon::Off}},
        {"active_on", {QIcon::Active, QIcon::On}},
        {"disabled_off", {QIcon::Disabled, QIcon::Off}},
        {"selected_on", {QIcon::Selected, QIcon::On}},
        {"normal_on", {QIcon::Normal, QIcon::On}}};
    for (int set = 1; set < 1 << files.size(); ++set) {
        IconFolder folder;
        QIcon reference;
        for (int i = 0; i < files.size(); ++i) {
            const auto &[tag, modeState] = files[i];
            for (const int side : {16, 24}) {
                const QColor colour(20 * i, 200, 40 + side);
                if ((set & (1 << i)) == 0)
                    continue;
                folder.draw(QString("a_%1_%2x%2.png").arg(tag).arg(side), colour, side);
                reference.addPixmap(QPixmap::fromImage(square(side, colour)), modeState.first,
                                    modeState.second);
            }
        }
        QIcon icon = PYXIconLoader().load(folder.path("a"));
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out << icon;
        QDataStream in(bytes);
        QIcon streamed;
        in >> streamed;
        for (const QIcon::Mode mode : Modes) {
            for (const QIcon::State state : States) {
                QCOMPARE(icon.availableSizes(mode, state).size(),
                         reference.availableSizes(mode, state).size());
                for (const QSize &size : {QSize(16, 16), QSize(20, 20), QSize(9, 30), QSize(64, 64)}) {
                    const QImage expected = reference.pixmap(size, mode, state).toImage();
                    QCOMPARE(icon.actualSize(size, mode, state), reference.actualSize(size, mode, state));
                    QCOMPARE(icon.pixmap(size, mode, state).toImage(), expected);
                    QCOMPARE(streamed.pixmap(size, mode, state).toImage(), expected);
                }
            }
        }
        // What is added to a copy shows there, and only there.
        QIcon copy = icon;
        const QImage before = icon.pixmap(48).toImage();
        copy.addPixmap(QPixmap::fromImage(square(48, Qt::black)));
        QCOMPARE(copy.pixmap(48).toImage().pixelColor(5, 5), QColor(Qt::black));
        QCOMPARE(icon.pixmap(48).toImage(), before);
    }
}

void tst_PYXIconLoader::isSharpAtEveryRatio()
{
    for (const char *ratio : {"1", "1.25", "1.5", "2"})
        QCOMPARE(ratio + runOwnProbe(ratio).output.trimmed(), QString(ratio) + "blurred: 0");
}

void tst_PYXIconLoader::isEmptyWithoutScreens()
{
    QCOMPARE(runOwnProbe("no screen").exitCode, 0);
}

void tst_PYXIconLoader::sizesOfDrawingsAreAbidedBy()
{
    IconFolder folder;
    folder.draw("a_normal_off.svg");
    folder.draw("a_normal_off_24x24.png", Qt::green, 24);
    PYXIconLoader loader;
    const QIcon icon = loader.load(folder.path("a"));
    QCOMPARE(icon.pixmap(200).size(), QSize(48, 48));
    QCOMPARE(colourAt(icon, 24, {0, 0}), QColor(Qt::green)); // drawn for that very size
    QCOMPARE(colourAt(icon, 23, {0, 0}).alpha(), 0);
    loader.setSizesForSVGIcons({{64, 64}, {10, 10}});
    QCOMPARE(loader.load(folder.path("a")).pixmap(200).size(), QSize(48, 48)); // kept
    loader.clearCache();
    QCOMPARE(imagesOf(loader, folder.path("a")),
             (QStringList{"normal off 64", "normal off 10", "normal off 24"}));
    loader.setSizesForSVGIcons({{0, 0}, {100'000, 100'000}});
    loader.clearCache();
    QCOMPARE(imagesOf(loader, folder.path("a")), QStringList("normal off 24"));
    loader.resetSizesForSVGIcons();
    QCOMPARE(loader.sizesForSVGIcons(), PYXIconLoader::defaultSizesForSVGIcons());
}

void tst_PYXIconLoader::loadsOneModeAndState()
{
    IconFolder folder;
    folder.draw("a_normal_off.png", Qt::red);
    folder.draw("a_disabled_on.png", Qt::blue);
    PYXIconLoader loader;
    const QString path = folder.path("a");
    QVERIFY(loader.rawLoad(path, QIcon::Normal, QIcon::On).isNull());
    QVERIFY(loader.load(path, QIcon::Active, QIcon::On).isNull());
    const QIcon icon = loader.load(path, QIcon::Normal, QIcon::On);
    QCOMPARE(colourAt(icon, 16, {3, 3}), QColor(Qt::red));
    QVERIFY(icon.availableSizes(QIcon::Disabled).isEmpty());
    QCOMPARE(colourAt(loader.rawLoad(path, QIcon::Disabled, QIcon::On), 16, {3, 3}), QColor(Qt::blue));
}

void tst_PYXIconLoader::keepsAndOverridesIcons()
{
    IconFolder folder;
    folder.draw("a_normal_off.png", Qt::red);
    const QString path = folder.path("a");
    const QIcon red = PYXIconLoader::staticLoad(path);
    folder.draw("a_normal_off.png", Qt::green);
    QCOMPARE(PYXIconLoader::staticLoad(path).cacheKey(), red.cacheKey());
    PYXIconLoader::staticClearCache();
    QCOMPARE(colourAt(PYXIconLoader::staticLoad(path), 16, {3, 3}), QColor(Qt::green));
    QVERIFY(PYXIconLoader::staticSetOverrideIcon(path, red).isNull());
    QCOMPARE(PYXIconLoader::staticLoad(path).cacheKey(), red.cacheKey());
    QCOMPARE(PYXIconLoader::staticSetOverrideIcon(path, {}).cacheKey(), red.cacheKey());
    QVERIFY(PYXIconLoader::staticLoad(path).isNull());
    QVERIFY(PYXIconLoader::staticHasOverrideIcon(path));
    QVERIFY(PYXIconLoader::staticRemoveOverrideIcon(path).isNull());
    QVERIFY(!PYXIconLoader::staticLoad(path).isNull());
    QVERIFY(PYXIconLoader::hasInstance());
}

void tst_PYXIconLoader::noticesNewFiles()
{
    IconFolder folder;
    folder.draw("a_normal_off.png");
    namespace fs = std::filesystem;
    std::error_code ignored;
    fs::last_write_time(folder.path({}).toStdString(),
                        fs::file_time_type::clock::now() - std::chrono::hours(1), ignored);
    PYXIconLoader loader;
    QCOMPARE(imagesOf(loader, folder.path("a")).size(), 1);
    folder.draw("b_normal_off.png");
    QCOMPARE(imagesOf(loader, folder.path("b")).size(), 1);
    folder.draw("c_normal_off.png"); // within the same moment, as the file system may see it
    QCOMPARE(imagesOf(loader, folder.path("c")).size(), 1);
}

void tst_PYXIconLoader::survivesListeners()
{
    IconFolder folder;
    folder.draw("a_normal_off.ico");
    auto *const loader = new PYXIconLoader;
    int count = 0;
    connect(loader, &PYXIconLoader::si_imageLoaded, loader, [&] {
        ++count;
        QVERIFY(!loader->load(folder.path("a")).isNull());
        delete loader;
    });
    QVERIFY(!loader->load(folder.path("a")).isNull());
    QCOMPARE(count, 1);
}

void tst_PYXIconLoader::showsTheIconOfAFile()
{
    IconFolder folder;
    QVERIFY(PYXIconLoader::staticLoadFromModule(folder.path("missing.exe"), 0).isNull());
    const QIcon icon = PYXIconLoader::staticLoadFromModule(QCoreApplication::applicationFilePath(), 0);
    QVERIFY(!icon.pixmap(16).isNull());
}

int main(int argc, char *argv[])
{
    const bool bProbe = argc == 3 && qstrcmp(argv[1], "--probe") == 0;
    if (bProbe && qstrcmp(argv[2], "no screen") == 0) {
        QCoreApplication app(argc, argv);
        IconFolder folder;
        folder.write("a_normal_off.svg", IconFolder::svg(Qt::red));
        return PYXIconLoader().load(folder.path("a")).isNull() ? 0 : 1;
    }
    if (bProbe)
        qputenv("QT_SCALE_FACTOR", argv[2]);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, bProbe);
    QApplication app(argc, argv);
    if (bProbe) {
        std::printf("blurred: %d\n", blurredSizes(QByteArray(argv[2]).toDouble()));
        return 0;
    }
    tst_PYXIconLoader test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_PYXIconLoader.moc"
