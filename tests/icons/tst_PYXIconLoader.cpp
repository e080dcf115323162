// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ChildProcess.h"
#include "IconFolder.h"
#include "PYXIconLoader.h"
#include "PYXRuntimeCenter.h"
#include "RecordingTracer.h"

#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <filesystem>

using namespace PYXRuntime;

Q_DECLARE_METATYPE(QIcon::Mode)
Q_DECLARE_METATYPE(QIcon::State)

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
    void findsFilesByModeAndState_data();
    void findsFilesByModeAndState();
    void tellsTheBaseNameItLooksFor_data();
    void tellsTheBaseNameItLooksFor();
    void leavesOutWhatCannotBeRead_data();
    void leavesOutWhatCannotBeRead();
    void derivesModesAndSizesLikeQIcon();
    void isSharpAtEveryRatio_data();
    void isSharpAtEveryRatio();
    void isEmptyWithoutScreens();
    void sizesOfDrawingsAreAbidedBy();
    void animatedDrawingsStandStill();
    void loadsOneModeAndState();
    void keepsAndOverridesIcons();
    void noticesNewFiles();
    void countsRequests();
    void survivesListeners();
    void showsTheIconOfAFile();
};

void tst_PYXIconLoader::findsFilesByModeAndState_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("images");
    QTest::addColumn<QString>("warning");
    const QStringList none;
    QTest::newRow("untagged file") << "save"
                                   << QStringList{"save_normal_off.png", "save_disabled_off.png", "save.png"}
                                   << QStringList{"normal off 16", "disabled off 16"}
                                   << Ignored.arg("save.png");
    QTest::newRow("folder, SVG") << "save" << QStringList{"normal_on/save.svg"}
                                 << QStringList{"normal on 48", "normal on 32", "normal on 24",
                                                "normal on 16"}
                                 << "";
    QTest::newRow("several images") << "save" << QStringList{"save_active_on.ico"}
                                    << QStringList{"active on 16", "active on 32"} << "";
    QTest::newRow("both places") << "save" << QStringList{"selected_off/save.png", "save_selected_off.png"}
                                 << QStringList{"selected off 16", "selected off 16"} << "";
    QTest::newRow("any order and case")
        << "save" << QStringList{"save_OFF_32x32_Normal.png"} << QStringList{"normal off 16"} << "";
    QTest::newRow("others beside it")
        << "save" << QStringList{"save_normal_off.png", "save_all_normal_off.png", "saves.png"}
        << QStringList{"normal off 16"} << "";
    QTest::newRow("others in the folder")
        << "save" << QStringList{"normal_off/save.png", "normal_off/save_all.png", "normal_off/Save.bmp"}
        << QStringList{"normal off 16"} << "Unspecified files are ignored [Save.bmp, save_all.png]";
    QTest::newRow("tags after dots") << "save" << QStringList{"save.disabled.on.png", "save_normal_on.png"}
                                     << QStringList{"normal on 16"} << Ignored.arg("save.disabled.on.png");
    QTest::newRow("path with tags") << "save_48x48_normal_off" << QStringList{"save_normal_off.png"}
                                    << QStringList{"normal off 16"} << "";
    QTest::newRow("word inside a name") << "print_selected_all" << QStringList{"print_all_normal_on.png"}
                                        << QStringList{"normal on 16"} << "";
    QTest::newRow("no wildcard") << "s[a]e" << QStringList{"sae_normal_off.png", "s[a]e_normal_off.png"}
                                 << QStringList{"normal off 16"} << "";
}

void tst_PYXIconLoader::findsFilesByModeAndState()
{
    QFETCH(QString, base);
    QFETCH(QStringList, files);
    QFETCH(QStringList, images);
    QFETCH(QString, warning);
    IconFolder folder;
    for (const QString &file : files)
        folder.draw(file);
    if (!warning.isEmpty())
        expectWarning(warning);
    PYXIconLoader loader;
    QCOMPARE(imagesOf(loader, folder.path(base)), images);
}

void tst_PYXIconLoader::tellsTheBaseNameItLooksFor_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("baseName");
    QTest::newRow("plain") << "save"
                           << "save";
    QTest::newRow("size, mode, state") << "save_32x32_normal_off.png"
                                       << "save";
    QTest::newRow("dots") << "save.disabled.on.svg"
                          << "save";
    QTest::newRow("dashes, capitals") << "save-16X16-Normal-ON"
                                      << "save";
    QTest::newRow("no tag without a separator") << "common32x32normal"
                                                << "common32x32normal";
    QTest::newRow("size cut short") << "save_32x"
                                    << "save_32x";
    QTest::newRow("tag that another one leaves") << "save_no_offrmal"
                                                 << "save_normal";
    QTest::newRow("only a tag") << "_normal_off"
                                << "";
    QTest::newRow("wildcard alone") << "*"
                                    << "*";
    QTest::newRow("placeholder") << "%2"
                                 << "%2";
    QTest::newRow("no Unicode") << QString(QChar(0xD800)) + "/save"
                                << "save";
}

