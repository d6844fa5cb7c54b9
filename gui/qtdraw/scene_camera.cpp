#include "qtdraw/scene_camera.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tolmar::gui {

namespace {

constexpr double kDeg = 3.14159265358979323846 / 180;

}  // namespace

QVector3D SceneCamera::back() const {
  // The scene's Y runs to port (see HullScene::model): starboard is -Y.
  const double y = yaw * kDeg, p = pitch * kDeg;
  return QVector3D(static_cast<float>(std::cos(p) * std::cos(y)),
                   static_cast<float>(-std::cos(p) * std::sin(y)), static_cast<float>(std::sin(p)));
}

QVector3D SceneCamera::eye() const { return target + float(distance) * back(); }

QMatrix4x4 SceneCamera::view() const {
  QMatrix4x4 m;
  // Straight above or below, "up" on the screen is the bow.
  const QVector3D up = std::fabs(pitch) > 89 ? QVector3D(1, 0, 0) : QVector3D(0, 0, 1);
  m.lookAt(eye(), target, up);
  return m;
}

QVector3D SceneCamera::right() const {
  const QMatrix4x4 v = view();
  return {v(0, 0), v(0, 1), v(0, 2)};
}

QVector3D SceneCamera::up() const {
  const QMatrix4x4 v = view();
  return {v(1, 0), v(1, 1), v(1, 2)};
}

QMatrix4x4 SceneCamera::projection(double aspect) const {
  QMatrix4x4 m;
  const float d = static_cast<float>(std::max(distance, 1e-3));
  m.perspective(static_cast<float>(fovY), static_cast<float>(std::max(aspect, 1e-3)), d * 0.01f,
                d * 10 + 100);
  return m;
}

SceneCamera standardCamera(StandardView v) {
  SceneCamera c;
  switch (v) {
    case StandardView::side:
      c.yaw = 90, c.pitch = 0;
      break;
    case StandardView::face:
      c.yaw = 0, c.pitch = 0;
      break;
    case StandardView::top:
      c.yaw = 90, c.pitch = 40;
      break;
    case StandardView::quarter:
      c.yaw = 131, c.pitch = 5;
      break;
    case StandardView::isometric:
      c.yaw = 56, c.pitch = 25;
      break;
    case StandardView::plan:
      c.yaw = 90, c.pitch = 90;
      break;
    case StandardView::bottom:
      c.yaw = 90, c.pitch = -90;
      break;
  }
  return c;
}

void frameCamera(SceneCamera& c, const std::vector<QVector3D>& points, double aspect, double fill) {
  if (points.empty()) return;
  aspect = std::max(aspect, 1e-3);
  QVector3D lo = points[0], hi = points[0];
  for (const QVector3D& p : points) {
    lo = {std::min(lo.x(), p.x()), std::min(lo.y(), p.y()), std::min(lo.z(), p.z())};
    hi = {std::max(hi.x(), p.x()), std::max(hi.y(), p.y()), std::max(hi.z(), p.z())};
  }
  const QVector3D c0 = (lo + hi) / 2;
  const double radius = std::max(0.01f, (hi - lo).length() / 2);
  // The eye keeps the standoff of a 30 degree view of the bounding sphere,
  // so that the perspective is the same from every side; the field of
  // view then narrows until the hull touches the picture's edges.
  c.distance = radius / std::sin(15 * kDeg) * 1.05;
  c.target = c0;
  const QVector3D r = c.right(), u = c.up(), b = c.back();
  struct Seen {
    double x, y, depth;
  };
  std::vector<Seen> seen;
  seen.reserve(points.size());
  for (const QVector3D& p : points) {
    const QVector3D q = p - c0;
    seen.push_back({QVector3D::dotProduct(q, r), QVector3D::dotProduct(q, u),
                    std::max(1e-6, c.distance - QVector3D::dotProduct(q, b))});
  }
  // A point at (x, y) across, `depth` ahead of the eye, shows at
  // (x - a) / depth of the half width's slope for a target shifted by a.
  // The shift that centres the points makes the largest and the least of
  // those equal and opposite (their sum falls as a grows); the slope that
  // then holds them all is the field of view.
  auto centre = [&](bool across, double& reach) {
    auto spread = [&](double a, double& most, double& least) {
      most = -1e30, least = 1e30;
      for (const Seen& s : seen) {
        const double v = ((across ? s.x : s.y) - a) / s.depth;
        most = std::max(most, v), least = std::min(least, v);
      }
    };
    double lo = -c.distance * 10, hi = c.distance * 10, most = 0, least = 0;
    for (int i = 0; i < 100; ++i) {
      const double mid = (lo + hi) / 2;
      spread(mid, most, least);
      (most + least > 0 ? lo : hi) = mid;
    }
    const double a = (lo + hi) / 2;
    spread(a, most, least);
    reach = std::max(most, -least);
    return a;
  };
  double reachX = 0, reachY = 0;
  const double a = centre(true, reachX), e = centre(false, reachY);
  const double slope = std::max(reachX / aspect, reachY) / fill;
  c.fovY = 2 * std::atan(std::max(slope, 1e-6)) / kDeg;
  c.target = c0 + float(a) * r + float(e) * u;
}

}  // namespace tolmar::gui
