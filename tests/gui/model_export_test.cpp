// "3-D model (STL, OBJ)…" of the File menu: the dialog writes the hull at
// the scale asked for (the file's extent is the hull's over N, in metres
// or millimetres), refuses a scale that is not 1:N with N above 0 and a
// path it cannot write with a message and no file, and remembers its
// choices.  The file menu's entry runs the same dialog.
#include "windows/model_export.h"

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>
#include <cstring>

#include "board_session_util.h"
#include "windows/bouchain2_window.h"

namespace tolmar {

using C = board::BoardControl;
using test::Started;

namespace {

struct Extent {
  double lo[3] = {1e30, 1e30, 1e30}, hi[3] = {-1e30, -1e30, -1e30};
  void add(const double* p) {
    for (int k = 0; k < 3; ++k) lo[k] = std::min(lo[k], p[k]), hi[k] = std::max(hi[k], p[k]);
  }
  double size(int k) const { return hi[k] - lo[k]; }
};

// The corners of a binary STL: 80 bytes of header, the facet count, then
// 50 bytes a facet (normal, three corners, two bytes).
Extent stlExtent(const QString& path, quint32& facets) {
  QFile f(path);
  Extent e;
  facets = 0;
  if (!f.open(QIODevice::ReadOnly)) return e;
  const QByteArray b = f.readAll();
  if (b.size() < 84) return e;
  std::memcpy(&facets, b.constData() + 80, 4);
  if (b.size() != 84 + 50 * qint64(facets)) return e;
  for (quint32 i = 0; i < facets; ++i)
    for (int v = 0; v < 3; ++v) {
      float c[3];
      std::memcpy(c, b.constData() + 84 + 50 * i + 12 + 12 * v, 12);
      const double p[3] = {c[0], c[1], c[2]};
      e.add(p);
    }
  return e;
}

Extent objExtent(const QString& path) {
  QFile f(path);
  Extent e;
  if (!f.open(QIODevice::ReadOnly | QIODevice::Text)) return e;
  while (!f.atEnd()) {
    const QByteArray line = f.readLine();
    if (!line.startsWith("v ")) continue;
    const QList<QByteArray> w = line.simplified().split(' ');
    if (w.size() < 4) continue;
    const double p[3] = {w[1].toDouble(), w[2].toDouble(), w[3].toDouble()};
    e.add(p);
  }
  return e;
}

// The hull's own extent, from its lines: the model is closed over them.
Extent hullExtent(const HullStore& h) {
  Extent e;
  for (int l = 0; l <= h.nChines; ++l)
    for (int i = 0; i <= kLastPoint; ++i) {
      const double y = std::fabs(h.lineY(l, i));
      const double a[3] = {h.lineX(l, i), y, h.lineZ(l, i)},
                   b[3] = {h.lineX(l, i), -y, h.lineZ(l, i)};
      e.add(a), e.add(b);
    }
  return e;
}

void drawPlanks(Started& p) {
  p.createAndValidate();
  p.board().button(C::Command1_1)->click();
  p.s->bouchain2().valider();
}

}  // namespace

class ModelExportTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() {
    test::quietOffscreen();
    QCoreApplication::setOrganizationName("tolmar-test-model3d");
    QSettings().remove("model3d");
  }

