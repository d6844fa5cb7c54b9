// The picture of the 3-D view: the hull drawn with OpenGL, orbited with
// the left button, panned with the right, zoomed with the wheel about the
// pointer.  A QOpenGLWindow, put in the view's window by a container: it
// draws straight into its own surface, so a frame costs no extra pass
// through a texture and the widgets' compositor, which with a software
// renderer costs more than the hull itself.
#pragma once

#include <QImage>
#include <QOpenGLWindow>

#include "hull/hull_store.h"
#include "qtdraw/hull_scene.h"
#include "qtdraw/scene_renderer.h"

namespace tolmar::gui {

class HullGlView : public QOpenGLWindow {
  Q_OBJECT
 public:
  HullGlView();
  ~HullGlView() override;

  void setHull(const HullStore& h);
  // Degrees, positive with the starboard side down.
  void setHeel(double heelDeg);
  void setWater(const std::optional<WaterQuad>& water);
  void showView(StandardView v);
  // Frames the hull tightly from the present direction.
  void fit();
  const SceneCamera& camera() const { return cam_; }
  const HullScene& scene() const { return scene_; }
  // Turns the camera as a drag of (dx, dy) pixels with the left button does.
  void orbit(double dx, double dy);
  // Draws a frame now and returns it (for tests and pictures): the window
  // shows its frames through the swap, after which they cannot be read.
  QImage picture();

 protected:
  void initializeGL() override;
  void resizeGL(int w, int h) override;
  void paintGL() override;
  void mousePressEvent(QMouseEvent* e) override;
  void mouseMoveEvent(QMouseEvent* e) override;
  void wheelEvent(QWheelEvent* e) override;

 private:
  void releaseGl();
  double aspect() const;

  HullScene scene_;
  SceneRenderer renderer_;
  SceneCamera cam_;
  QPointF last_;
  // Fitted again when the picture changes size or the hull heels, until
  // the user moves the camera.
  bool framed_ = true;
};

}  // namespace tolmar::gui
