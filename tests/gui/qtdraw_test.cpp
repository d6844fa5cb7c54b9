// The QPainter surfaces: exclusive or on the board's picture, colours,
// twips, dash styles, clipping of wild coordinates, paper and SVG, and the
// default hull's picture against a stored one.
#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QtTest>
#include <cmath>
#include <limits>

#include "board/plan_mouse.h"
#include "board/views.h"
#include "development/hull_fixture.h"
#include "qtdraw/hull_picture.h"
#include "qtdraw/image_surface.h"
#include "qtdraw/paged_surface.h"
#include "regenerate.h"

using namespace tolmar;
using tolmar::qtdraw::ImageSurface;

namespace {

void drawFigures(DrawingSurface& s) {
  s.ForeColor = rgb(0, 255, 0);
  s.LineBox(300, 300, 4000, 2500);
  s.ForeColor = rgb(255, 0, 255);
  s.Line(2000, 100, 2000, 4000);
  s.Line(150, 1800, 5000, 1810);
  s.DrawStyle = kStyleDashDot;
  s.Line(100, 3000, 5500, 3900);
  s.DrawStyle = kStyleSolid;
  s.DrawWidth = 2;
  s.Circle(2500, 2000, 700);
  s.DrawWidth = 1;
  s.PSet(777, 888);
  s.CurrentX = 600;
  s.CurrentY = 600;
  s.Print("Bordés 1.25");
}

int differingPixels(const QImage& a, const QImage& b) {
  int n = 0;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x) n += a.pixel(x, y) != b.pixel(x, y);
  return n;
}

QByteArray readAll(const QString& path) {
  QFile f(path);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

}  // namespace

class QtDrawTest : public QObject {
  Q_OBJECT

 private slots:
  void exclusiveOrTwiceLeavesThePicture() {
    ImageSurface s(QSize(400, 300));
    auto h = fixture::defaultHull();
    dessine(s, *h, 1);
    const QImage before = s.picture();
    s.DrawMode = kModeXorPen;
    drawFigures(s);
    const QImage once = s.picture();
    QVERIFY(differingPixels(before, once) > 500);
    drawFigures(s);
    QCOMPARE(differingPixels(before, s.picture()), 0);
  }

  void rubberBandLeavesNoTrace() {
    ImageSurface s(QSize(800, 500));
    auto h = fixture::defaultHull();
    board::BoardState b;
    b.stepIndex = 1;
    dessine(s, *h, 1);
    const QImage before = s.picture();
    PlanMouse mouse(s, *h, b);
    mouse.buttonDown(kLeftButton, 3000, 2000);
    for (int i = 1; i <= 20; ++i) mouse.mouseMove(kLeftButton, 3000 + 14.5f * i, 2000 + 150.0f * i);
    QVERIFY(differingPixels(before, s.picture()) > 100);
    QCOMPARE(mouse.buttonUp(kLeftButton, 3290, 5000), PlanResult::Nothing);  // 290 wide
    QCOMPARE(differingPixels(before, s.picture()), 0);
    mouse.buttonDown(kRightButton, 3000, 2000);
    for (int i = 1; i <= 10; ++i)
      mouse.mouseMove(kRightButton, 3000 + 100.0f * i, 2000 - 50.0f * i);
    QVERIFY(differingPixels(before, s.picture()) > 10);
  }

  void coloursTwipsAndTheRedLowByte() {
    ImageSurface s(QSize(200, 100));
    QCOMPARE(s.Width(), 3000.0f);  // 15 twips a dot at 96 dots per inch
    QCOMPARE(s.Height(), 1500.0f);
    s.ForeColor = 255;  // RGB(255, 0, 0)
    s.Line(0, 150, 1500, 150);
    s.Line(0, 300, 3000, 300, rgb(0, 0, 255));
    const QImage img = s.picture();
    QCOMPARE(img.pixel(50, 10), qRgb(255, 0, 0));
    QCOMPARE(img.pixel(99, 10), qRgb(255, 0, 0));
    QCOMPARE(img.pixel(101, 10), qRgb(255, 255, 255));
    QCOMPARE(img.pixel(150, 20), qRgb(0, 0, 255));
  }

  void dashStylesAreDistinct() {
    ImageSurface s(QSize(300, 60));
    const std::int16_t styles[] = {kStyleSolid, kStyleDot, kStyleDashDot};
    for (int i = 0; i < 3; ++i) {
      s.DrawStyle = styles[i];
      s.Line(0, 150.0f + 300 * i, 4500, 150.0f + 300 * i);
    }
    const QImage img = s.picture();
    QString rows[3];
    for (int i = 0; i < 3; ++i)
      for (int x = 0; x < 60; ++x)
        rows[i] += img.pixel(x, 10 + 20 * i) == qRgb(0, 0, 0) ? '#' : '.';
    QVERIFY(!rows[0].contains('.'));
    QVERIFY(rows[1].contains('.') && rows[2].contains('.'));
    QVERIFY(rows[1] != rows[2]);
    QVERIFY(!rows[1].contains("##"));   // dots, one at a time
    QVERIFY(rows[2].contains("####"));  // the dash of dash-dot
  }

