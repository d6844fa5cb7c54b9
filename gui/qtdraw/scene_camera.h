// The camera of the 3-D view: it orbits a target, and is framed on a set
// of points so that they fill the picture with a small margin.
#pragma once

#include <QMatrix4x4>
#include <QVector3D>
#include <vector>

namespace tolmar::gui {

// An orbiting camera in the scene's axes (X forward, Y to port, Z up): it
// looks at `target` from `distance` metres, from the direction given by
// yaw (degrees about the vertical, 0 from ahead, 90 from starboard) and
// pitch (degrees above the horizon).
struct SceneCamera {
  double yaw = 56, pitch = 25;
  double distance = 10;
  QVector3D target;
  double fovY = 30;  // degrees

  QVector3D eye() const;
  QMatrix4x4 view() const;
  QMatrix4x4 projection(double aspect) const;
  // The screen's right and up and the direction from the target to the eye.
  QVector3D right() const;
  QVector3D up() const;
  QVector3D back() const;
};

// The five views of the VRML world and the two from straight above and
// below; `frame` then fits the hull in.
enum class StandardView { side, face, top, quarter, isometric, plan, bottom };
SceneCamera standardCamera(StandardView v);

// Keeps the camera's direction, sets its distance to the standoff of a 30
// degree view of the points' bounding sphere and then narrows its field
// of view and moves its target so that every point lies inside `fill` of
// the picture's width and height (of that aspect), centred: the tightest
// framing from that direction, at a perspective that does not depend on
// it.
void frameCamera(SceneCamera& c, const std::vector<QVector3D>& points, double aspect,
                 double fill = 0.94);

}  // namespace tolmar::gui
