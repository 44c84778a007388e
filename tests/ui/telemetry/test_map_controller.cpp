#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <QApplication>
#include <QtTest>

#include <vector>

#include "core/telemetry/orvo_clip_data.h"
#include "ui/telemetry/map_controller.h"

using tarvik::MapController;
using tarvik::OrvoClipData;

namespace {

struct Fix {
    float lat, lng;
};

OrvoClipData clipWithFixes(const std::vector<Fix>& fixes, int gpsCount) {
    OrvoClipData data;
    data.setClipDataCount(static_cast<int>(fixes.size()));
    for (size_t i = 0; i < fixes.size(); ++i)
        data.storeSample(static_cast<int>(i), 0, 0, 0, fixes[i].lat, fixes[i].lng, 40);
    data.setGpsDataCount(gpsCount);
    return data;
}

QString polyLine(const char* points) { return QStringLiteral("addPolyLine('%1', 'red', 4, 0.5)").arg(points); }

QJsonObject mapState(QWebEngineView& view) {
    QJsonObject state;
    bool done = false;
    view.page()->runJavaScript(QStringLiteral("JSON.stringify(window.mapState ? mapState() : {})"),
                               [&](const QVariant& v) {
                                   state = QJsonDocument::fromJson(v.toString().toUtf8()).object();
                                   done = true;
                               });
    if (!QTest::qWaitFor([&] { return done; }, 5000)) qWarning("map page did not answer");
    return state;
}

}  // namespace

class TestMapController : public QObject {
    Q_OBJECT
private slots:
    void routeCollapsesRepeatsAndSkipsLeadingNoFix() {
        QCOMPARE(MapController::routeScript(OrvoClipData()), polyLine(""));

        const std::vector<Fix> fixes = {
            {0, 0}, {0, 0},                // no fix yet: equal to the initial previous point
            {37.5f, 127.25f}, {37.5f, 127.25f}, {37.5f, 127.25f},
            {37.5f, 127.5f},
            {37.5f, 127.25f},              // coming back is a new point
            {0, 0},                        // losing the fix mid-route is a point too
            {38.0f, 128.0f},
        };
        QCOMPARE(MapController::routeScript(clipWithFixes(fixes, 9)),
                 polyLine("127.250000,37.500000|127.500000,37.500000|127.250000,37.500000|0.000000,0.000000|"
                          "128.000000,38.000000"));

        // Only the first gpsDataCount samples are walked, whatever lies beyond.
        QCOMPARE(MapController::routeScript(clipWithFixes(fixes, 4)), polyLine("127.250000,37.500000"));

        // A count past the stored samples meets the no-position values, not garbage.
        QCOMPARE(MapController::routeScript(clipWithFixes({{1.0f, 2.0f}}, 3)),
                 polyLine("2.000000,1.000000|512.000000,512.000000"));
    }

    void commandsBeforeLoadAreQueuedAndBounded() {
        MapController controller(nullptr);
        QVERIFY(!controller.isPageReady());
        controller.removeMapLine();
        controller.addRoute(clipWithFixes({{1, 2}, {3, 4}}, 2));
        controller.moveToLatLng(1, 2);
        controller.moveToLatLng(3, 4);
        controller.load();
        // initialize() first, then the route, then only the latest position.
        QCOMPARE(controller.pendingScripts(),
                 QStringList({"initialize()", "removePolyLine()",
                              polyLine("2.000000,1.000000|4.000000,3.000000"),
                              "MapMoveToAuto(4.000000,3.000000,-1)"}));

        // A new clip's route replaces the queued one.
        controller.removeMapLine();
        controller.addRoute(clipWithFixes({{5, 6}}, 1));
        QCOMPARE(controller.pendingScripts().size(), 4);
        QCOMPARE(controller.pendingScripts().at(3), polyLine("6.000000,5.000000"));

        // A page that never arrives cannot make the backlog grow without bound,
        // and the set-up call survives the trimming.
        for (int i = 0; i < 5000; ++i) {
            controller.run(QStringLiteral("console.log(%1)").arg(i));
            controller.moveToLatLng(10 + i * 0.001f, 20);
        }
        QVERIFY(controller.pendingScripts().size() <= MapController::kMaxPendingScripts);
        QCOMPARE(controller.pendingScripts().front(), QString("initialize()"));
        QVERIFY(controller.pendingScripts().contains("console.log(4999)"));
        QCOMPARE(controller.pendingScripts().filter("MapMoveToAuto").size(), 1);
    }

    void pageShowsRouteAndFollowsTheCar() {
        QWebEngineView view;
        view.resize(480, 360);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));

        MapController controller(&view);
        QSignalSpy ready(&controller, &MapController::pageReady);

        // A short drive along a Seoul avenue, with a no-fix start and a stop.
        std::vector<Fix> fixes = {{0, 0}, {0, 0}};
        for (int i = 0; i < 60; ++i) {
            const float step = static_cast<float>(i / 2);  // every position twice
            fixes.push_back({37.5660f + step * 0.0002f, 126.9780f + step * 0.0003f});
        }
        const OrvoClipData drive = clipWithFixes(fixes, static_cast<int>(fixes.size()));

        // The controller talks to the page before it has loaded; nothing may be lost.
        controller.removeMapLine();
        controller.addRoute(drive);
        controller.moveToLatLng(fixes[2].lat, fixes[2].lng);
        controller.load();
        QVERIFY(ready.wait(20000) || ready.count() > 0);
        QVERIFY(ready.front().front().toBool() && controller.isPageReady());
        QVERIFY(controller.pendingScripts().isEmpty());

        QJsonObject state;
        QTRY_VERIFY_WITH_TIMEOUT((state = mapState(view)).value("initialized").toBool(), 10000);
        // A map has no browser menu (Back, Reload, View page source) on a right click.
        QTest::mouseClick(view.focusProxy() ? view.focusProxy() : &view, Qt::RightButton, {}, QPoint(240, 180));
        QTest::qWait(1000);
        QVERIFY(!QApplication::activePopupWidget());
        QVERIFY(state.value("scale").toBool());
        QVERIFY(state.value("markerImage").toBool());
        const QJsonArray route = state.value("route").toArray();
        QCOMPARE(route.size(), 30);
        // The route travels as text with six decimals, so float noise shows.
        QVERIFY(qAbs(route.first().toArray().at(0).toDouble() - 37.566) < 1e-5);
        QVERIFY(qAbs(route.first().toArray().at(1).toDouble() - 126.978) < 1e-5);
        QVERIFY(qAbs(route.last().toArray().at(0).toDouble() - 37.5718) < 1e-5);
        QVERIFY(qAbs(state.value("marker").toObject().value("lat").toDouble() - 37.566) < 1e-5);

        // A new clip without positions leaves no route behind.
        controller.removeMapLine();
        controller.addRoute(OrvoClipData());
        QTRY_COMPARE_WITH_TIMEOUT(mapState(view).value("route").toArray().size(), 0, 5000);
        controller.addRoute(drive);
        QTRY_COMPARE_WITH_TIMEOUT(mapState(view).value("route").toArray().size(), 30, 5000);

        // Without a network the page settles all the same.
        QTRY_VERIFY_WITH_TIMEOUT(mapState(view).value("offline").toBool() ||
                                     mapState(view).value("tilesLoaded").toInt() > 0, 15000);
    }
};

QTEST_MAIN(TestMapController)
#include "test_map_controller.moc"
