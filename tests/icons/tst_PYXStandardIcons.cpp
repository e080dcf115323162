// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "DataRows.h"
#include "IconFolder.h"
#include "PYXStandardIcons.h"
#include "RecordingTracer.h"

#include <QtGui/QPainter>
#include <QtTest/QtTest>

#include <algorithm>
#include <functional>

using namespace PYXRuntime;

namespace {

using Icons = PYXStandardIcons;

const QString Root(":/PYXRuntime/StandardIcons/");
constexpr uint OwnId = Icons::FirstFreeId;
const QColor Nothing(0, 0, 0, 0);

QIcon plain(const QColor &colour, int side = 48)
{
    return QIcon(QPixmap::fromImage(square(side, colour)));
}

/** A picture of what is drawn only in that part of the icon. */
QIcon partly(const QColor &colour, const QRect &part)
{
    QPixmap pixmap(48, 48);
    pixmap.fill(Qt::transparent);
    QPainter(&pixmap).fillRect(part, colour);
    return QIcon(pixmap);
}

bool looksAlike(const QIcon &a, const QIcon &b)
{
    return !a.isNull() && a.pixmap(32).toImage() == b.pixmap(32).toImage();
}

QElapsedTimer startedClock()
{
    QElapsedTimer clock;
    clock.start();
    return clock;
}

class Callback : public IStandardIconsCallback
{
public:
    QIcon standardIcon(uint id) override
    {
        ++count;
        return makeIcon ? makeIcon(id) : QIcon();
    }
    QString standardIconPath(uint) override { return path; }

    std::function<QIcon(uint)> makeIcon;
    QString path;
    int count = 0;
};

class CallbackObject : public QObject, public Callback
{
    Q_OBJECT
    Q_INTERFACES(PYXRuntime::IStandardIconsCallback)
};

/** Takes another one and itself away when it is asked. */
class LeavingCallback : public CallbackObject
{
    Q_OBJECT
public:
    explicit LeavingCallback(CallbackObject *other)
        : m_other(other)
    {
        path = "never asked for";
    }
    QIcon standardIcon(uint) override
    {
        delete m_other;
        delete this;
        return {};
    }

private:
    CallbackObject *m_other;
};

} // namespace

class tst_PYXStandardIcons : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { Icons::destroyInstance(); }
    void knowsEveryEnumerator();
    void everyIconHasImages();
    void everyImageBelongsToAnIcon();
    void fallsBackWhereAnIconIsMissing();
    void whatWins();
    void overridesAreTakenBack();
    void callbacksAnswerForTheirRange();
    void callbacksMayDoAnything();
    void eyeIsInterleaved();
    void paintsOverlays();
    void layersHaveModesAndStates();
    void slicesKeepTheirModes();
    void compositesAreAsSharpAsTheirParts();
    void cachesInBatches();
};

