// The development check window on the default hull: a row per plate in its
// verdict's colour, the factor re-checking at once, the board hook called
// by its button, and both languages.
#include "windows/devcheck_window.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

#include "development/hull_fixture.h"

using namespace tolmar;

class DevCheckWindowTest : public QObject {
  Q_OBJECT
 private slots:
  void init() {
    QCoreApplication::setOrganizationName("tolmar-test-devcheck");
    QSettings().clear();
  }

  void rowsColoursAndFactor() {
    const auto h = fixture::defaultHull();
    int drawn = 0;
    gui::DevCheckWindow w(
        nullptr, *h, [&](const std::vector<DevelopedPlate>& p, const devcheck::CheckReport& r) {
          QCOMPARE(p.size(), r.plates.size());
          ++drawn;
        });
    QCOMPARE(w.table()->rowCount(), static_cast<int>(developAll(*h).size()));
    QCOMPARE(w.table()->item(0, 0)->text(), QString("p00"));
    QCOMPARE(w.table()->horizontalHeaderItem(0)->text(), QString("Plaque"));
    const QColor green(0, 140, 0);
    QCOMPARE(w.table()->item(0, 10)->foreground().color(), green);
    // A plywood a hundred times stiffer: the bottom will not bend.
    w.factor()->setValue(10);
    QCOMPARE(w.report().factor, 10.0);
    QCOMPARE(w.table()->item(0, 10)->foreground().color(), QColor(210, 0, 0));
    QTest::mouseClick(w.drawButton(), Qt::LeftButton);
    QCOMPARE(drawn, 1);
    // Remembered for the next window.
    QCOMPARE(QSettings().value("devcheck/factor").toDouble(), 10.0);
  }

  void english() {
    auto h = fixture::defaultHull();
    h->langue = 1;
    gui::DevCheckWindow w(nullptr, *h, {});
    QCOMPARE(w.windowTitle(), QString("Development check"));
    QCOMPARE(w.table()->horizontalHeaderItem(0)->text(), QString("Plate"));
    QVERIFY(w.notes()->text().contains("TT-003A"));
  }
};

QTEST_MAIN(DevCheckWindowTest)
#include "devcheck_window_test.moc"
