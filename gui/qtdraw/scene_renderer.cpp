#include "qtdraw/scene_renderer.h"

#include <cstddef>

namespace tolmar::gui {

namespace {

// Flat shading from the triangle's normal, both faces lit as the fixed
// pipeline's two-sided model lights them: a key light from the upper left
// and a fill, both fixed to the camera, over an ambient of 0.25.  The
// normal is turned towards the eye per vertex: with one normal for the
// whole triangle, all three vertices agree on the side seen.
const char* kVertex = R"(#version 120
attribute vec3 position;
attribute vec3 normal;
attribute vec4 colour;
uniform mat4 mvp;
uniform mat4 modelView;
uniform mat3 normalMatrix;
uniform float lit;
varying vec4 shade;
void main() {
  gl_Position = mvp * vec4(position, 1.0);
  vec3 n = normalMatrix * normal;
  vec3 toEye = -(modelView * vec4(position, 1.0)).xyz;
  n = normalize(dot(n, toEye) < 0.0 ? -n : n);
  float k = 0.25 + 0.75 * max(dot(n, normalize(vec3(-0.4, 0.6, 1.0))), 0.0)
                 + 0.3 * max(dot(n, normalize(vec3(0.5, -0.3, 0.6))), 0.0);
  shade = vec4(colour.rgb * mix(1.0, min(k, 1.0), lit), colour.a);
}
)";

const char* kFragment = R"(#version 120
varying vec4 shade;
void main() { gl_FragColor = shade; }
)";

// The water's colour: a blue that lets the hull show through.
constexpr float kWater[4] = {0.2f, 0.45f, 0.75f, 0.35f};

}  // namespace

SceneRenderer::SceneRenderer() = default;

SceneRenderer::~SceneRenderer() = default;

bool SceneRenderer::initialize() {
  initializeOpenGLFunctions();
  program_ = std::make_unique<QOpenGLShaderProgram>();
  program_->bindAttributeLocation("position", 0);
  program_->bindAttributeLocation("normal", 1);
  program_->bindAttributeLocation("colour", 2);
  if (!program_->addShaderFromSourceCode(QOpenGLShader::Vertex, kVertex) ||
      !program_->addShaderFromSourceCode(QOpenGLShader::Fragment, kFragment) || !program_->link()) {
    log_ = program_->log();
    program_.reset();
    return false;
  }
  mvp_ = program_->uniformLocation("mvp");
  normalMatrix_ = program_->uniformLocation("normalMatrix");
  modelView_ = program_->uniformLocation("modelView");
  lit_ = program_->uniformLocation("lit");
  revision_ = ~std::uint64_t(0);
  uploaded_ = nullptr;
  return true;
}

void SceneRenderer::release() {
  for (QOpenGLBuffer* b : {&triangles_, &lines_, &water_})
    if (b->isCreated()) b->destroy();
  program_.reset();
  uploaded_ = nullptr;
}

void SceneRenderer::upload(const HullScene& scene) {
  auto fill = [](QOpenGLBuffer& b, const std::vector<SceneVertex>& v) {
    if (!b.isCreated()) b.create();
    b.bind();
    b.setUsagePattern(QOpenGLBuffer::StaticDraw);
    b.allocate(v.data(), static_cast<int>(v.size() * sizeof(SceneVertex)));
    b.release();
    return static_cast<int>(v.size());
  };
  triangleCount_ = fill(triangles_, scene.triangles());
  lineCount_ = fill(lines_, scene.lines());
  std::vector<SceneVertex> water;
  if (const auto& q = scene.water()) {
    const QVector3D n = QVector3D::normal((*q)[0], (*q)[1], (*q)[2]);
    for (const int k : {0, 1, 2, 0, 2, 3})
      water.push_back({(*q)[k].x(), (*q)[k].y(), (*q)[k].z(), n.x(), n.y(), n.z(), kWater[0],
                       kWater[1], kWater[2], kWater[3]});
  }
  waterCount_ = fill(water_, water);
  revision_ = scene.revision();
  uploaded_ = &scene;
}

void SceneRenderer::draw(QOpenGLBuffer& b, int first, int count, unsigned mode) {
  if (count <= 0) return;
  b.bind();
  const int stride = sizeof(SceneVertex);
  program_->setAttributeBuffer(0, GL_FLOAT, offsetof(SceneVertex, x), 3, stride);
  program_->setAttributeBuffer(1, GL_FLOAT, offsetof(SceneVertex, nx), 3, stride);
  program_->setAttributeBuffer(2, GL_FLOAT, offsetof(SceneVertex, r), 4, stride);
  glDrawArrays(mode, first, count);
  b.release();
}

void SceneRenderer::paint(const HullScene& scene, const SceneCamera& c, int w, int h) {
  glViewport(0, 0, w, h);
  glClearColor(0.93f, 0.95f, 0.98f, 1);
  glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
  if (!program_ || scene.empty() || w <= 0 || h <= 0) return;
  if (uploaded_ != &scene || revision_ != scene.revision()) upload(scene);

  const QMatrix4x4 modelView = c.view() * scene.model();
  program_->bind();
  program_->setUniformValue(mvp_, c.projection(double(w) / h) * modelView);
  program_->setUniformValue(modelView_, modelView);
  program_->setUniformValue(normalMatrix_, modelView.normalMatrix());
  for (int a = 0; a < 3; ++a) program_->enableAttributeArray(a);
  glEnable(GL_DEPTH_TEST);
  glDepthFunc(GL_LESS);

  // The plates pushed back a little, so that the lines on them win.
  program_->setUniformValue(lit_, 1.0f);
  // The hull is closed and its triangles turn anticlockwise seen from
  // outside (clockwise once the model mirrors them): the faces turned away
  // are hidden anyway, and not filling them halves the work of a frame.
  glEnable(GL_POLYGON_OFFSET_FILL);
  glPolygonOffset(1, 1);
  glFrontFace(scene.model().determinant() < 0 ? GL_CW : GL_CCW);
  glCullFace(GL_BACK);
  glEnable(GL_CULL_FACE);
  draw(triangles_, 0, triangleCount_, GL_TRIANGLES);
  glDisable(GL_CULL_FACE);
  glFrontFace(GL_CCW);
  glDisable(GL_POLYGON_OFFSET_FILL);

  program_->setUniformValue(lit_, 0.0f);
  glLineWidth(1.5f);
  draw(lines_, 0, lineCount_, GL_LINES);

  // The water last, tested against the hull but not hiding what lies
  // behind it.
  if (waterCount_ > 0) {
    glEnable(GL_BLEND);
    // The picture stays opaque: only the colour blends.
    glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ZERO, GL_ONE);
    glDepthMask(GL_FALSE);
    draw(water_, 0, waterCount_, GL_TRIANGLES);
    glDepthMask(GL_TRUE);
    glDisable(GL_BLEND);
  }
  for (int a = 0; a < 3; ++a) program_->disableAttributeArray(a);
  program_->release();
  glDisable(GL_DEPTH_TEST);
}

}  // namespace tolmar::gui