void tst_PYXIconLoader::tellsTheBaseNameItLooksFor()
{
    QFETCH(QString, name);
    QFETCH(QString, baseName);
    IconFolder folder;
    folder.draw("_normal_off.png");
    expectWarning(NotFound.arg(folder.path(name), baseName));
    QVERIFY(PYXIconLoader().load(folder.path(name)).isNull());
}

void tst_PYXIconLoader::leavesOutWhatCannotBeRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty file") << "a_normal_off.png" << QByteArray();
    QTest::newRow("cut short") << "a_normal_off.png" << IconFolder::png(16, Qt::red).left(40);
    QTest::newRow("no SVG") << "a_normal_off.svg" << QByteArray("<html/>");
    QTest::newRow("huge SVG")
        << "a_normal_off.svg"
        << QByteArray("<svg xmlns='http://www.w3.org/2000/svg'>").leftJustified(5'000'000) + "</svg>";
    QTest::newRow("hollow ICO") << "a_normal_off.ico" << QByteArray("\0\0\1\0\xFF\xFF", 6);
    QTest::newRow("huge picture") << "a_normal_off.pbm"
                                  << QByteArray("P4 4096 4096 ") + QByteArray(4096 * 512, '\0');
}

void tst_PYXIconLoader::leavesOutWhatCannotBeRead()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    IconFolder folder;
    folder.write(name, bytes);
    PYXIconLoader loader;
    expectWarning(NotFound.arg(folder.path("a"), "a"));
    QVERIFY(loader.load(folder.path("a")).isNull());
    folder.draw("a_disabled_on.png");
    QCOMPARE(imagesOf(loader, folder.path("a")),
             QStringList("disabled on 16")); // the empty icon was not kept
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

void tst_PYXIconLoader::isSharpAtEveryRatio_data()
{
    QTest::addColumn<QString>("ratio");
    for (const char *ratio : {"1", "1.25", "1.5", "2"})
        QTest::newRow(ratio) << ratio;
}

void tst_PYXIconLoader::isSharpAtEveryRatio()
{
    QFETCH(QString, ratio);
    const ChildResult result = runOwnProbe(ratio);
    QCOMPARE(result.output.trimmed(), QString("blurred: 0"));
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

void tst_PYXIconLoader::animatedDrawingsStandStill()
{
    struct TimerCounter : QObject
    {
        bool eventFilter(QObject *object, QEvent *event) override
        {
            const auto *const timer = qobject_cast<QTimer *>(object);
            count += timer != nullptr && timer != &own && event->type() == QEvent::Timer ? 1 : 0;
            return false;
        }
        QTimer own;
        int count = 0;
    };
    IconFolder folder;
    folder.write("a_normal_off.svg",
                 "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 9 9'><rect width='9' height='9'>"
                 "<animateTransform attributeName='transform' type='rotate' from='0' to='360' dur='2s'/>"
                 "</rect></svg>");
    PYXIconLoader loader;
    QVERIFY(!loader.load(folder.path("a")).isNull());
    TimerCounter counter;
    qApp->installEventFilter(&counter);
    QSignalSpy later(&counter.own, &QTimer::timeout);
    counter.own.start(150); // five frames
    QVERIFY(later.wait());
    QCOMPARE(counter.count, 0);
}

void tst_PYXIconLoader::loadsOneModeAndState()
{
    IconFolder folder;
    folder.draw("a_normal_off.png", Qt::red);
    folder.draw("a_disabled_off.png", Qt::green);
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
    PYXIconLoader::destroyInstance();
    QVERIFY(!PYXIconLoader::hasInstance());
    QCOMPARE(PYXIconLoader::getInstance()->objectName(), QString("PYXIconLoader(defaultInstance)"));
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

void tst_PYXIconLoader::countsRequests()
{
    IconFolder folder;
    folder.draw("a_normal_off.png");
    folder.draw("b_normal_off.png");
    PYXRuntimeCenter::setEnabled_pyxDebug("PYXIconLoader", true);
    PYXRuntimeCenter::setEnabled_pyxDebugToTrace(true);
    const QStringList traces = tracesOf([&] {
        PYXIconLoader().setObjectName("nobody asks this one");
        PYXIconLoader loader;
        loader.load(folder.path("a"));
        loader.clearCache();
        for (int i = 0; i < 2; ++i)
            loader.load(folder.path("b"));
        loader.setOverrideIcon(folder.path("b"), {});
        loader.load(folder.path("b"));
        expectWarning(NotFound.arg(folder.path("c"), "c"));
        loader.load(folder.path("c"));
    });
    PYXRuntimeCenter::setEnabled_pyxDebugToTrace(false);
    QStringList texts;
    for (const QString &trace : traces)
        texts += trace.section('|', 1, 1);
    QCOMPARE(texts, (QStringList{"PYXIconLoader (nobody asks this one) - no icons loaded",
                                 "PYXIconLoader (PYXIconLoader) - Statistics", "3 - " + folder.path("b"),
                                 "1 - " + folder.path("a")}));
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