  void writesTheHullAtTheScaleAsked() {
    Started p;
    drawPlanks(p);
    const Extent hull = hullExtent(p.h());
    QTemporaryDir dir;
    gui::ModelExportDialog d(&p.board(), p.h());
    QCOMPARE(d.scale()->text(), QString("1:1"));
    d.format()->setCurrentIndex(0);
    d.unit()->setCurrentIndex(0);
    d.scale()->setText("1:10");
    d.path()->setText(dir.filePath("model"));
    QVERIFY2(d.save(), qPrintable(d.message()->text()));
    // The extension follows the format.
    QCOMPARE(d.path()->text(), dir.filePath("model.stl"));
    quint32 facets = 0;
    const Extent stl = stlExtent(dir.filePath("model.stl"), facets);
    QVERIFY(facets > 100);
    for (int k = 0; k < 3; ++k)
      QVERIFY2(std::abs(stl.size(k) - hull.size(k) / 10) < 1e-5,
               qPrintable(QString("%1: %2 vs %3").arg(k).arg(stl.size(k)).arg(hull.size(k) / 10)));

    // OBJ in millimetres at 1:20: a metre of hull is 50 mm.
    d.format()->setCurrentIndex(1);
    QCOMPARE(d.path()->text(), dir.filePath("model.obj"));
    d.unit()->setCurrentIndex(1);
    d.scale()->setText("1:20");
    QVERIFY2(d.save(), qPrintable(d.message()->text()));
    const Extent obj = objExtent(dir.filePath("model.obj"));
    for (int k = 0; k < 3; ++k) QVERIFY(std::abs(obj.size(k) - hull.size(k) * 50) < 0.01);

    // A new dialog starts from the choices saved.
    gui::ModelExportDialog again(&p.board(), p.h());
    QCOMPARE(again.format()->currentIndex(), 1);
    QCOMPARE(again.unit()->currentIndex(), 1);
    QCOMPARE(again.scale()->text(), QString("1:20"));
  }

  void refusesABadScaleOrPathWithoutAFile() {
    Started p;
    drawPlanks(p);
    QTemporaryDir dir;
    gui::ModelExportDialog d(&p.board(), p.h());
    d.format()->setCurrentIndex(0);
    d.path()->setText(dir.filePath("bad.stl"));
    for (const char* scale : {"0", "1:0", "1:-5", "-3", "2:7", "1:abc", "", "1:inf"}) {
      d.scale()->setText(scale);
      QVERIFY2(!d.save(), scale);
      QCOMPARE(d.message()->text(), QString("The scale is written 1:N with N above 0."));
      QVERIFY(!QFile::exists(dir.filePath("bad.stl")));
    }
    d.scale()->setText("1:1");
    d.path()->setText(dir.filePath("no/such/folder/h.stl"));
    QVERIFY(!d.save());
    QVERIFY2(d.message()->text().startsWith("Cannot write " + dir.filePath("no/such/folder/h.stl")),
             qPrintable(d.message()->text()));
    QVERIFY(!QFile::exists(dir.filePath("no/such/folder/h.stl")));
    d.path()->clear();
    QVERIFY(!d.save());
    QCOMPARE(d.message()->text(), QString("Choose a file."));

    p.h().langue = 0;
    gui::ModelExportDialog fr(&p.board(), p.h());
    QCOMPARE(fr.windowTitle(), QString::fromUtf8("Modèle 3D (STL, OBJ)"));
    fr.scale()->setText("0");
    fr.path()->setText(dir.filePath("bad.stl"));
    QVERIFY(!fr.save());
    QCOMPARE(fr.message()->text(),
             QString::fromUtf8("L'échelle s'écrit 1:N avec N supérieur à 0."));
  }

  void fileMenuEntryRunsTheDialog() {
    Started p;
    drawPlanks(p);
    QTemporaryDir dir;
    const QString path = dir.filePath("entry.stl");
    bool seen = false;
    QTimer::singleShot(0, [&] {
      auto* d = qobject_cast<gui::ModelExportDialog*>(QApplication::activeModalWidget());
      if (!d) return;
      seen = true;
      d->format()->setCurrentIndex(0);
      d->unit()->setCurrentIndex(0);
      d->scale()->setText("1:5");
      d->path()->setText(path);
      d->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
    });
    p.board().model3dAction()->trigger();
    QVERIFY(seen);
    quint32 facets = 0;
    const Extent stl = stlExtent(path, facets);
    QVERIFY(facets > 100);
    QVERIFY(std::abs(stl.size(0) - hullExtent(p.h()).size(0) / 5) < 1e-5);
  }
};

}  // namespace tolmar

QTEST_MAIN(tolmar::ModelExportTest)
#include "model_export_test.moc"
