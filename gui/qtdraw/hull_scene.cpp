#include "qtdraw/hull_scene.h"

#include <algorithm>
#include <cmath>

#include "board/view_map.h"
#include "surface/hull_mesh.h"

namespace tolmar::gui {

namespace {

QVector3D rgb(std::int32_t c) {
  return {(c & 0xff) / 255.0f, ((c >> 8) & 0xff) / 255.0f, ((c >> 16) & 0xff) / 255.0f};
}

// A plate's shade: its line's colour lightened, so that a black line still
// gives a plate that light can model.
QVector3D plateShade(QVector3D c) { return c * 0.6f + QVector3D(0.75f, 0.75f, 0.72f) * 0.4f; }

SceneVertex vertex(const QVector3D& p, const QVector3D& n, const QVector3D& c, float alpha = 1) {
  return {p.x(), p.y(), p.z(), n.x(), n.y(), n.z(), c.x(), c.y(), c.z(), alpha};
}

}  // namespace

WaterQuad waterQuad(const std::array<Vec3, 4>& corners) {
  WaterQuad q;
  for (int k = 0; k < 4; ++k)
    q[k] = QVector3D(float(corners[k].x), float(corners[k].y), float(corners[k].z));
  return q;
}

void HullScene::setHull(const HullStore& h) {
  triangles_.clear();
  lines_.clear();
  corners_.clear();
  ++revision_;
  if (h.nChines < 1) return;
  const HullMesh m = weldedMesh(buildHullMesh(h));
  const int top = std::clamp<int>(h.nChines, 1, kMaxLine);
  triangles_.reserve(m.triangles.size() * 3);
  for (std::size_t t = 0; t < m.triangles.size(); ++t) {
    const MeshTag& tag = m.tags[t];
    const int line = tag.part == SurfacePart::plank ? std::clamp<int>(tag.index, 0, top)
                     : tag.part == SurfacePart::lid ? top
                                                    : 0;
    const QVector3D col = tag.part == SurfacePart::lid       ? QVector3D(0.85f, 0.8f, 0.65f)
                          : tag.part == SurfacePart::transom ? QVector3D(0.7f, 0.55f, 0.4f)
                          : tag.part == SurfacePart::pramBow ? QVector3D(0.7f, 0.55f, 0.4f)
                                                             : plateShade(rgb(lineColour(h, line)));
    QVector3D p[3];
    for (int k = 0; k < 3; ++k) {
      const Vec3& v = m.vertices[m.triangles[t][k]];
      p[k] = QVector3D(float(v.x), float(v.y), float(v.z));
    }
    const QVector3D n = QVector3D::normal(p[0], p[1], p[2]);
    for (const QVector3D& q : p) triangles_.push_back(vertex(q, n, col));
  }
  corners_.reserve(m.vertices.size());
  for (const Vec3& v : m.vertices) corners_.emplace_back(float(v.x), float(v.y), float(v.z));
  for (int l = 0; l <= top; ++l) {
    const QVector3D colour = rgb(lineColour(h, l)) * 0.5f;
    for (const double side : {1.0, -1.0}) {
      std::optional<QVector3D> last;
      for (int i = 0; i <= kLastPoint; ++i) {
        const double x = h.lineX(l, i), y = h.lineY(l, i), z = h.lineZ(l, i);
        if (!std::isfinite(x) || !std::isfinite(y) || !std::isfinite(z)) continue;
        const QVector3D p(float(x), float(side * std::fabs(y)), float(z));
        if (last) {
          lines_.push_back(vertex(*last, {}, colour));
          lines_.push_back(vertex(p, {}, colour));
        }
        last = p;
      }
    }
  }
}

void HullScene::setHeel(double heelDeg) {
  if (!std::isfinite(heelDeg)) heelDeg = 0;
  heel_ = heelDeg;
  model_.setToIdentity();
  // The hull's Y runs to starboard: with X forward and Z up its axes are
  // left-handed, and drawn as they are the picture would be the mirror
  // image of the boat.  The scene's Y runs to port.
  model_.scale(1, -1, 1);
  // Starboard down is a turn the other way about X.
  model_.rotate(float(-heelDeg), 1, 0, 0);
}

void HullScene::setWater(const std::optional<WaterQuad>& water) {
  water_ = water;
  ++revision_;
}

void HullScene::fit(SceneCamera& c, double aspect) const {
  if (corners_.empty()) return;
  std::vector<QVector3D> turned;
  turned.reserve(corners_.size());
  for (const QVector3D& p : corners_) turned.push_back(model_.map(p));
  frameCamera(c, turned, aspect);
}

}  // namespace tolmar::gui