void tst_PYXStandardIcons::knowsEveryEnumerator()
{
    const QHash<QString, uint> ids = Icons::standardIconsEnum();
    const auto enumeration = QMetaEnum::fromType<Icons::eStandardIcon>();
    QCOMPARE(ids.size(), enumeration.keyCount());
    QCOMPARE(ids.size(), Icons::standardIconsEnumReverse().size());
    int withoutPath = 0;
    for (int i = 0; i < enumeration.keyCount(); ++i) {
        const QString name = enumeration.key(i);
        const uint id = uint(enumeration.value(i));
        QCOMPARE(ids.value(name, 99'999), id);
        QCOMPARE(Icons::standardIconsEnumReverse().value(id), name);
        const QString path = Icons::staticOriginalIconPath(id);
        withoutPath += path.isEmpty() ? 1 : 0;
        QVERIFY(path.isEmpty() || path.startsWith(Root));
    }
    QCOMPARE(withoutPath, 5);
    // The last of blocks, as applications know them: no enumerator is missing or too many before them.
    const QHash<QString, uint> marks{{"HelpDocument", 93},
                                     {"Button_Help", 0x1003},
                                     {"Sum", 0x2010},
                                     {"LED_Round_Yellow", 0x3008},
                                     {"Bullet_Black", 0x3101},
                                     {"Widget_LogMessages", 0x4002},
                                     {"Player_Document_Part", 0x5017},
                                     {"Browser_Home_New", 0x5102},
                                     {"InputSource_Soundcard", 0x6003},
                                     {"Pin_OnOff_Blue", 0x8003},
                                     {"Storage_Select", 0x9005},
                                     {"Image_Print", 0xA013},
                                     {"Display_No_Tool", 0xB00C},
                                     {"Overlay_Saved", 0xF00004}};
    for (auto mark = marks.begin(); mark != marks.end(); ++mark)
        QCOMPARE(ids.value("ekIcon_" + mark.key()), mark.value());
    QCOMPARE(Icons::staticOriginalIconPath(Icons::ekIcon_Overlay_Non_Scaled_Recording),
             Root + "Overlays/non_scaled/action_record");
}

void tst_PYXStandardIcons::everyIconHasImages()
{
    const QHash<QString, uint> ids = Icons::standardIconsEnum();
    for (auto entry = ids.begin(); entry != ids.end(); ++entry) {
        const QIcon icon = Icons::staticRegisteredIcon(entry.value());
        QCOMPARE(icon.isNull(), entry.value() == 0);
        for (const int side : {16, 24, 32, 48}) {
            const QImage image = icon.pixmap(side).toImage();
            QVERIFY2(icon.isNull() || image.size() == QSize(side, side), qUtf8Printable(entry.key()));
            const bool bEmpty = image == square(side, Nothing);
            QVERIFY2(icon.isNull() || bEmpty == (entry.value() == Icons::ekIcon_IconInvisibleIcon),
                     qUtf8Printable(entry.key()));
        }
        QVERIFY2(entry.value() < 4 || !looksAlike(icon, Icons::staticIconNotFoundIcon()),
                 qUtf8Printable(entry.key()));
    }
}

void tst_PYXStandardIcons::everyImageBelongsToAnIcon()
{
    QSet<QString> paths{Root + "icon_invisible", Root + "icon_not_found", Root + "icon_not_registered"};
    for (const uint id : Icons::standardIconsEnum())
        paths += Icons::staticOriginalIconPath(id);
    const QRegularExpression tags(
        "(_(normal|disabled|active|selected)_(on|off))?(_\\d+x\\d+)?\\.(svg|ico|png)$");
    const QRegularExpression folder("/(normal|disabled|active|selected)_(on|off)/");
    for (QDirIterator files(Root, QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
        const QString path = files.next().remove(tags).replace(folder, "/");
        QVERIFY2(paths.contains(path), qUtf8Printable(path));
    }
}

void tst_PYXStandardIcons::fallsBackWhereAnIconIsMissing()
{
    QVERIFY(Icons::staticRegisteredIcon(0).isNull());
    QVERIFY(looksAlike(Icons::staticRegisteredIcon(1), Icons::staticIconInvisibleIcon()));
    QVERIFY(looksAlike(Icons::staticRegisteredIcon(2), Icons::staticIconNotFoundIcon()));
    QVERIFY(looksAlike(Icons::staticRegisteredIcon(3), Icons::staticIconNotRegisteredIcon()));
    QVERIFY(!looksAlike(Icons::staticRegisteredIcon(2), Icons::staticRegisteredIcon(3)));
    QVERIFY(looksAlike(Icons::staticRegisteredIcon(OwnId), Icons::staticIconNotRegisteredIcon()));
    QVERIFY(looksAlike(Icons::staticOriginalIcon(OwnId), Icons::staticIconNotRegisteredIcon()));
    QVERIFY(looksAlike(Icons::staticRegisteredIcon(OwnId, QIcon::Normal, QIcon::On),
                       Icons::staticIconNotRegisteredIcon()));
    QVERIFY(Icons::staticRawRegisteredIcon(OwnId).isNull());
    QVERIFY(Icons::staticRawSlicedIcon(OwnId, {{}}).isNull());
    QVERIFY(Icons::staticRawRegisteredIcon(2).isNull());
    IconFolder folder;
    QVERIFY(Icons::staticRegisterIcon(OwnId, folder.path("none")).isEmpty());
    for (int i = 0; i < 2; ++i)
        QTest::ignoreMessage(
            QtWarningMsg, qUtf8Printable(QString("No image files found. baseFilePath [%1] => baseName [none]")
                                             .arg(folder.path("none"))));
    QVERIFY(looksAlike(Icons::staticRegisteredIcon(OwnId), Icons::staticIconNotFoundIcon()));
    QVERIFY(Icons::staticRawRegisteredIcon(OwnId).isNull());
    QCOMPARE(tracesOf([&] { QVERIFY(Icons::staticRegisterIcon(3, folder.path("none")).isEmpty()); }).size(),
             1);
    QCOMPARE(Icons::staticRegisteredIconPath(3), QString());
}

void tst_PYXStandardIcons::whatWins()
{
    IconFolder folder;
    folder.draw("own_normal_off.png", Qt::red, 48);
    folder.draw("called_normal_off.png", Qt::green, 48);
    const uint id = Icons::ekIcon_Save;
    const auto colour = [] {
        return colourAt(Icons::staticRegisteredIcon(Icons::ekIcon_Save), 48, {20, 20});
    };
    const QIcon builtin = Icons::staticRegisteredIcon(id);
    QCOMPARE(Icons::staticRegisterIcon(id, folder.path("own")), QString());
    QCOMPARE(colour(), QColor(Qt::red));
    QCOMPARE(Icons::staticRegisteredIconPath(id), folder.path("own"));
    Callback callback;
    QVERIFY(Icons::staticRegisterCallback(&callback));
    QCOMPARE(colour(), QColor(Qt::red)); // it has no answer
    callback.path = folder.path("called");
    QCOMPARE(colour(), QColor(Qt::green));
    callback.makeIcon = [](uint) { return plain(Qt::cyan); };
    QCOMPARE(colour(), QColor(Qt::cyan));
    QVERIFY(Icons::staticSetOverrideIcon(id, plain(Qt::blue)).isNull());
    QCOMPARE(colour(), QColor(Qt::blue));
    QVERIFY(looksAlike(Icons::staticOriginalIcon(id), builtin));
    Icons::staticRemoveOverrideIcon(id);
    QVERIFY(Icons::staticUnregisterCallback(&callback));
    QCOMPARE(Icons::staticRegisterIcon(id, {}), folder.path("own"));
    QCOMPARE(Icons::staticRegisteredIcon(id).cacheKey(), builtin.cacheKey());
}

void tst_PYXStandardIcons::overridesAreTakenBack()
{
    for (const uint id : {1U, 20U, 21U, 30U, 31U, OwnId})
        QVERIFY(Icons::staticSetOverrideIcon(id, plain(Qt::blue)).isNull());
    Icons::staticSetOverrideIcon(OwnId, 20);
    QVERIFY(looksAlike(Icons::staticOverrideIcon(OwnId), plain(Qt::blue)));
    QVERIFY(Icons::staticSetOverrideIcon(0, plain(Qt::blue)).isNull());
    QVERIFY(Icons::staticRegisteredIcon(0).isNull());
    Icons::staticRemoveOverrideIcons({1, 30});
    Icons::staticRemoveOverrideIcons(21, 0xFFFFFFF);
    QVERIFY(!Icons::staticHasOverrideIcon(1) && !Icons::staticHasOverrideIcon(21) &&
            !Icons::staticHasOverrideIcon(OwnId));
    QVERIFY(looksAlike(Icons::staticRemoveOverrideIcon(20), plain(Qt::blue)));
    QVERIFY(Icons::staticRemoveOverrideIcon(20).isNull());
    Icons::staticSetOverrideIcon(20, {}); // an empty icon hides as well
    QVERIFY(Icons::staticRegisteredIcon(20).isNull());
    Icons::staticClearOverrideIcons();
    QVERIFY(!Icons::staticRegisteredIcon(20).isNull());
}

void tst_PYXStandardIcons::callbacksAnswerForTheirRange()
{
    Callback older;
    Callback newer;
    older.makeIcon = [](uint) { return plain(Qt::red); };
    newer.makeIcon = [](uint id) { return id == OwnId + 1 ? QIcon() : plain(Qt::green); };
    Icons &icons = *Icons::getInstance();
    QVERIFY(icons.registerCallback(OwnId, OwnId + 9, &older));
    QVERIFY(icons.registerCallback(OwnId, OwnId + 4, &newer));
    QVERIFY(!icons.registerCallback(OwnId, OwnId + 4, &newer));
    QVERIFY(!icons.registerCallback(OwnId + 1, OwnId, &newer));
    QVERIFY(!icons.registerCallback(nullptr));
    QVERIFY(looksAlike(icons.registeredIcon(OwnId + 4), plain(Qt::green)));
    QVERIFY(looksAlike(icons.registeredIcon(OwnId + 1), plain(Qt::red)));
    QVERIFY(looksAlike(icons.registeredIcon(OwnId + 9), plain(Qt::red)));
    QVERIFY(icons.rawRegisteredIcon(OwnId + 10).isNull());
    QVERIFY(!icons.unregisterCallback(OwnId, OwnId + 9, &newer));
    QVERIFY(icons.unregisterCallback(OwnId, OwnId + 4, &newer));
    QVERIFY(looksAlike(icons.registeredIcon(OwnId + 4), plain(Qt::red)));
    QVERIFY(icons.registerCallback(&older));
    QVERIFY(!looksAlike(icons.registeredIcon(2), plain(Qt::red)));
    QVERIFY(icons.unregisterCallback(&older));
    QVERIFY(!icons.unregisterCallback(&older));
    QVERIFY(icons.rawRegisteredIcon(OwnId).isNull());
}

void tst_PYXStandardIcons::callbacksMayDoAnything()
{
    Icons &icons = *Icons::getInstance();
    // One that wraps what the id would give without it.
    Callback wrapping;
    wrapping.makeIcon = [&](uint id) { return icons.registeredIconOverlaid(id, id); };
    icons.registerCallback(&wrapping);
    QVERIFY(looksAlike(icons.registeredIcon(Icons::ekIcon_Save), icons.registeredIcon(Icons::ekIcon_Save)));
    QCOMPARE(wrapping.count, 2);
    icons.unregisterCallback(&wrapping);
    // One that takes itself and another one away while it is asked.
    auto *const other = new CallbackObject;
    icons.registerCallback(other);
    icons.registerCallback(new LeavingCallback(other));
    QVERIFY(icons.rawRegisteredIcon(OwnId).isNull());
}

void tst_PYXStandardIcons::eyeIsInterleaved()
{
    Icons &icons = *Icons::getInstance();
    const uint id = Icons::ekIcon_Overlay_Eye_Interleaved;
    const QImage eye =
        icons.registeredIconPixmap(Icons::ekIcon_Overlay_Eye, 24, QIcon::Normal, QIcon::On).toImage();
    const QImage noEye =
        icons.registeredIconPixmap(Icons::ekIcon_Overlay_Eye_No, 24, QIcon::Normal, QIcon::Off).toImage();
    QCOMPARE(icons.registeredIconPixmap(id, 24, QIcon::Normal, QIcon::On).toImage(), eye);
    QCOMPARE(icons.registeredIconPixmap(id, 24, QIcon::Normal, QIcon::Off).toImage(), noEye);
    QCOMPARE(icons.registeredIcon(id).cacheKey(), icons.registeredIcon(id).cacheKey());
    icons.setOverrideIcon(Icons::ekIcon_Overlay_Eye, plain(Qt::red));
    QCOMPARE(colourAt(icons.registeredIcon(id), 24, {0, 0}, QIcon::Active, QIcon::On), QColor(Qt::red));
    QCOMPARE(icons.builtinIconPixmap(id, 24, QIcon::Normal, QIcon::On).toImage(), eye);
}

void tst_PYXStandardIcons::paintsOverlays()
{
    using Helpers = QIconHelpers;
    Icons &icons = *Icons::getInstance();
    const uint base = OwnId;
    const uint overlay = OwnId + 1;
    const uint corner = OwnId + 2;
    const uint kept = Icons::ekIcon_Overlay_Non_Scaled_Recording;
    icons.setOverrideIcon(base, partly(Qt::red, {0, 24, 48, 24}));
    icons.setOverrideIcon(overlay, plain(Qt::blue));
    icons.setOverrideIcon(corner, partly(Qt::blue, {24, 24, 24, 24}));
    icons.setOverrideIcon(kept, partly(Qt::blue, {0, 0, 12, 12}));
    const QIcon overlaid = icons.registeredIconOverlaid(base, corner);
    const QIcon faint = icons.registeredIconOverlaidTransparent(base, overlay, 51);
    const QIcon two = icons.registeredIconAsOverlay(
        overlay, 0.25, Helpers::ekOverlayRegion_TopLeft | Helpers::ekOverlayRegion_Center);
    const QIcon automatic =
        icons.registeredIconAutoOverlaid(base, overlay, 0.25, Helpers::ekOverlayRegion_Corners);
    const QIcon forced = icons.registeredIconAutoOverlaidTransparent(base, overlay, 51, 0.25,
                                                                     Helpers::ekOverlayRegion_BottomLeft);
    const auto composed = [&icons](const QRectF &area) {
        struCompositeIconLayer layer =
            icons.composeIconLayer(overlay, 0.5, QIconHelpers::ekOverlayRegion_TopRight, 7);
        if (!area.isNull())
            layer.area = area;
        return icons.compositeIcon({{}, layer, {base, {}}});
    };
    const Rows<QIcon, QPoint, QColor> rows = {
        {"overlay over the icon", overlaid, {30, 30}, Qt::blue},
        {"icon beside the overlay", overlaid, {10, 30}, Qt::red},
        {"transparent over the icon", faint, {10, 30}, {204, 0, 51}},
        {"transparent over nothing", faint, {10, 10}, {0, 0, 255, 51}},
        {"region", two, {11, 11}, Qt::blue},
        {"beside the region", two, {12, 12}, Nothing},
        {"another region", two, {18, 29}, Qt::blue},
        {"no region", icons.registeredIconAsOverlay(overlay, 0.25, {}), {36, 36}, Qt::blue},
        {"the first empty corner", automatic, {40, 5}, Qt::blue},
        {"not the other one", automatic, {5, 5}, Nothing},
        {"the only candidate", forced, {5, 40}, {204, 0, 51}},
        {"one that keeps its size",
         icons.registeredIconAutoOverlaid(base, kept, 0.25, {}),
         {10, 10},
         Qt::blue},
        {"composed layer", composed({}), {24, 23}, Qt::blue},
        {"area out of bounds", composed({0.75, -1e9, 1e9, 2e9}), {40, 20}, Qt::blue},
        {"area that is none", composed({0, 0, qQNaN(), 1}), {5, 40}, Qt::red}};
    forRows(rows, [](const QIcon &icon, const QPoint &at, const QColor &colour) {
        const QColor painted = colourAt(icon, 48, at);
        const int difference =
            std::max({qAbs(painted.alpha() - colour.alpha()), qAbs(painted.red() - colour.red()),
                      qAbs(painted.green() - colour.green()), qAbs(painted.blue() - colour.blue())});
        QVERIFY2(difference <= 1, qUtf8Printable(painted.name(QColor::HexArgb))); // opacities are rounded
    });
    // A plain icon leaves no room: what is below is cut away around the overlay.
    icons.setOverrideIcon(base, plain(Qt::red));
    const QIcon clear = icons.registeredIconAutoOverlaid(base, overlay, 0.5, {});
    const std::pair<int, QColor> columns[] = {{24, Qt::blue}, {23, Nothing}, {22, Nothing}, {21, Qt::red}};
    for (const auto &[x, colour] : columns)
        QCOMPARE(colourAt(clear, 48, {x, 40}), colour);
}

void tst_PYXStandardIcons::layersHaveModesAndStates()
{
    QIcon twoFaced = plain(Qt::red);
    twoFaced.addPixmap(QPixmap::fromImage(square(48, Qt::green)), QIcon::Normal, QIcon::On);
    struCompositeIconLayer face;
    face.icon = twoFaced;
    face.drawnAs = {{{QIcon::Active, QIcon::Off}, {QIcon::Normal, QIcon::On}}};
    struCompositeIconLayer badge;
    badge.icon = plain(Qt::blue);
    badge.area = {0, 0, 0.5, 0.5};
    badge.shownIn = {{QIcon::Normal, QIcon::On}};
    const QIcon icon = Icons::staticCompositeIcon({face, badge});
    QCOMPARE(colourAt(icon, 48, {2, 2}), QColor(Qt::red));
    QCOMPARE(colourAt(icon, 48, {2, 2}, QIcon::Active), QColor(Qt::green));
    QCOMPARE(colourAt(icon, 48, {2, 2}, QIcon::Normal, QIcon::On), QColor(Qt::blue));
    QCOMPARE(colourAt(icon, 48, {40, 40}, QIcon::Normal, QIcon::On), QColor(Qt::green));
}

void tst_PYXStandardIcons::slicesKeepTheirModes()
{
    IconFolder folder;
    folder.draw("a_normal_off.png", Qt::red, 48);
    folder.draw("a_normal_on.png", Qt::green, 48);
    folder.draw("a_disabled_off.png", Qt::blue, 48);
    Icons &icons = *Icons::getInstance();
    icons.registerIcon(OwnId, folder.path("a"));
    const QIcon both = icons.slicedIcon(OwnId, {{QIcon::Normal, QIcon::On}, {QIcon::Disabled, QIcon::Off}});
    QCOMPARE(colourAt(both, 48, {9, 9}), QColor(Qt::green));
    QCOMPARE(colourAt(both, 48, {9, 9}, QIcon::Disabled), QColor(Qt::blue));
    const QIcon grey = icons.registeredIcon(OwnId, QIcon::Normal, QIcon::On);
    const QIcon reference = plain(Qt::green);
    QCOMPARE(grey.pixmap(48, QIcon::Disabled).toImage(), reference.pixmap(48, QIcon::Disabled).toImage());
    QVERIFY(icons.slicedIcon(OwnId, {}).isNull());
    const QIcon mixed =
        icons.interleavedIcon({{OwnId, QIcon::Disabled, QIcon::Off}, {0, QIcon::Normal, QIcon::Off}});
    QCOMPARE(colourAt(mixed, 48, {9, 9}), QColor(Qt::blue));
}

void tst_PYXStandardIcons::compositesAreAsSharpAsTheirParts()
{
    IconFolder folder;
    folder.draw("disc_normal_off.svg", Qt::blue);
    Icons &icons = *Icons::getInstance();
    icons.registerIcon(OwnId, folder.path("disc"));
    const QIcon disc = icons.registeredIcon(OwnId);
    const QIcon composite = icons.registeredIconAsOverlay(OwnId, 0.5, QIconHelpers::ekOverlayRegion_TopLeft);
    for (const int side : {16, 22, 24, 40, 96}) {
        const QImage part = composite.pixmap(side).toImage().copy(0, 0, side / 2, side / 2);
        QCOMPARE(part, disc.pixmap(side / 2).toImage());
    }
    QCOMPARE(icons.registeredIconOverlaid(OwnId, OwnId).actualSize({400, 300}), QSize(48, 48));
    QCOMPARE(composite.pixmap(400).size(), QSize(96, 96));
    QVERIFY(composite.availableSizes().contains({32, 32}));
}

void tst_PYXStandardIcons::cachesInBatches()
{
    Icons &icons = *Icons::getInstance();
    icons.setDelayLoadBatchSize(2);
    QCOMPARE(icons.delayLoadBatchSize(), 5);
    icons.setDelayLoadBatchSize(7);
    QSet<uint> asked;
    Callback callback;
    callback.makeIcon = [&asked](uint id) {
        asked += id;
        return plain(Qt::red);
    };
    icons.registerCallback(&callback);
    QSet<uint> ids;
    for (uint id = OwnId; id < OwnId + 24; ++id)
        ids += id;
    icons.delayedEnsureRegisteredIconsAreCached(ids);
    icons.resetDelayLoadBatchSize(); // for those that come now
    icons.delayedEnsureRegisteredIconsAreCached({OwnId + 100});
    QVERIFY(asked.isEmpty());
    // Whatever else the loop has to do comes between one batch and the next.
    int largestStep = 0;
    for (QElapsedTimer clock = startedClock(); asked.size() < 25 && clock.elapsed() < 10'000;) {
        const int before = asked.size();
        QCoreApplication::sendPostedEvents();
        largestStep = qMax(largestStep, asked.size() - before);
        QCoreApplication::processEvents(QEventLoop::ExcludeSocketNotifiers);
    }
    QCOMPARE(largestStep, 7);
    QCOMPARE(asked, ids + QSet<uint>{OwnId + 100});
    QCOMPARE(callback.count, 25);
    icons.directEnsureRegisteredIconsAreCached({OwnId + 200});
    QVERIFY(asked.contains(OwnId + 200));
}

QTEST_MAIN(tst_PYXStandardIcons)

#include "tst_PYXStandardIcons.moc"
