// "3-D view…" of the Build menu: the hull in 3-D beside the board, with
// buttons for the five standard views and "fit", the water plane of the
// last hydrostatic result, and the heel, typed or taken from the
// stability window.  It follows the hull: after a redraw on the board it
// shows the new lines, after a hydrostatic calculation the new water.  The
// view, the water shown and the heel are remembered between runs.
#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "hull/hull_store.h"
#include "qtdraw/scene_camera.h"
#include "stability/hydro_mesh.h"

class QCheckBox;
class QDoubleSpinBox;
class QLabel;
class QPushButton;

namespace tolmar::gui {

class HullGlView;

class HullViewWindow : public QWidget {
  Q_OBJECT
 public:
  HullViewWindow(QWidget* parent, const HullStore& h);
  ~HullViewWindow() override;

  HullGlView& view() { return *gl_; }
  QWidget* picture() const { return container_; }
  QCheckBox* waterBox() const { return water_; }
  QDoubleSpinBox* heelBox() const { return heel_; }
  QPushButton* stabilityHeelButton() const { return stabilityHeel_; }
  QLabel* message() const { return message_; }

  // Shows the hull again if its lines changed since it was last shown, the
  // water if the hydrostatics changed, the texts if the language did.
  void follow();
  // The heel the stability window shows, when it shows one (degrees,
  // starboard down positive); the button takes it.
  void setStabilityHeel(std::function<std::optional<double>()> heel);

 protected:
  // The keys 1 to 5 and F also when no shortcut takes them: the window not
  // the active one for the shortcuts, or the picture holding the focus.
  void keyPressEvent(QKeyEvent* e) override;
  bool eventFilter(QObject* watched, QEvent* e) override;

 private:
  // The view of a key, or the fit; false for another key.
  bool takeKey(int key);
  void setTexts();
  void showView(StandardView v);
  void showWater();
  void loadSettings();
  void saveSettings() const;

  const HullStore& h_;
  HullGlView* gl_;
  QWidget* container_;
  QCheckBox* water_ = nullptr;
  QLabel* heelLabel_ = nullptr;
  QDoubleSpinBox* heel_ = nullptr;
  QPushButton* stabilityHeel_ = nullptr;
  QLabel* message_ = nullptr;
  std::function<std::optional<double>()> stabilityHeelOf_;
  StandardView view_ = StandardView::isometric;
  stability::HydroMesh mesh_;
  // What was shown last, to tell a change.
  PointTable lastX_, lastY_, lastZ_;
  int lastChines_ = -1;
  PointArr lastWlX_, lastWlZ_, lastArea_;
  double lastPitch_ = 0;
  int langue_ = -1;
};

// The window, or null after a message when no OpenGL context can be made.
HullViewWindow* openHullViewWindow(QWidget* board, const HullStore& h);

}  // namespace tolmar::gui
