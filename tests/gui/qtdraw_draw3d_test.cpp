// tolmar-cli draw3d end to end under Xvfb: the PNG is not blank, and the
// hull's silhouette has the shape the view says (long and low from the
// side, long and narrow from above, about as wide as high from ahead).
// Skips when no OpenGL context can be made.
#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>
#include <cmath>

#include "gui/picture_measures.h"

namespace {

using tolmar::test::tilt;
using tolmar::test::wateredBackground;

struct Box {
  int left = 1 << 30, right = -1, top = 1 << 30, bottom = -1, inked = 0;
  double aspect() const { return double(right - left + 1) / (bottom - top + 1); }
};

Box silhouette(const QImage& img) {
  Box b;
  const QRgb bg = img.pixel(0, 0);
  for (int y = 0; y < img.height(); ++y)
    for (int x = 0; x < img.width(); ++x) {
      const QRgb p = img.pixel(x, y);
      if (qAbs(qRed(p) - qRed(bg)) + qAbs(qGreen(p) - qGreen(bg)) + qAbs(qBlue(p) - qBlue(bg)) < 30)
        continue;
      ++b.inked;
      b.left = std::min(b.left, x), b.right = std::max(b.right, x);
      b.top = std::min(b.top, y), b.bottom = std::max(b.bottom, y);
    }
  return b;
}

// draw3d into dir/name.png with the arguments given; empty when no OpenGL.
QImage draw3d(const QTemporaryDir& dir, const QString& name, const QStringList& args, bool& noGl) {
  const QString out = dir.filePath(name + ".png");
  QProcess p;
  QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
  env.insert("QT_QPA_PLATFORM", "xcb");
  p.setProcessEnvironment(env);
  p.start(QStandardPaths::findExecutable("xvfb-run"),
          QStringList{"-a", "-s", "-screen 0 1024x768x24", TOLMAR_CLI, "draw3d",
                      QString(TOLMAR_GOLDEN) + "/default_hull.D50", out} +
              args);
  p.waitForFinished(60000);
  const QString err = QString::fromLocal8Bit(p.readAllStandardError());
  noGl = p.exitCode() == 1 && err.contains("OpenGL");
  if (p.exitCode() != 0 && !noGl) qWarning("%s", qPrintable(err));
  return p.exitCode() == 0 ? QImage(out) : QImage();
}

}  // namespace

class Draw3dTest : public QObject {
  Q_OBJECT
 private slots:
  void viewsHaveTheirShapes() {
    const QString xvfb = QStandardPaths::findExecutable("xvfb-run");
    if (xvfb.isEmpty()) QSKIP("xvfb-run is not installed");
    QTemporaryDir dir;
    const QString hull = QString(TOLMAR_GOLDEN) + "/default_hull.D50";
    QMap<QString, Box> boxes;
    for (const char* view : {"side", "top", "front", "iso"}) {
      const QString out = dir.filePath(QString(view) + ".png");
      QProcess p;
      QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
      env.insert("QT_QPA_PLATFORM", "xcb");
      p.setProcessEnvironment(env);
      p.start(xvfb, {"-a", "-s", "-screen 0 1024x768x24", TOLMAR_CLI, "draw3d", hull, out, "--view",
                     view, "--size", "800x500"});
      QVERIFY(p.waitForFinished(60000));
      const QString err = QString::fromLocal8Bit(p.readAllStandardError());
      if (p.exitCode() == 1 && err.contains("OpenGL")) QSKIP("no OpenGL context under Xvfb");
      QVERIFY2(p.exitCode() == 0, qPrintable(err));
      const QImage img(out);
      QCOMPARE(img.size(), QSize(800, 500));
      boxes[view] = silhouette(img);
      QVERIFY2(boxes[view].inked > 800 * 500 / 40, view);
      // Fitted: the hull is framed near the middle, not cut at the edges.
      QVERIFY(boxes[view].left > 0 && boxes[view].right < 799);
      QVERIFY(std::abs((boxes[view].left + boxes[view].right) / 2 - 400) < 80);
    }
    // The default hull is about 7 m long, 2.7 m wide and 1.5 m deep.
    QVERIFY2(boxes["side"].aspect() > 3, qPrintable(QString::number(boxes["side"].aspect())));
    QVERIFY2(boxes["top"].aspect() < 0.6, qPrintable(QString::number(boxes["top"].aspect())));
    const double front = boxes["front"].aspect();
    QVERIFY2(front > 1.2 && front < 3, qPrintable(QString::number(front)));
  }

  // Heeled, the hull turns about its length as a rigid body: seen from
  // ahead, its section (wider than deep, so lying along the rows) tilts by
  // the heel.  Starboard down for a positive heel, and starboard is on the
  // left of a picture taken from ahead, so the left end goes down.
  void heelTiltsTheHullSeenFromAhead() {
    if (QStandardPaths::findExecutable("xvfb-run").isEmpty()) QSKIP("xvfb-run is not installed");
    QTemporaryDir dir;
    bool noGl = false;
    QMap<int, double> tilts;
    for (const int heel : {0, 20, -20}) {
      const QImage img =
          draw3d(dir, QString("heel%1").arg(heel),
                 {"--view", "front", "--size", "800x500", "--heel", QString::number(heel)}, noGl);
      if (noGl) QSKIP("no OpenGL context under Xvfb");
      QVERIFY(!img.isNull());
      tilts[heel] = tilt(img);
    }
    QVERIFY2(std::abs(tilts[0]) < 1, qPrintable(QString::number(tilts[0])));
    // The perspective (the bow nearer than the transom) bends the rigid
    // turn by a little.
    QVERIFY2(std::abs(tilts[20] + 20) < 3, qPrintable(QString::number(tilts[20])));
    QVERIFY2(std::abs(tilts[-20] - 20) < 3, qPrintable(QString::number(tilts[-20])));
  }

  // --zwl floats the hull at that height and shows the water around it;
  // water below the keel, or a pitch without a waterline, is refused.
  void waterlineShowsTheWater() {
    if (QStandardPaths::findExecutable("xvfb-run").isEmpty()) QSKIP("xvfb-run is not installed");
    QTemporaryDir dir;
    bool noGl = false;
    const QImage dry = draw3d(dir, "dry", {"--size", "800x500"}, noGl);
    if (noGl) QSKIP("no OpenGL context under Xvfb");
    QVERIFY(!dry.isNull());
    // A few edge pixels between a blue plank and the background blend alike.
    QVERIFY(wateredBackground(dry) < 800 * 500 / 100);
    for (const QStringList& water : {QStringList{"--zwl", "0.3"},
                                     QStringList{"--zwl", "0.3", "--pitch", "2", "--heel", "15"}}) {
      const QImage wet = draw3d(dir, "wet", QStringList{"--size", "800x500"} + water, noGl);
      QVERIFY(!wet.isNull());
      QVERIFY2(wateredBackground(wet) > 800 * 500 / 10, qPrintable(water.join(' ')));
      QCOMPARE(wet.pixelColor(400, 250).alpha(), 255);
    }
    QFile::remove(dir.filePath("wet.png"));
    QCOMPARE(draw3d(dir, "wet", {"--zwl", "-5"}, noGl), QImage());
    QVERIFY(!QFile::exists(dir.filePath("wet.png")));
    QCOMPARE(draw3d(dir, "wet", {"--pitch", "2"}, noGl), QImage());
    QVERIFY(!QFile::exists(dir.filePath("wet.png")));
  }
};

QTEST_MAIN(Draw3dTest)
#include "qtdraw_draw3d_test.moc"
