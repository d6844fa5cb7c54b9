// The development check on the board: a hull made with one plank too thick
// to bend and one only just bending, its patterns drawn where Developer
// draws the same plates and in their verdicts' colours, the legend, the
// window's rows in those colours, and the window checking again when the
// board redraws a changed hull.  Pictures of the window and the board when
// TOLMAR_SCREENSHOTS names a folder:
//   TOLMAR_SCREENSHOTS=docs xvfb-run -a -s "-screen 0 1600x1000x24"
//     env QT_QPA_PLATFORM=xcb build/tests/gui/devcheck_board_test
#include <QDir>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <map>

#include "board/plate_drawing.h"
#include "board/view_map.h"
#include "board_session_util.h"
#include "devcheck/check_table.h"
#include "devcheck/checked_drawing.h"
#include "development/hull_fixture.h"

using namespace tolmar;
using namespace tolmar::devcheck;
using C = board::BoardControl;

namespace {

QRgb qrgbOf(Colour c) { return qRgb(c & 0xff, (c >> 8) & 0xff, (c >> 16) & 0xff); }

// The default hull with every line in a colour of its own (so that each
// plate of Developer's figure can be told by its colour), the bottom and
// planks 3 and 4 in 4 mm plywood, plank 1 in 15 mm (tight on its bend
// along, 4.9 m where 15 mm plywood needs 4.5 m) and plank 2 in 25 mm (8 m
// needed, 4.2 m there: it will not bend).
std::unique_ptr<HullStore> oneTooStiffPlank(int langue) {
  auto h = fixture::defaultHull();
  h->langue = static_cast<i16>(langue);
  for (int l = 0; l <= kMaxLine; ++l) h->lineColor(l) = static_cast<float>(rgb(20 + 4 * l, 40, 90));
  for (int k = 0; k <= kMaxLine; ++k) h->plankThick(k) = 0.004;
  h->plankThick(1) = 0.015;
  h->plankThick(2) = 0.025;
  h->transomThick = 0.012;
  return h;
}

// The pixels of one colour.
std::vector<QPoint> pixelsOf(const QImage& img, QRgb colour) {
  std::vector<QPoint> out;
  for (int y = 0; y < img.height(); ++y)
    for (int x = 0; x < img.width(); ++x)
      if ((img.pixel(x, y) & 0xFFFFFF) == (colour & 0xFFFFFF)) out.push_back({x, y});
  return out;
}

// The share of `points` that have a pixel of `colour` in `img` at most
// `reach` pixels away.
double shareNear(const std::vector<QPoint>& points, const QImage& img, QRgb colour, int reach) {
  if (points.empty()) return 0;
  int near = 0;
  for (const QPoint& p : points) {
    bool found = false;
    for (int dy = -reach; dy <= reach && !found; ++dy)
      for (int dx = -reach; dx <= reach && !found; ++dx) {
        const QPoint q = p + QPoint(dx, dy);
        found = img.rect().contains(q) && (img.pixel(q) & 0xFFFFFF) == (colour & 0xFFFFFF);
      }
    near += found;
  }
  return double(near) / double(points.size());
}

const PlateCheck& row(const CheckReport& r, const std::string& name) {
  for (const PlateCheck& c : r.plates)
    if (c.name == name && !c.withLap) return c;
  static const PlateCheck none;
  return none;
}

void screenshot(QWidget& w, const QString& name) {
  const QString folder = qEnvironmentVariable("TOLMAR_SCREENSHOTS");
  if (folder.isEmpty()) return;
  QVERIFY(QTest::qWaitForWindowExposed(&w));
  QTest::qWait(50);
  QVERIFY(w.grab().save(QDir(folder).filePath(name + ".png")));
}

}  // namespace

class DevCheckBoardTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() {
    test::quietOffscreen();
    QCoreApplication::setOrganizationName("tolmar-test-devcheck-board");
    QSettings().clear();
  }
  void patternsWhereDeveloperDrawsThemInTheirVerdictsColours();
  void boardButtonLegendAndFollow_data();
  void boardButtonLegendAndFollow();
};

