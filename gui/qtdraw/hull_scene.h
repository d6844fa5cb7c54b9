// The closed hull as a lit 3-D scene drawn with OpenGL: each plate shaded
// in the colour of its line on the board, the keel, chines and sheer as
// lines over it.  Used by the 3-D view window and by tolmar-cli draw3d;
// paint() needs a current OpenGL context (compatibility profile).
#pragma once

#include <QMatrix4x4>
#include <QVector3D>
#include <vector>

#include "hull/hull_store.h"

namespace tolmar::gui {

// An orbiting camera: it looks at `target` from `distance` metres, from
// the direction given by yaw (degrees about the vertical, 0 from ahead,
// 90 from starboard) and pitch (degrees above the horizon).
struct SceneCamera {
  double yaw = 56, pitch = 25;
  double distance = 10;
  QVector3D target;
  double fovY = 30;  // degrees

  QVector3D eye() const;
  QMatrix4x4 view() const;
  QMatrix4x4 projection(double aspect) const;
};

// The five views of the VRML world and the two from straight above and
// below; `fit` then frames the hull.
enum class StandardView { side, face, top, quarter, isometric, plan, bottom };
SceneCamera standardCamera(StandardView v);

class HullScene {
 public:
  // The welded hull of `h` and its lines; an empty scene when the lines are
  // not drawn.  Heel turns the hull about the X axis (degrees, to port positive).
  void setHull(const HullStore& h, double heelDeg = 0);
  bool empty() const { return vertices_.empty(); }

  // Distance and target that show the whole hull in a view of that aspect.
  void fit(SceneCamera& c, double aspect) const;
  QVector3D centre() const { return centre_; }
  float radius() const { return radius_; }

  // Clears and draws into the current context's viewport of w x h pixels.
  void paint(const SceneCamera& c, int w, int h) const;

 private:
  struct Strip {
    std::vector<QVector3D> points;
    QVector3D colour;
  };
  std::vector<QVector3D> vertices_, normals_, colours_;  // three per triangle
  std::vector<Strip> lines_;
  QVector3D centre_;
  float radius_ = 1;
};

}  // namespace tolmar::gui
