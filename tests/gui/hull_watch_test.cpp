// HullWatch, which tells the windows beside the board when to compute
// again: what the board does without changing the hull (a redraw at a
// new scale, Developer, a station, the water line) is not a change; a
// changed plank, thickness or mass is, once.
#include "windows/hull_watch.h"

#include <QtTest>

#include "board/plate_drawing.h"
#include "board/recording_surface.h"
#include "board/station_drawing.h"
#include "board/views.h"
#include "development/hull_fixture.h"

using namespace tolmar;

class HullWatchTest : public QObject {
  Q_OBJECT
 private slots:
  void whatTheBoardDoesIsNoChange() {
    auto h = fixture::defaultHull();
    gui::HullWatch watch(*h);
    QVERIFY(!watch.changed());
    RecordingSurface small(9000, 6000), large(24000, 15000);
    dessine(small, *h, 1);
    dessine(large, *h, 1);
    developerDisplay(large, *h, 1);
    h->stationAtX = 1.8;
    drawStation(large, *h);
    h->langue = 1 - h->langue;
    QVERIFY(!watch.changed());
  }

  void aChangedHullIsSeenOnce() {
    auto h = fixture::defaultHull();
    gui::HullWatch watch(*h);
    h->plankThick(2) = 0.012;
    QVERIFY(watch.changed());
    QVERIFY(!watch.changed());
    h->equipMass(1) = 80;
    QVERIFY(watch.changed());
    *h = *fixture::manyLineHull();
    QVERIFY(watch.changed());
    QVERIFY(!watch.changed());
  }
};

QTEST_MAIN(HullWatchTest)
#include "hull_watch_test.moc"