void DevCheckBoardTest::patternsWhereDeveloperDrawsThemInTheirVerdictsColours() {
  auto h = oneTooStiffPlank(1);
  const QSize dots(1200, 700);
  qtdraw::ImageSurface views(dots);
  dessine(views, *h, 1);  // the scale and origins of the board
  const std::vector<DevelopedPlate> plates = developAll(*h);
  const CheckReport r = checkDevelopment(*h, plates);
  QCOMPARE(row(r, "p00").verdict, Verdict::fits);
  QCOMPARE(row(r, "p01").verdict, Verdict::tight);
  QCOMPARE(row(r, "p02").verdict, Verdict::willNotBend);
  QCOMPARE(row(r, "p03").verdict, Verdict::fits);
  QCOMPARE(row(r, "p04").verdict, Verdict::fits);
  QCOMPARE(row(r, "transom").verdict, Verdict::fits);

  // Developer's own figure alone, and the checked patterns alone.
  qtdraw::ImageSurface developer(dots);
  HullStore forDeveloper = *h;
  developerDisplay(developer, forDeveloper, 1);
  const QImage dev = developer.picture();
  qtdraw::ImageSurface checked(dots);
  drawCheckedPlates(checked, *h, plates, r);
  const QImage chk = checked.picture();

  const QRgb green = qrgbOf(verdictColour(Verdict::fits));
  const QRgb orange = qrgbOf(verdictColour(Verdict::tight));
  const QRgb red = qrgbOf(verdictColour(Verdict::willNotBend));
  // Nothing but the three colours on white.
  std::map<QRgb, int> count;
  for (int y = 0; y < chk.height(); ++y)
    for (int x = 0; x < chk.width(); ++x) ++count[chk.pixel(x, y) & 0xFFFFFF];
  QCOMPARE(count.size(), std::size_t{4});
  QVERIFY(count[0xFFFFFF & green] > 1000);
  QVERIFY(count[0xFFFFFF & orange] > 500);
  QVERIFY(count[0xFFFFFF & red] > 500);

  // Each plate of Developer's figure (the bottom in the colour of line 0,
  // plank k in that of line k + 1, the transom in that of line 1) lies
  // under a pattern of its verdict's colour.
  const struct {
    const char* plate;
    int line;
    QRgb colour;
  } figures[] = {{"p00", 0, green}, {"p01", 2, orange}, {"p02", 3, red},
                 {"p03", 4, green}, {"p04", 5, green},  {"transom", 1, green}};
  std::map<QRgb, std::vector<QPoint>> developerOf;
  for (const auto& f : figures) {
    const std::vector<QPoint> dotted = pixelsOf(dev, qrgbOf(lineColour(*h, f.line)));
    QVERIFY2(dotted.size() > 100, f.plate);
    const double share = shareNear(dotted, chk, f.colour, 2);
    QVERIFY2(share > 0.9, qPrintable(QString("%1: %2").arg(f.plate).arg(share)));
    auto& all = developerOf[f.colour];
    all.insert(all.end(), dotted.begin(), dotted.end());
  }
  // And each coloured pattern lies on Developer's figure of a plate of
  // that verdict: the red one on plank 2 alone, the orange one on plank 1.
  for (const QRgb colour : {green, orange, red}) {
    QImage onlyThese(dots, QImage::Format_RGB32);
    onlyThese.fill(Qt::white);
    for (const QPoint& p : developerOf[colour]) onlyThese.setPixel(p, colour);
    const double share = shareNear(pixelsOf(chk, colour), onlyThese, colour, 3);
    QVERIFY2(share > 0.95, qPrintable(QString("%1: %2").arg(colour, 0, 16).arg(share)));
  }
}

void DevCheckBoardTest::boardButtonLegendAndFollow_data() {
  QTest::addColumn<int>("langue");
  QTest::newRow("en") << 1;
  QTest::newRow("fr") << 0;
}

