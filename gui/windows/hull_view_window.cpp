#include "windows/hull_view_window.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>
#include <cmath>

#include "stability/shown_water.h"
#include "windows/hull_gl_view.h"

namespace tolmar::gui {

namespace {

struct ViewButton {
  const char* name;
  const char* french;
  const char* english;
  StandardView v;
  Qt::Key key;
};

constexpr ViewButton kViews[] = {
    {"viewSide", "Côté", "Side", StandardView::side, Qt::Key_1},
    {"viewFace", "Face", "Face", StandardView::face, Qt::Key_2},
    {"viewTop", "Dessus", "Top", StandardView::top, Qt::Key_3},
    {"viewQuarter", "Trois-quarts", "Quarter", StandardView::quarter, Qt::Key_4},
    {"viewIsometric", "Isométrique", "Isometric", StandardView::isometric, Qt::Key_5}};

QString text(bool fr, const char* french, const char* english) {
  return QString::fromUtf8(fr ? french : english);
}

}  // namespace

HullViewWindow::HullViewWindow(QWidget* parent, const HullStore& h)
    : QWidget(parent, Qt::Window),
      h_(h),
      gl_(new HullGlView),
      container_(QWidget::createWindowContainer(gl_, this)) {
  setObjectName("hullView");
  container_->setObjectName("hullPicture");
  container_->setMinimumSize(320, 200);
  container_->setFocusPolicy(Qt::StrongFocus);
  gl_->installEventFilter(this);

  auto* views = new QHBoxLayout;
  for (const ViewButton& v : kViews) {
    auto* b = new QPushButton(this);
    b->setObjectName(v.name);
    const StandardView sv = v.v;
    connect(b, &QPushButton::clicked, this, [this, sv] { showView(sv); });
    views->addWidget(b);
  }
  auto* fit = new QPushButton(this);
  fit->setObjectName("viewFit");
  connect(fit, &QPushButton::clicked, gl_, &HullGlView::fit);
  views->addWidget(fit);
  views->addStretch();

  auto* water = new QHBoxLayout;
  water_ = new QCheckBox(this);
  water_->setObjectName("viewWater");
  connect(water_, &QCheckBox::toggled, this, [this] {
    showWater();
    saveSettings();
  });
  water->addWidget(water_);
  water->addSpacing(16);
  heelLabel_ = new QLabel(this);
  water->addWidget(heelLabel_);
  heel_ = new QDoubleSpinBox(this);
  heel_->setObjectName("viewHeel");
  heel_->setRange(-180, 180);
  heel_->setDecimals(1);
  heel_->setSingleStep(1);
  heel_->setSuffix(QString::fromUtf8(" °"));
  heelLabel_->setBuddy(heel_);
  connect(heel_, &QDoubleSpinBox::valueChanged, this, [this](double deg) {
    gl_->setHeel(deg);
    showWater();
    saveSettings();
  });
  water->addWidget(heel_);
  stabilityHeel_ = new QPushButton(this);
  stabilityHeel_->setObjectName("viewStabilityHeel");
  stabilityHeel_->setEnabled(false);
  connect(stabilityHeel_, &QPushButton::clicked, this, [this] {
    const std::optional<double> deg = stabilityHeelOf_ ? stabilityHeelOf_() : std::nullopt;
    if (deg && std::isfinite(*deg)) heel_->setValue(*deg);
    stabilityHeel_->setEnabled(deg.has_value());
  });
  water->addWidget(stabilityHeel_);
  message_ = new QLabel(this);
  message_->setObjectName("viewMessage");
  water->addWidget(message_, 1);

  auto* box = new QVBoxLayout(this);
  box->addWidget(container_, 1);
  box->addLayout(views);
  box->addLayout(water);
  resize(900, 620);
  loadSettings();
  follow();
}

HullViewWindow::~HullViewWindow() = default;

bool HullViewWindow::takeKey(int key) {
  if (key == Qt::Key_F) {
    gl_->fit();
    return true;
  }
  for (const ViewButton& v : kViews)
    if (v.key == key) {
      showView(v.v);
      return true;
    }
  return false;
}

void HullViewWindow::keyPressEvent(QKeyEvent* e) {
  if (e->modifiers() == Qt::NoModifier && takeKey(e->key())) return;
  QWidget::keyPressEvent(e);
}

bool HullViewWindow::eventFilter(QObject* watched, QEvent* e) {
  if (watched == gl_ && e->type() == QEvent::KeyPress) {
    const auto* k = static_cast<QKeyEvent*>(e);
    if (k->modifiers() == Qt::NoModifier && takeKey(k->key())) return true;
  }
  return QWidget::eventFilter(watched, e);
}

void HullViewWindow::setTexts() {
  const bool fr = h_.langue == 0;
  setWindowTitle(text(fr, "Vue 3D", "3-D view"));
  // A button's text sets its shortcut to its mnemonic: the keys after it.
  for (const ViewButton& v : kViews) {
    auto* b = findChild<QPushButton*>(v.name);
    b->setText(text(fr, v.french, v.english));
    b->setShortcut(QKeySequence(v.key));
  }
  auto* fit = findChild<QPushButton*>("viewFit");
  fit->setText(text(fr, "Cadrer", "Fit"));
  fit->setShortcut(QKeySequence(Qt::Key_F));
  water_->setText(text(fr, "Plan d'eau", "Water plane"));
  water_->setToolTip(text(fr,
                          "Le plan d'eau du dernier calcul hydrostatique (affiché après un "
                          "calcul)",
                          "The water plane of the last hydrostatic calculation (shown after "
                          "one)"));
  heelLabel_->setText(text(fr, "&Gîte", "&Heel"));
  heel_->setToolTip(text(fr, "Gîte en degrés, positive tribord dans l'eau",
                         "Heel in degrees, positive with the starboard side down"));
  stabilityHeel_->setText(text(fr, "Gîte de la stabilité", "Stability heel"));
  stabilityHeel_->setToolTip(text(fr,
                                  "La gîte que donne l'équipage sur un bord dans la fenêtre "
                                  "Stabilité",
                                  "The heel a crew on one side gives in the Stability window"));
}

void HullViewWindow::showView(StandardView v) {
  view_ = v;
  gl_->showView(v);
  saveSettings();
}

void HullViewWindow::showWater() {
  message_->clear();
  const bool result = stability::lastWaterHeight(h_).has_value();
  water_->setEnabled(result);
  if (!result || !water_->isChecked()) {
    gl_->setWater(std::nullopt);
    return;
  }
  const auto w = stability::shownWater(h_, mesh_, heel_->value());
  if (!w) {
    gl_->setWater(std::nullopt);
    message_->setText(text(h_.langue == 0, "La carène ne flotte pas à cette gîte.",
                           "The hull does not float at this heel."));
    return;
  }
  gl_->setWater(waterQuad(w->corners));
}

void HullViewWindow::follow() {
  if (langue_ != h_.langue) {
    langue_ = h_.langue;
    setTexts();
  }
  if (stabilityHeelOf_) stabilityHeel_->setEnabled(stabilityHeelOf_().has_value());
  const bool lines =
      lastChines_ != h_.nChines || lastX_ != h_.lineX || lastY_ != h_.lineY || lastZ_ != h_.lineZ;
  const bool hydro = lastWlX_ != h_.wlX || lastWlZ_ != h_.wlZ || lastArea_ != h_.sectArea ||
                     lastPitch_ != h_.pitch;
  if (lines) {
    lastChines_ = h_.nChines;
    lastX_ = h_.lineX;
    lastY_ = h_.lineY;
    lastZ_ = h_.lineZ;
    gl_->setHull(h_);
    mesh_ = h_.nChines >= 1 ? stability::hullHydroMesh(h_) : stability::HydroMesh{};
  }
  if (lines || hydro) {
    lastWlX_ = h_.wlX;
    lastWlZ_ = h_.wlZ;
    lastArea_ = h_.sectArea;
    lastPitch_ = h_.pitch;
    showWater();
  }
}

void HullViewWindow::setStabilityHeel(std::function<std::optional<double>()> heel) {
  stabilityHeelOf_ = std::move(heel);
  stabilityHeel_->setEnabled(stabilityHeelOf_ && stabilityHeelOf_().has_value());
}

void HullViewWindow::loadSettings() {
  QSettings s;
  s.beginGroup("view3d");
  const int v = s.value("view", static_cast<int>(StandardView::isometric)).toInt();
  const double heel = s.value("heel", 0.0).toDouble();
  const bool water = s.value("water", true).toBool();
  s.endGroup();
  view_ = v >= 0 && v <= static_cast<int>(StandardView::bottom) ? static_cast<StandardView>(v)
                                                                : StandardView::isometric;
  gl_->showView(view_);
  const QSignalBlocker b1(heel_), b2(water_);
  heel_->setValue(std::isfinite(heel) ? heel : 0);
  gl_->setHeel(heel_->value());
  water_->setChecked(water);
}

void HullViewWindow::saveSettings() const {
  QSettings s;
  s.beginGroup("view3d");
  s.setValue("view", static_cast<int>(view_));
  s.setValue("heel", heel_->value());
  s.setValue("water", water_->isChecked());
  s.endGroup();
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

}  // namespace tolmar::gui
