// One frame of the 3-D view of the 20-plank hull at 1600 x 1000 while
// orbiting (the camera turns a degree a frame): into an offscreen frame
// buffer, and through the view's own window to the screen (the drawing,
// the swap and the copy to the display), the hull alone and heeled in the
// water.  Target: under 16 ms with Mesa's
// software renderer on 2 cores.  Counters: frames per second, and the
// process's CPU time per frame (all the renderer's threads), which tells
// the cost apart from the machine's load.  Needs OpenGL: run under
// xvfb-run where there is no display; without a context each benchmark
// reports so and is skipped.
#ifdef TOLMAR_HAVE_GUI

#include <benchmark/benchmark.h>
#include <time.h>

#include <QElapsedTimer>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>

#include "../tests/hull/hull_fixtures.h"
#include "analysis/hydro_solver.h"
#include "bench_app.h"
#include "qtdraw/scene_renderer.h"
#include "stability/hydro_mesh.h"
#include "stability/shown_water.h"
#include "windows/hull_gl_view.h"

namespace {

constexpr int kWidth = 1600, kHeight = 1000;

double processSeconds() {
  timespec t{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
  return double(t.tv_sec) + double(t.tv_nsec) * 1e-9;
}

void counters(benchmark::State& state, double cpuStart, const char* renderer) {
  const double n = double(std::max<benchmark::IterationCount>(state.iterations(), 1));
  state.counters["fps"] =
      benchmark::Counter(double(state.iterations()), benchmark::Counter::kIsRate);
  state.counters["cpu_ms_per_frame"] = (processSeconds() - cpuStart) * 1000 / n;
  state.SetLabel(renderer ? renderer : "");
}

bool canMakeGl() {
  QOpenGLContext c;
  QOffscreenSurface s;
  s.create();
  return c.create() && c.makeCurrent(&s);
}

void BM_View3dFrameOffscreen(benchmark::State& state) {
  tolmar::bench::app();
  QOpenGLContext ctx;
  QOffscreenSurface surface;
  surface.create();
  if (!ctx.create() || !ctx.makeCurrent(&surface)) {
    state.SkipWithError("no OpenGL context (run under xvfb-run or on a display)");
    return;
  }
  QOpenGLFramebufferObject fbo(kWidth, kHeight, QOpenGLFramebufferObject::Depth);
  tolmar::gui::SceneRenderer renderer;
  if (!fbo.bind() || !renderer.initialize()) {
    state.SkipWithError("the OpenGL context cannot draw the hull");
    return;
  }
  tolmar::gui::HullScene scene;
  scene.setHull(tolmar::testing::twentyPlankHull());
  auto cam = tolmar::gui::standardCamera(tolmar::gui::StandardView::isometric);
  scene.fit(cam, double(kWidth) / kHeight);
  QOpenGLFunctions* f = ctx.functions();
  renderer.paint(scene, cam, kWidth, kHeight);  // the upload, once
  f->glFinish();
  const double cpu = processSeconds();
  for (auto _ : state) {
    cam.yaw += 1;
    renderer.paint(scene, cam, kWidth, kHeight);
    f->glFinish();
  }
  counters(state, cpu, reinterpret_cast<const char*>(f->glGetString(GL_RENDERER)));
  renderer.release();
  fbo.release();
  ctx.doneCurrent();
}
BENCHMARK(BM_View3dFrameOffscreen)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_View3dFrameWindow(benchmark::State& state) {
  tolmar::bench::app();
  if (!canMakeGl()) {
    state.SkipWithError("no OpenGL context (run under xvfb-run or on a display)");
    return;
  }
  tolmar::HullStore h = tolmar::testing::twentyPlankHull();
  tolmar::gui::HullGlView view;
  view.resize(kWidth, kHeight);
  view.setHull(h);
  if (state.range(0)) {
    // Floated 40 % of the way up and heeled 15 degrees, the water shown.
    const auto m = tolmar::stability::hullHydroMesh(h);
    tolmar::hydroAtWaterline(h, m.low.z + 0.4 * (m.curveTop - m.low.z), 0).state.storeInto(h);
    const auto water = tolmar::stability::shownWater(h, m, 15);
    if (!water) {
      state.SkipWithError("the hull does not float");
      return;
    }
    view.setHeel(15);
    view.setWater(tolmar::gui::waterQuad(water->corners));
  }
  view.show();
  QElapsedTimer wait;
  wait.start();
  while (!view.isExposed() && wait.elapsed() < 5000) QGuiApplication::processEvents();
  QEvent paint(QEvent::UpdateRequest);
  if (view.isExposed()) QGuiApplication::sendEvent(&view, &paint);
  if (!view.isExposed() || !view.context() || !view.context()->isValid()) {
    state.SkipWithError("no OpenGL window (run under xvfb-run or on a display)");
    return;
  }
  QOpenGLFunctions* f = view.context()->functions();
  const double cpu = processSeconds();
  for (auto _ : state) {
    view.orbit(2.5, 0);  // a degree
    QGuiApplication::sendEvent(&view, &paint);
    view.makeCurrent();
    f->glFinish();
  }
  counters(state, cpu, reinterpret_cast<const char*>(f->glGetString(GL_RENDERER)));
}
// 0: the hull alone; 1: heeled in the water plane.
BENCHMARK(BM_View3dFrameWindow)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

#endif  // TOLMAR_HAVE_GUI
