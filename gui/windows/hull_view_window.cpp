#include "windows/hull_view_window.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QMouseEvent>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QPushButton>
#include <QSurfaceFormat>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "hull/fold_check.h"
#include "mesh_export/mesh_files.h"

namespace tolmar::gui {

HullGlView::HullGlView() : QOpenGLWindow(QOpenGLWindow::NoPartialUpdate) {
  setObjectName("hullGl");
  QSurfaceFormat f = format();
  f.setDepthBufferSize(24);
  setFormat(f);
  cam_ = standardCamera(StandardView::isometric);
}

HullGlView::~HullGlView() { releaseGl(); }

void HullGlView::releaseGl() {
  if (!context()) return;
  makeCurrent();
  renderer_.release();
  doneCurrent();
}

void HullGlView::initializeGL() {
  if (!renderer_.initialize()) qWarning("3-D view: %s", qPrintable(renderer_.log()));
  connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &HullGlView::releaseGl,
          Qt::UniqueConnection);
}

double HullGlView::aspect() const { return height() > 0 ? double(width()) / height() : 1.6; }

void HullGlView::setHull(const HullStore& h) {
  scene_.setHull(h);
  if (framed_) scene_.fit(cam_, aspect());
  update();
}

void HullGlView::showView(StandardView v) {
  cam_ = standardCamera(v);
  fit();
}

void HullGlView::fit() {
  framed_ = true;
  scene_.fit(cam_, aspect());
  update();
}

void HullGlView::resizeGL(int, int) {
  if (framed_) scene_.fit(cam_, aspect());
}

void HullGlView::orbit(double dx, double dy) {
  framed_ = false;
  cam_.yaw -= dx * 0.4;
  cam_.pitch = std::clamp(cam_.pitch + dy * 0.4, -90.0, 90.0);
  update();
}

void HullGlView::paintGL() {
  const qreal r = devicePixelRatio();
  renderer_.paint(scene_, cam_, static_cast<int>(width() * r), static_cast<int>(height() * r));
}

QImage HullGlView::picture() {
  if (!isValid()) return {};
  makeCurrent();
  paintGL();
  return grabFramebuffer();
}

void HullGlView::mousePressEvent(QMouseEvent* e) { last_ = e->position(); }

void HullGlView::mouseMoveEvent(QMouseEvent* e) {
  const QPointF d = e->position() - last_;
  last_ = e->position();
  if (e->buttons() & Qt::LeftButton) {
    orbit(d.x(), d.y());
  } else if (e->buttons() & Qt::RightButton) {
    // The target moves with the pointer, in the plane facing the camera.
    framed_ = false;
    const double perPixel =
        2 * cam_.distance * std::tan(cam_.fovY * M_PI / 360) / std::max(1, height());
    cam_.target -= (cam_.right() * float(d.x()) - cam_.up() * float(d.y())) * float(perPixel);
    update();
  }
}

void HullGlView::wheelEvent(QWheelEvent* e) {
  const double steps = e->angleDelta().y() / 120.0;
  if (steps == 0) return;
  framed_ = false;
  const double k = std::pow(0.85, steps);
  // The point under the pointer stays there: the target moves toward it by
  // the share of the distance the zoom takes off.
  const double perPixel =
      2 * cam_.distance * std::tan(cam_.fovY * M_PI / 360) / std::max(1, height());
  const QPointF c = e->position() - QPointF(width() / 2.0, height() / 2.0);
  const QVector3D under =
      cam_.target + (cam_.right() * float(c.x()) - cam_.up() * float(c.y())) * float(perPixel);
  cam_.target += (under - cam_.target) * float(1 - k);
  cam_.distance = std::clamp(cam_.distance * k, 1e-3, 1e4);
  update();
}