void DevCheckBoardTest::boardButtonLegendAndFollow() {
  QFETCH(int, langue);
  const QString tag = langue ? "-en" : "-fr";
  test::Started p;
  p.createAndValidate();
  gui::DessinWindow& board = p.board();
  p.h() = *oneTooStiffPlank(langue);
  board.state().stepIndex = 1;
  board.dessineAction();
  QEvent activate(QEvent::WindowActivate);
  QApplication::sendEvent(&board, &activate);
  QVERIFY(board.devCheckAction()->isEnabled());
  QCOMPARE(board.devCheckAction()->text(),
           langue ? QString("Development check…") : QString("Contrôle du développement…"));
  board.devCheckAction()->trigger();
  gui::DevCheckWindow* w = board.devCheck();
  QVERIFY(w);
  QCOMPARE(w->windowTitle(),
           langue ? QString("Development check") : QString("Contrôle du développement"));

  // The rows and the legend in the colours the board will show.
  const QRgb red = qrgbOf(verdictColour(Verdict::willNotBend));
  const QRgb orange = qrgbOf(verdictColour(Verdict::tight));
  const QRgb green = qrgbOf(verdictColour(Verdict::fits));
  QTableWidget* t = w->table();
  const int last = t->columnCount() - 1;
  QCOMPARE(t->item(2, 0)->text(), QString("p02"));
  QCOMPARE(t->item(2, last)->foreground().color().rgb(), red);
  QCOMPARE(t->item(1, last)->foreground().color().rgb(), orange);
  QCOMPARE(t->item(0, last)->foreground().color().rgb(), green);
  for (const Verdict v : {Verdict::fits, Verdict::tight, Verdict::willNotBend}) {
    QLabel* l = w->legend(v);
    QVERIFY(l->text().endsWith(QString::fromStdString(verdictText(v, langue))));
    QCOMPARE(l->palette().color(QPalette::WindowText).rgb(), qrgbOf(verdictColour(v)));
  }
  // A deck and the transom by their names in the window's language.
  QStringList names;
  for (int r = 0; r < t->rowCount(); ++r) names << t->item(r, 0)->text();
  QVERIFY(names.contains(langue ? "transom" : "tableau"));
  QVERIFY(names.contains(langue ? "deck 1" : "pont 1"));
  screenshot(*w, "devcheck" + tag);

  // The button: the patterns over the board's picture, as drawn alone on
  // a blank picture of the same size, and the legend in the corner.
  const QImage before = board.plan().picture();
  QTest::mouseClick(w->drawButton(), Qt::LeftButton);
  const QImage after = board.plan().picture();
  qtdraw::ImageSurface alone(after.size());
  const std::vector<DevelopedPlate> plates = developAll(p.h());
  drawCheckedPlates(alone, p.h(), plates, checkDevelopment(p.h(), plates));
  const QImage patterns = alone.picture();
  int drawn = 0, differ = 0;
  for (int y = 0; y < patterns.height(); ++y)
    for (int x = 0; x < patterns.width(); ++x) {
      if ((patterns.pixel(x, y) & 0xFFFFFF) == 0xFFFFFF) continue;
      ++drawn;
      differ += after.pixel(x, y) != patterns.pixel(x, y);
    }
  QVERIFY(drawn > 2000);
  QCOMPARE(differ, 0);
  QVERIFY(pixelsOf(before, red).empty());
  const QImage corner = after.copy(after.width() * 2 / 3, after.height() * 3 / 4, after.width() / 3,
                                   after.height() / 4);
  for (const QRgb colour : {green, orange, red}) QVERIFY(pixelsOf(corner, colour).size() > 20);
  screenshot(board, "devcheck-board" + tag);

  // Plank 2 in 4 mm: once the board is redrawn the window checks again,
  // without being opened anew.
  p.h().plankThick(2) = 0.004;
  QCOMPARE(row(w->report(), "p02").verdict, Verdict::willNotBend);
  board.dessineAction();
  QCOMPARE(board.devCheck(), w);
  QCOMPARE(row(w->report(), "p02").verdict, Verdict::fits);
  QCOMPARE(t->item(2, last)->foreground().color().rgb(), green);
  QCOMPARE(t->item(2, last)->text(), QString::fromStdString(verdictText(Verdict::fits, langue)));
  w->close();
}

QTEST_MAIN(DevCheckBoardTest)
#include "devcheck_board_test.moc"
