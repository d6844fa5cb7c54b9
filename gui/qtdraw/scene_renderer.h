// Draws a HullScene with OpenGL: the triangles and lines in vertex buffers
// uploaded once per hull (again only when the scene's revision changes),
// one small shader lit by two lights fixed to the camera, the water
// translucent over the hull.  A frame is then a clear and three draw
// calls.  All calls need the context the renderer was initialised in to be
// current.
#pragma once

#include <QOpenGLBuffer>
#include <QOpenGLFunctions>
#include <QOpenGLShaderProgram>
#include <QString>
#include <cstdint>
#include <memory>

#include "qtdraw/hull_scene.h"

namespace tolmar::gui {

class SceneRenderer : protected QOpenGLFunctions {
 public:
  SceneRenderer();
  ~SceneRenderer();

  // Compiles the shader in the current context; false (see log()) when
  // the context cannot run it.
  bool initialize();
  const QString& log() const { return log_; }

  // Clears and draws into the current framebuffer's viewport of w x h
  // pixels.
  void paint(const HullScene& scene, const SceneCamera& c, int w, int h);

  // Frees the buffers and the shader; the renderer can be initialised
  // again.
  void release();

 private:
  void upload(const HullScene& scene);
  void draw(QOpenGLBuffer& b, int first, int count, unsigned mode);

  std::unique_ptr<QOpenGLShaderProgram> program_;
  QOpenGLBuffer triangles_{QOpenGLBuffer::VertexBuffer}, lines_{QOpenGLBuffer::VertexBuffer},
      water_{QOpenGLBuffer::VertexBuffer};
  int triangleCount_ = 0, lineCount_ = 0, waterCount_ = 0;
  std::uint64_t revision_ = ~std::uint64_t(0);
  const HullScene* uploaded_ = nullptr;
  int mvp_ = -1, modelView_ = -1, normalMatrix_ = -1, lit_ = -1;
  QString log_;
};

}  // namespace tolmar::gui