HullViewWindow::HullViewWindow(QWidget* parent, const HullStore& h)
    : QWidget(parent, Qt::Window),
      h_(h),
      gl_(new HullGlView),
      container_(QWidget::createWindowContainer(gl_, this)) {
  container_->setObjectName("hullPicture");
  container_->setMinimumSize(320, 200);
  container_->setFocusPolicy(Qt::StrongFocus);
  setObjectName("hullView");
  const bool fr = h.langue == 0;
  setWindowTitle(fr ? "Vue 3D" : "3-D view");
  auto* buttons = new QHBoxLayout;
  const struct {
    const char* name;
    const char* french;
    const char* english;
    StandardView v;
  } views[] = {{"viewSide", "Côté", "Side", StandardView::side},
               {"viewFace", "Face", "Face", StandardView::face},
               {"viewTop", "Dessus", "Top", StandardView::top},
               {"viewQuarter", "Trois-quarts", "Quarter", StandardView::quarter},
               {"viewIsometric", "Isométrique", "Isometric", StandardView::isometric}};
  int key = Qt::Key_1;
  for (const auto& v : views) {
    auto* b = new QPushButton(QString::fromUtf8(fr ? v.french : v.english), this);
    b->setObjectName(v.name);
    b->setShortcut(QKeySequence(key++));
    const StandardView sv = v.v;
    connect(b, &QPushButton::clicked, gl_, [this, sv] { gl_->showView(sv); });
    buttons->addWidget(b);
  }
  auto* fit = new QPushButton(fr ? "Cadrer" : "Fit", this);
  fit->setObjectName("viewFit");
  fit->setShortcut(QKeySequence(Qt::Key_F));
  connect(fit, &QPushButton::clicked, gl_, &HullGlView::fit);
  buttons->addWidget(fit);
  buttons->addStretch();
  auto* box = new QVBoxLayout(this);
  box->addWidget(container_, 1);
  box->addLayout(buttons);
  resize(900, 600);
  follow();
}

void HullViewWindow::follow() {
  if (lastChines_ == h_.nChines && lastX_ == h_.lineX && lastY_ == h_.lineY && lastZ_ == h_.lineZ)
    return;
  lastChines_ = h_.nChines;
  lastX_ = h_.lineX;
  lastY_ = h_.lineY;
  lastZ_ = h_.lineZ;
  gl_->setHull(h_);
}

HullViewWindow* openHullViewWindow(QWidget* board, const HullStore& h) {
  QOpenGLContext probe;
  QOffscreenSurface surface;
  surface.create();
  if (!probe.create() || !probe.makeCurrent(&surface)) {
    QMessageBox::warning(board, h.langue == 0 ? "Vue 3D" : "3-D view",
                         h.langue == 0 ? "OpenGL n'est pas disponible : la vue 3D ne peut "
                                         "pas s'ouvrir."
                                       : "OpenGL is not available: the 3-D view cannot open.");
    return nullptr;
  }
  probe.doneCurrent();
  return new HullViewWindow(board, h);
}

void saveHullModel(QWidget* board, const HullStore& h) {
  const bool fr = h.langue == 0;
  const QString title = QString::fromUtf8(fr ? "Modèle 3D (STL, OBJ)" : "3-D model (STL, OBJ)");
  const FoldReport folds = checkFolds(h);
  if (folds.folded()) {
    QMessageBox::warning(board, title, QString::fromStdString(folds.message(h.langue)));
    return;
  }
  QString filter;
  const QString path = QFileDialog::getSaveFileName(
      board, title, QString(), "STL (*.stl);;OBJ (*.obj);;STL mm (*.stl)", &filter);
  if (path.isEmpty()) return;
  MeshUnits u;
  u.millimetres = filter.startsWith("STL mm");
  const MeshFormat f = path.endsWith(".obj", Qt::CaseInsensitive) || filter.startsWith("OBJ")
                           ? MeshFormat::obj
                           : MeshFormat::stl;
  const io::WriteResult w = writeHullModel(h, f, u, path.toStdString());
  if (!w.ok())
    QMessageBox::warning(board, title,
                         (fr ? "Impossible d'écrire " : "Cannot write ") + path +
                             (fr ? " : " : ": ") + QString::fromStdString(w.message));
}

}  // namespace tolmar::gui
