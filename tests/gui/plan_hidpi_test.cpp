// The board's picture on a display of pixel ratio 2 (QT_SCALE_FACTOR=2,
// set before the application starts): drawn with two pixels to a dot and
// painted one to one, not drawn at half resolution and scaled up; the
// drawing units stay twips of the dots, a pen keeps its width in dots, the
// mouse maps to the same units, and the exclusive-or band drawn twice
// leaves every pixel as it was.
#include <QPainter>

#include "board_session_util.h"

using namespace tolmar;
using test::Started;

namespace {

// 2 x 2 blocks on even pixels that do not hold one colour: none in a
// picture scaled up from half its resolution.
int unevenBlocks(const QImage& img) {
  int n = 0;
  for (int y = 0; y + 1 < img.height(); y += 2)
    for (int x = 0; x + 1 < img.width(); x += 2) {
      const QRgb c = img.pixel(x, y);
      n += img.pixel(x + 1, y) != c || img.pixel(x, y + 1) != c || img.pixel(x + 1, y + 1) != c;
    }
  return n;
}

int pixelsOf(const QImage& img, QRgb colour) {
  int n = 0;
  for (int y = 0; y < img.height(); ++y)
    for (int x = 0; x < img.width(); ++x) n += (img.pixel(x, y) & 0xFFFFFF) == (colour & 0xFFFFFF);
  return n;
}

// The test platform's display is 400 dots square at this ratio, below the
// board's layout limits: the board is made large enough for its picture.
void started(Started& p) {
  p.board().resize(1000, 700);
  p.createAndValidate();
  QVERIFY(p.board().plan().width() > 500);
}

}  // namespace

class PlanHiDpiTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    test::quietOffscreen();
    QWidget probe;
    if (probe.devicePixelRatioF() != 2) QSKIP("the platform does not scale by 2");
  }

  void pictureHasTheDisplaysPixels() {
    Started p;
    started(p);
    gui::PlanWidget& plan = p.board().plan();
    QCOMPARE(plan.devicePixelRatioF(), 2.0);
    const QImage picture = plan.picture();
    QCOMPARE(picture.size(), plan.size() * 2);
    // Twips are those of the dots: 15 to a dot, as at a ratio of 1.
    QCOMPARE(plan.surface().Width(), static_cast<float>(plan.width() * 15));
    QCOMPARE(plan.surface().Height(), static_cast<float>(plan.height() * 15));
    // The hull's figures and numbers are drawn at the finer pixels.
    QVERIFY(unevenBlocks(picture) > 200);
    // The widget shows the picture pixel for pixel.
    const QImage shown = plan.grab().toImage().convertToFormat(picture.format());
    QCOMPARE(shown.size(), picture.size());
    QVERIFY(shown == picture);
  }

  void lengthsInTwipsAndPenWidthInDots() {
    Started p;
    started(p);
    p.board().clearPicture();
    DrawingSurface& s = p.board().plan().surface();
    s.ScaleLeft = s.ScaleTop = 0;
    s.ScaleWidth = s.Width();
    s.ScaleHeight = s.Height();
    s.ForeColor = rgb(255, 0, 0);
    s.Line(1500, 1500, 3000, 1500);  // 1500 twips: 100 dots, one dot wide
    const QImage picture = p.board().plan().picture();
    QCOMPARE(pixelsOf(picture, qRgb(255, 0, 0)), 200 * 2);
    for (int y = 0; y < picture.height(); ++y) {
      if ((picture.pixel(200, y) & 0xFFFFFF) != 0xFF0000) continue;
      QCOMPARE(y, 200);  // from the dot at 100 down, 2 pixels
      QCOMPARE(picture.pixel(200, 201) & 0xFFFFFF, 0xFF0000u);
      QCOMPARE(picture.pixel(400, 200) & 0xFFFFFF, 0xFFFFFFu);  // ends at dot 200
      QCOMPARE(picture.pixel(399, 200) & 0xFFFFFF, 0xFF0000u);
      break;
    }
  }

  void mouseAndBandInDots() {
    Started p;
    started(p);
    gui::PlanWidget& plan = p.board().plan();
    const DrawingSurface& s = plan.surface();
    const QPointF u = plan.toUnits(QPointF(100, 80));
    QCOMPARE(u.x(), s.ScaleLeft + 100.0 * s.ScaleWidth / plan.width());
    QCOMPARE(u.y(), s.ScaleTop + 80.0 * s.ScaleHeight / plan.height());

    const QImage fitted = plan.picture();
    test::mouse(&plan, QEvent::MouseButtonPress, {100, 80}, Qt::LeftButton, Qt::LeftButton);
    test::mouse(&plan, QEvent::MouseMove, {260, 200}, Qt::NoButton, Qt::LeftButton);
    const QImage banded = plan.picture();
    QVERIFY(banded != fitted);
    // The band's corner stands at dot (260, 200): pixel (520, 400).
    QVERIFY(banded.pixel(519, 399) != fitted.pixel(519, 399) ||
            banded.pixel(519, 400) != fitted.pixel(519, 400) ||
            banded.pixel(520, 399) != fitted.pixel(520, 399));
    test::mouse(&plan, QEvent::MouseMove, {100, 80}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(plan.picture(), fitted);  // drawn twice, it is gone
    test::mouse(&plan, QEvent::MouseButtonRelease, {100, 80}, Qt::LeftButton, Qt::NoButton);
  }
};

int main(int argc, char** argv) {
  qputenv("QT_SCALE_FACTOR", "2");
  QApplication app(argc, argv);
  PlanHiDpiTest t;
  return QTest::qExec(&t, argc, argv);
}

#include "plan_hidpi_test.moc"
