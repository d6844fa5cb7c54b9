// The closed hull as a 3-D scene, in the hull's axes: each plate shaded in
// the colour of its line on the board, the keel, chines and sheer as lines
// over it, and the water plane when one is given.  Built once per hull;
// the heel only turns the model matrix.  SceneRenderer draws it.
#pragma once

#include <QMatrix4x4>
#include <QVector3D>
#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "hull/hull_store.h"
#include "qtdraw/scene_camera.h"
#include "surface/hull_mesh.h"

namespace tolmar::gui {

// One vertex as the buffers hold it: position, normal and colour (RGBA).
struct SceneVertex {
  float x, y, z;
  float nx, ny, nz;
  float r, g, b, a;
};

// The water as a quadrilateral in the hull's axes.
using WaterQuad = std::array<QVector3D, 4>;
WaterQuad waterQuad(const std::array<Vec3, 4>& corners);

class HullScene {
 public:
  HullScene() { setHeel(0); }
  // The welded hull of `h` and its lines; an empty scene when the lines
  // are not drawn.
  void setHull(const HullStore& h);
  bool empty() const { return triangles_.empty(); }

  // Degrees, positive with the starboard side (Y > 0) down, as the
  // stability window counts it: the hull turns about the X axis.
  void setHeel(double heelDeg);
  double heel() const { return heel_; }
  // From the hull's axes to the scene's: Y mirrored, then the heel.
  const QMatrix4x4& model() const { return model_; }

  // The water plane (hull axes), or none.
  void setWater(const std::optional<WaterQuad>& water);
  const std::optional<WaterQuad>& water() const { return water_; }

  // Target and distance that frame the heeled hull tightly from the
  // camera's direction, in a picture of that aspect.
  void fit(SceneCamera& c, double aspect) const;

  // Three vertices a triangle; the lines as pairs of ends.
  const std::vector<SceneVertex>& triangles() const { return triangles_; }
  const std::vector<SceneVertex>& lines() const { return lines_; }
  // Grows whenever the hull or the water changes: the renderer uploads
  // the buffers again then, and only then.
  std::uint64_t revision() const { return revision_; }

 private:
  std::vector<SceneVertex> triangles_, lines_;
  std::vector<QVector3D> corners_;  // the welded vertices, for the framing
  std::optional<WaterQuad> water_;
  double heel_ = 0;
  QMatrix4x4 model_;
  std::uint64_t revision_ = 0;
};

}  // namespace tolmar::gui
