// The fit: from any direction and for any shape of picture, the points
// framed reach the picture's edge on one axis at the share asked for, lie
// within it on the other, and are centred on both; the standoff and so the
// perspective do not depend on the direction.
#include <QtTest>
#include <algorithm>

#include "qtdraw/scene_camera.h"

using tolmar::gui::SceneCamera;

class SceneCameraTest : public QObject {
  Q_OBJECT
 private slots:
  void fitFramesTightlyAndCentred() {
    // The corners of a box the size of a small hull, off the origin.
    std::vector<QVector3D> box;
    for (const float x : {-1.f, 6.f})
      for (const float y : {-1.3f, 1.3f})
        for (const float z : {0.2f, 1.7f}) box.emplace_back(x, y, z);
    double standoff = -1;
    for (const double aspect : {1.6, 0.7, 3.0})
      for (const auto& [yaw, pitch] : {std::pair{56.0, 25.0},
                                       {90.0, 0.0},
                                       {0.0, 0.0},
                                       {131.0, 5.0},
                                       {90.0, 90.0},
                                       {200.0, -40.0}}) {
        SceneCamera c;
        c.yaw = yaw, c.pitch = pitch;
        tolmar::gui::frameCamera(c, box, aspect, 0.94);
        if (standoff < 0) standoff = c.distance;
        QVERIFY(qAbs(c.distance - standoff) < 1e-9);
        const QMatrix4x4 m = c.projection(aspect) * c.view();
        double lo[2] = {1e9, 1e9}, hi[2] = {-1e9, -1e9};
        for (const QVector3D& p : box) {
          const QVector3D s = m.map(p);  // -1..1 across the picture
          for (int k = 0; k < 2; ++k)
            lo[k] = std::min(lo[k], double(s[k])), hi[k] = std::max(hi[k], double(s[k]));
        }
        const QString where = QString("aspect %1 yaw %2 pitch %3").arg(aspect).arg(yaw).arg(pitch);
        const double reach = std::max({-lo[0], hi[0], -lo[1], hi[1]});
        QVERIFY2(qAbs(reach - 0.94) < 1e-4, qPrintable(where + QString(": %1").arg(reach)));
        for (int k = 0; k < 2; ++k)
          QVERIFY2(qAbs(lo[k] + hi[k]) < 1e-4,
                   qPrintable(where + QString(": axis %1 off centre").arg(k)));
      }
  }
};

QTEST_MAIN(SceneCameraTest)
#include "qtdraw_scene_camera_test.moc"
