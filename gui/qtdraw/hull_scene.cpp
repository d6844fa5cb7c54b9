#include "qtdraw/hull_scene.h"

#include <GL/gl.h>

#include <algorithm>
#include <cmath>

#include "board/view_map.h"
#include "surface/hull_mesh.h"

namespace tolmar::gui {

namespace {

constexpr double kDeg = 3.14159265358979323846 / 180;

QVector3D rgb(std::int32_t c) {
  return {(c & 0xff) / 255.0f, ((c >> 8) & 0xff) / 255.0f, ((c >> 16) & 0xff) / 255.0f};
}

// A plate's shade: its line's colour lightened, so that a black line still
// gives a plate that light can model.
QVector3D plateShade(QVector3D c) { return c * 0.6f + QVector3D(0.75f, 0.75f, 0.72f) * 0.4f; }

}  // namespace

QVector3D SceneCamera::eye() const {
  const double y = yaw * kDeg, p = pitch * kDeg;
  return target + distance * QVector3D(static_cast<float>(std::cos(p) * std::cos(y)),
                                       static_cast<float>(std::cos(p) * std::sin(y)),
                                       static_cast<float>(std::sin(p)));
}

QMatrix4x4 SceneCamera::view() const {
  QMatrix4x4 m;
  // Straight above or below, "up" on the screen is the bow.
  const QVector3D up = std::fabs(pitch) > 89 ? QVector3D(1, 0, 0) : QVector3D(0, 0, 1);
  m.lookAt(eye(), target, up);
  return m;
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

void HullScene::setHull(const HullStore& h, double heelDeg) {
  vertices_.clear();
  normals_.clear();
  colours_.clear();
  lines_.clear();
  if (h.nChines < 1) return;
  const double c = std::cos(heelDeg * kDeg), s = std::sin(heelDeg * kDeg);
  auto at = [&](double x, double y, double z) {
    return QVector3D(static_cast<float>(x), static_cast<float>(y * c - z * s),
                     static_cast<float>(y * s + z * c));
  };
  const HullMesh m = weldedMesh(buildHullMesh(h));
  const int top = std::clamp<int>(h.nChines, 1, kMaxLine);
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
      p[k] = at(v.x, v.y, v.z);
    }
    const QVector3D n = QVector3D::normal(p[0], p[1], p[2]);
    for (const QVector3D& q : p) {
      vertices_.push_back(q);
      normals_.push_back(n);
      colours_.push_back(col);
    }
  }
  for (int l = 0; l <= top; ++l)
    for (const double side : {1.0, -1.0}) {
      Strip st;
      st.colour = rgb(lineColour(h, l)) * 0.5f;
      for (int i = 0; i <= kLastPoint; ++i) {
        const double x = h.lineX(l, i), y = h.lineY(l, i), z = h.lineZ(l, i);
        if (std::isfinite(x) && std::isfinite(y) && std::isfinite(z))
          st.points.push_back(at(x, side * std::fabs(y), z));
      }
      if (st.points.size() >= 2) lines_.push_back(std::move(st));
    }
  if (vertices_.empty()) return;
  QVector3D lo = vertices_[0], hi = vertices_[0];
  for (const QVector3D& v : vertices_) {
    lo = {std::min(lo.x(), v.x()), std::min(lo.y(), v.y()), std::min(lo.z(), v.z())};
    hi = {std::max(hi.x(), v.x()), std::max(hi.y(), v.y()), std::max(hi.z(), v.z())};
  }
  centre_ = (lo + hi) / 2;
  radius_ = std::max(0.01f, (hi - lo).length() / 2);
}

void HullScene::fit(SceneCamera& c, double aspect) const {
  c.target = centre_;
  const double half = std::min(c.fovY, c.fovY * std::max(aspect, 1e-3)) / 2 * kDeg;
  c.distance = radius_ / std::sin(half) * 1.05;
}

void HullScene::paint(const SceneCamera& c, int w, int h) const {
  glViewport(0, 0, w, h);
  glClearColor(0.93f, 0.95f, 0.98f, 1);
  glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
  if (empty() || w <= 0 || h <= 0) return;
  glEnable(GL_DEPTH_TEST);
  glMatrixMode(GL_PROJECTION);
  glLoadMatrixf(c.projection(double(w) / h).constData());
  glMatrixMode(GL_MODELVIEW);
  glLoadIdentity();
  // Lights fixed to the camera: a key light from the upper left and a fill.
  const GLfloat key[] = {-0.4f, 0.6f, 1.0f, 0}, fill[] = {0.5f, -0.3f, 0.6f, 0};
  const GLfloat white[] = {0.75f, 0.75f, 0.75f, 1}, dim[] = {0.3f, 0.3f, 0.3f, 1},
                ambient[] = {0.25f, 0.25f, 0.25f, 1};
  glEnable(GL_LIGHTING);
  glLightModelfv(GL_LIGHT_MODEL_AMBIENT, ambient);
  glLightModeli(GL_LIGHT_MODEL_TWO_SIDE, GL_TRUE);
  glEnable(GL_LIGHT0);
  glLightfv(GL_LIGHT0, GL_POSITION, key);
  glLightfv(GL_LIGHT0, GL_DIFFUSE, white);
  glEnable(GL_LIGHT1);
  glLightfv(GL_LIGHT1, GL_POSITION, fill);
  glLightfv(GL_LIGHT1, GL_DIFFUSE, dim);
  glEnable(GL_COLOR_MATERIAL);
  glColorMaterial(GL_FRONT_AND_BACK, GL_AMBIENT_AND_DIFFUSE);
  glEnable(GL_NORMALIZE);
  glLoadMatrixf(c.view().constData());

  glEnable(GL_POLYGON_OFFSET_FILL);
  glPolygonOffset(1, 1);
  glEnableClientState(GL_VERTEX_ARRAY);
  glEnableClientState(GL_NORMAL_ARRAY);
  glEnableClientState(GL_COLOR_ARRAY);
  glVertexPointer(3, GL_FLOAT, 0, vertices_.data());
  glNormalPointer(GL_FLOAT, 0, normals_.data());
  glColorPointer(3, GL_FLOAT, 0, colours_.data());
  glDrawArrays(GL_TRIANGLES, 0, static_cast<GLsizei>(vertices_.size()));
  glDisableClientState(GL_NORMAL_ARRAY);
  glDisableClientState(GL_COLOR_ARRAY);
  glDisable(GL_POLYGON_OFFSET_FILL);

  glDisable(GL_LIGHTING);
  glLineWidth(1.5f);
  for (const Strip& s : lines_) {
    glColor3f(s.colour.x(), s.colour.y(), s.colour.z());
    glVertexPointer(3, GL_FLOAT, 0, s.points.data());
    glDrawArrays(GL_LINE_STRIP, 0, static_cast<GLsizei>(s.points.size()));
  }
  glDisableClientState(GL_VERTEX_ARRAY);
  glDisable(GL_DEPTH_TEST);
}

}  // namespace tolmar::gui