  void wildCoordinatesAreClippedNotHanging() {
    ImageSurface s(QSize(400, 300));
    const float big = 3e38f, inf = std::numeric_limits<float>::infinity();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    QElapsedTimer t;
    t.start();
    for (std::int16_t style : {kStyleSolid, kStyleDot, kStyleDashDot}) {
      s.DrawStyle = style;
      s.Line(-big, -big, big, big);
      s.Line(-1e7f, -1e7f, 1e7f, 1e7f);
      s.Line(-1e9f, 1500, 1e9f, 1500);  // a dashed line a billion twips long
      s.Line(inf, 0, 0, inf);
      s.Line(nan, 1, 2, 3);
      s.LineBox(-1e12f, -1e12f, 1e12f, 1e12f);
      s.Circle(1e20f, 0, 1e25f);
      s.Circle(100, 100, 1e9f);
      s.PSet(nan, nan);
      s.CurrentX = -1e30f;
      s.Print("far away");
    }
    QVERIFY(t.elapsed() < 10000);
    const QImage img = s.picture();
    QCOMPARE(img.pixel(200, 100), qRgb(0, 0, 0));  // the visible part of the line is there
    QCOMPARE(img.pixel(150, 150), qRgb(0, 0, 0));  // the diagonal
  }

  void extremeZoomDrawsTheHullWithoutHanging() {
    ImageSurface s(QSize(400, 300));
    auto h = fixture::defaultHull();
    dessine(s, *h, 1);
    h->scaleX = h->scaleY = 32000;
    h->scaleZ = -32000;
    h->originX = -1e7f;
    QElapsedTimer t;
    t.start();
    redrawViews(s, *h, 1);
    QVERIFY(t.elapsed() < 10000);
  }

  void paperHasPagesAndItsSizeInTwips() {
    QTemporaryDir dir;
    const QString path = dir.filePath("p.pdf");
    {
      QPdfWriter pdf(path);
      pdf.setPageSize(QPageSize(QPageSize::A4));
      qtdraw::PaperOptions whole;
      whole.marginMm = 0;
      whole.calibrationBars = false;
      qtdraw::PagedSurface s(pdf, whole);
      // A4 as the PDF gives it, 595 x 842 points, in twips of 568 to the
      // centimetre: 11922.5 x 16871.8.
      QVERIFY(std::abs(s.Width() - 595 / 72.0 * 2.54 * 568) < 2);
      QVERIFY(std::abs(s.Height() - 842 / 72.0 * 2.54 * 568) < 2);
      QCOMPARE(s.FontName, std::string("Arial"));
      s.PSet(681.6f, 200);
      s.Print({"TOLMAR2005", "   page", static_cast<int>(s.Page)});
      s.Line(681.6f, 1000, 681.6f + 1440, 1000);
      s.NewPage();
      QCOMPARE(s.Page, std::int16_t(2));
      s.Line(0, 0, 1440, 1440);
      s.EndDoc();
      QVERIFY(!s.active());
      s.Line(0, 0, 1440, 1440);  // after the end: nothing, no crash
    }
    const QByteArray pdfBytes = readAll(path);
    QVERIFY(pdfBytes.startsWith("%PDF"));
    QCOMPARE(pdfBytes.count("/Type /Page\n") + pdfBytes.count("/Type /Page\r"), qsizetype(2));
  }

  void svgAndPngOfTheDefaultHull() {
    QTemporaryDir dir;
    auto h = fixture::defaultHull();
    qtdraw::PictureOptions o;
    o.dots = QSize(800, 500);
    o.station = "1.5";
    QCOMPARE(qtdraw::writeHullPicture(*h, dir.filePath("h.svg").toStdString(), o), std::string());
    const QByteArray svg = readAll(dir.filePath("h.svg"));
    QVERIFY(svg.contains("<svg"));
    QVERIFY(svg.count("<polyline") + svg.count("<path") > 100);
    QCOMPARE(h->stationIndex, i16(21));
    QCOMPARE(qtdraw::writeHullPicture(*h, dir.filePath("h.PNG").toStdString(), o), std::string());
    QCOMPARE(QImage(dir.filePath("h.PNG")).size(), QSize(800, 500));
    QVERIFY(!qtdraw::writeHullPicture(*h, dir.filePath("h.bmp").toStdString(), o).empty());
    QVERIFY(!qtdraw::writeHullPicture(*h, "/nonexistent/dir/h.png", o).empty());
    o.dots = QSize(0, 10);
    QVERIFY(!qtdraw::writeHullPicture(*h, dir.filePath("z.png").toStdString(), o).empty());
  }

  // The picture of the default hull, planks and station 41, at 1600 x 1000,
  // against the stored one.  Fonts may differ a little from one machine to
  // the next, so a few pixels may differ; a drawing fault moves thousands.
  void defaultHullMatchesTheStoredPicture() {
    QTemporaryDir dir;
    auto h = fixture::defaultHull();
    qtdraw::PictureOptions o;
    o.station = "3";
    const QString path = dir.filePath("default_hull.png");
    QCOMPARE(qtdraw::writeHullPicture(*h, path.toStdString(), o), std::string());
    const QString golden = QStringLiteral(TOLMAR_GOLDEN "/board/default_hull.png");
    if (tolmar::test::regenerating()) {
      QFile::remove(golden);
      QVERIFY(QFile::copy(path, golden));
    }
    const QImage want(golden), got(path);
    QVERIFY2(!want.isNull(), "no stored picture: run with TOLMAR_REGENERATE=1");
    QCOMPARE(got.size(), want.size());
    const QImage a = got.convertToFormat(QImage::Format_RGB32);
    const QImage b = want.convertToFormat(QImage::Format_RGB32);
    const int differ = differingPixels(a, b);
    QVERIFY2(differ <= 400, qPrintable(QString("%1 pixels differ").arg(differ)));
  }
};

QTEST_MAIN(QtDrawTest)
#include "qtdraw_test.moc"
