#include "windows/stability_window.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QSplitter>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "analysis/mass_screen.h"
#include "printing/print_host.h"
#include "printing/print_job.h"
#include "printing/stability_page.h"
#include "stability/stability_plots.h"
#include "stability/stability_text.h"
#include "windows/busy_cursor.h"
#include "windows/field_widgets.h"
#include "windows/file_dialog.h"
#include "windows/printer_dialog.h"
#include "windows/surface_plot.h"

namespace tolmar::gui {

namespace {

using namespace stability;

QString caption(Text t, int langue) {
  const std::string_view s = text(t, langue);
  return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

// A typed number ("1,5" reads as 1.5); empty: none.  False for a text
// that is not a number.
bool readField(const QLineEdit* e, std::optional<double>& out) {
  QString t = e->text().trimmed();
  t.replace(',', '.');
  out.reset();
  if (t.isEmpty()) return true;
  bool ok = false;
  const double v = t.toDouble(&ok);
  if (!ok || !std::isfinite(v)) return false;
  out = v;
  return true;
}

QLineEdit* numberField(QWidget* parent, const char* name, const QString& value = {}) {
  auto* e = new QLineEdit(value, parent);
  e->setObjectName(name);
  e->setMaximumWidth(110);
  return e;
}

// A field wide enough for its placeholder to show whole.
void showPlaceholder(QLineEdit* e, const QString& text) {
  e->setPlaceholderText(text);
  const int wide =
      e->fontMetrics().horizontalAdvance(text) + 2 * e->fontMetrics().averageCharWidth() + 12;
  e->setMaximumWidth(std::max(110, wide));
  e->setMinimumWidth(wide);
}

void fillTable(QTableWidget* w, const stability::Table& t) {
  w->clear();
  w->setColumnCount(static_cast<int>(t.head.size()));
  w->setRowCount(static_cast<int>(t.rows.size()));
  QStringList head;
  for (const std::string& h : t.head) head << qtText(h);
  w->setHorizontalHeaderLabels(head);
  for (int r = 0; r < static_cast<int>(t.rows.size()); ++r)
    for (int c = 0; c < static_cast<int>(t.rows[r].size()); ++c) {
      auto* item = new QTableWidgetItem(qtText(t.rows[r][c]));
      item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      item->setFlags(item->flags() & ~Qt::ItemIsEditable);
      w->setItem(r, c, item);
    }
  w->resizeColumnsToContents();
}

}  // namespace

StabilityWindow::StabilityWindow(QWidget* board, const HullStore& h)
    : QWidget(board, Qt::Window),
      board_(h),
      watch_(h),
      h_(withMassBudget(h)),
      langue_(h.langue),
      files_(std::make_unique<CmDialog1>(this)),
      printers_(std::make_unique<CmDialog2>(this)) {
  setObjectName("stability");
  buildControls();
  setTexts();
  loadSettings();
  compute();
  // Wide enough for the four tabs' titles in French beside the fields.
  resize(1320, 760);
}

StabilityWindow::~StabilityWindow() = default;

void StabilityWindow::buildControls() {
  auto* split = new QSplitter(this);
  auto* outer = new QHBoxLayout(this);
  outer->addWidget(split);

  auto* inputs = new QWidget(split);
  auto* col = new QVBoxLayout(inputs);
  auto* loading = new QGroupBox(inputs);
  loading->setObjectName("loading");
  auto* form = new QFormLayout(loading);
  dispBudget_ = new QRadioButton(loading);
  dispBudget_->setObjectName("dispBudget");
  dispTyped_ = new QRadioButton(loading);
  dispTyped_->setObjectName("dispTyped");
  dispBudget_->setChecked(true);
  volume_ = numberField(loading, "volume");
  water_ = new QComboBox(loading);
  water_->setObjectName("water");
  water_->addItems({QString(), QString()});
  lcg_ = numberField(loading, "lcg");
  kg_ = numberField(loading, "kg");
  for (int i = 0; i < 12; ++i) labels_[i] = new QLabel(inputs);
  form->addRow(dispBudget_);
  form->addRow(dispTyped_, volume_);
  form->addRow(labels_[0], water_);
  form->addRow(labels_[1], lcg_);
  form->addRow(labels_[2], kg_);
  col->addWidget(loading);

  auto* equip = new QGroupBox(inputs);
  equip->setObjectName("equipment");
  auto* eform = new QFormLayout(equip);
  for (int j = 0; j < kEquipmentRows; ++j) {
    equipLabels_[j] = new QLabel(equip);
    equip_[j] = numberField(equip, ("equipZ" + std::to_string(13 + j)).c_str());
    eform->addRow(equipLabels_[j], equip_[j]);
  }
  col->addWidget(equip);

  auto* heel = new QGroupBox(inputs);
  auto* hform = new QFormLayout(heel);
  auto* angles = new QHBoxLayout;
  from_ = numberField(heel, "from", "0");
  to_ = numberField(heel, "to", "180");
  step_ = numberField(heel, "step", "5");
  angles->addWidget(from_);
  angles->addWidget(to_);
  angles->addWidget(step_);
  hform->addRow(labels_[3], angles);
  crewKg_ = numberField(heel, "crewKg");
  crewY_ = numberField(heel, "crewY");
  curveStep_ = numberField(heel, "curveStep", "0.05");
  hform->addRow(labels_[4], crewKg_);
  hform->addRow(labels_[5], crewY_);
  hform->addRow(labels_[6], curveStep_);
  col->addWidget(heel);

  auto* buttons = new QHBoxLayout;
  compute_ = new QPushButton(inputs);
  compute_->setObjectName("compute");
  print_ = new QPushButton(inputs);
  print_->setObjectName("print");
  close_ = new QPushButton(inputs);
  close_->setObjectName("close");
  buttons->addWidget(compute_);
  buttons->addWidget(print_);
  buttons->addWidget(close_);
  col->addLayout(buttons);
  message_ = new QLabel(inputs);
  message_->setObjectName("message");
  message_->setWordWrap(true);
  message_->setStyleSheet("color: #c00000");
  col->addWidget(message_);
  summary_ = new QLabel(inputs);
  summary_->setObjectName("summary");
  summary_->setWordWrap(true);
  summary_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  col->addWidget(summary_);
  col->addStretch(1);

  tabs_ = new QTabWidget(split);
  tabs_->setObjectName("tabs");
  // Narrowed, the titles are cut short rather than scrolled out of sight.
  tabs_->setElideMode(Qt::ElideRight);
  tabs_->setUsesScrollButtons(false);
  gzPlot_ = new SurfacePlot(tabs_);
  gzPlot_->setObjectName("gzPlot");
  curvesPlot_ = new SurfacePlot(tabs_);
  curvesPlot_->setObjectName("curvesPlot");
  gzTable_ = new QTableWidget(tabs_);
  gzTable_->setObjectName("gzTable");
  curvesTable_ = new QTableWidget(tabs_);
  curvesTable_->setObjectName("curvesTable");
  tabs_->addTab(gzPlot_, QString());
  tabs_->addTab(curvesPlot_, QString());
  tabs_->addTab(gzTable_, QString());
  tabs_->addTab(curvesTable_, QString());
  split->setStretchFactor(1, 1);

  connect(compute_, &QPushButton::clicked, this, [this] { compute(); });
  connect(print_, &QPushButton::clicked, this, [this] { print(); });
  connect(close_, &QPushButton::clicked, this, &QWidget::close);
  for (QLineEdit* e : {volume_, lcg_, kg_, from_, to_, step_, crewKg_, crewY_, curveStep_})
    connect(e, &QLineEdit::returnPressed, this, [this] { compute(); });
  connect(volume_, &QLineEdit::textEdited, this, [this] { dispTyped_->setChecked(true); });
}

void StabilityWindow::setTexts() {
  const int l = langue_;
  setWindowTitle(caption(Text::windowTitle, l) + " - " + qtText(h_->hullName));
  findChild<QGroupBox*>("loading")->setTitle(caption(Text::displacement, l));
  findChild<QGroupBox*>("equipment")->setTitle(caption(Text::equipHeights, l));
  const QString kg = QString::number(h_->totalMass, 'f', 1);
  dispBudget_->setText(caption(Text::fromBudget, l) + " (" + kg + " kg)");
  dispTyped_->setText(caption(Text::volume, l));
  water_->setItemText(0, caption(Text::freshWater, l));
  water_->setItemText(1, caption(Text::seaWater, l));
  labels_[0]->setText(caption(Text::density, l));
  labels_[1]->setText(caption(Text::lcg, l));
  labels_[2]->setText(caption(Text::kg, l));
  labels_[3]->setText(caption(Text::angles, l));
  labels_[4]->setText(caption(Text::crewMass, l));
  labels_[5]->setText(caption(Text::crewY, l));
  labels_[6]->setText(caption(Text::curveStep, l));
  showPlaceholder(lcg_, caption(Text::fromBudget, l));
  showPlaceholder(kg_, caption(Text::fromBudget, l));
  // The mass budget's own captions for its equipment rows.
  analysis::Mass1 mass;
  analysis::loadMass(mass, *h_);
  analysis::setMassTexts(mass, *h_);
  for (int j = 0; j < kEquipmentRows; ++j) {
    const int row = 13 + j;
    equipLabels_[j]->setText(qtText(mass.Label3(row).caption) + " (" +
                             QString::number(h_->equipMass(j + 1), 'f', 1) + " kg)");
    showPlaceholder(equip_[j], caption(Text::onKeel, l));
  }
  compute_->setText(caption(Text::compute, l));
  print_->setText(caption(Text::print, l));
  close_->setText(caption(Text::close, l));
  tabs_->setTabText(0, caption(Text::gzTitle, l));
  tabs_->setTabText(1, caption(Text::curvesTitle, l));
  tabs_->setTabText(2, caption(Text::gzTable, l));
  tabs_->setTabText(3, caption(Text::curvesTable, l));
  for (int i = 0; i < tabs_->count(); ++i) tabs_->setTabToolTip(i, tabs_->tabText(i));
}

QLineEdit* StabilityWindow::field(const char* objectName) const {
  return findChild<QLineEdit*>(objectName);
}

bool StabilityWindow::readOptions(StabilityOptions& o) {
  std::optional<double> v, from, to, step, curve;
  bool ok = true;
  if (dispTyped_->isChecked()) {
    ok = readField(volume_, v) && ok;
    o.volume = v ? v : std::optional<double>(0.0);
  }
  o.density = water_->currentIndex() == 1 ? kSeaWater : kFreshWater;
  ok = readField(lcg_, o.lcg) && ok;
  ok = readField(kg_, o.kg) && ok;
  for (int j = 0; j < kEquipmentRows; ++j) {
    ok = readField(equip_[j], v) && ok;
    o.equipHeights[j] = v ? *v : std::nan("");
  }
  ok = readField(from_, from) && readField(to_, to) && readField(step_, step) && ok;
  o.fromDeg = from.value_or(0);
  o.toDeg = to.value_or(180);
  o.stepDeg = step.value_or(5);
  ok = readField(crewKg_, o.crewKg) && readField(crewY_, o.crewY) && ok;
  ok = readField(curveStep_, curve) && ok;
  o.curveStep = curve.value_or(0.05);
  if (!ok)
    message_->setText(langue_ == 0 ? "Une des valeurs entrées n'est pas un nombre."
                                   : "One of the values given is not a number.");
  return ok;
}

void StabilityWindow::compute() {
  StabilityOptions o;
  if (!readOptions(o)) return;
  BusyCursor busy;
  result_ = runStability(*h_, o, langue_);
  saveSettings();
  showResult();
}

void StabilityWindow::showResult() {
  message_->setText(qtText(result_.error));
  print_->setEnabled(result_.ok());
  if (!result_.ok()) {
    summary_->clear();
    gzPlot_->setDraw({});
    curvesPlot_->setDraw({});
    gzTable_->clear();
    curvesTable_->clear();
    return;
  }
  QStringList lines;
  for (const std::string& s : summaryLines(result_, langue_)) lines << qtText(s);
  summary_->setText(lines.join('\n'));
  const StabilityResult r = result_;
  const int l = langue_;
  gzPlot_->setDraw([r, l](DrawingSurface& s, float w, float h) {
    drawGzPlot(s, {150, 150, w - 300, h - 300}, r, l);
  });
  curvesPlot_->setDraw([r, l](DrawingSurface& s, float w, float h) {
    drawCurvesPlot(s, {150, 150, w - 300, h - 300}, r.curves, l);
  });
  fillTable(gzTable_, gzTable(result_, langue_));
  fillTable(curvesTable_, curvesTable(result_.curves, langue_));
}

void StabilityWindow::follow() {
  if (!watch_.changed()) return;
  h_ = withMassBudget(board_);
  setTexts();
  StabilityOptions o;
  if (!readOptions(o)) {
    // What was shown belongs to the hull before: it goes, the message stays.
    result_ = {};
    result_.error = message_->text().toStdString();
    showResult();
    return;
  }
  compute();
}

bool StabilityWindow::print() {
  if (!result_.ok()) return false;
  PrintHost host;
  const PrintOutcome out =
      printDocument(*files_, *printers_, *h_, [this, &host](DrawingSurface& s) {
        PrintJob job{s, *h_, host};
        printStability(job, result_);
      });
  return out == PrintOutcome::printed;
}

void StabilityWindow::loadSettings() {
  QSettings s;
  s.beginGroup("stability");
  water_->setCurrentIndex(s.value("water", 0).toInt() == 1 ? 1 : 0);
  step_->setText(s.value("step", "5").toString());
  curveStep_->setText(s.value("curveStep", "0.05").toString());
  s.endGroup();
}

void StabilityWindow::saveSettings() const {
  QSettings s;
  s.beginGroup("stability");
  s.setValue("water", water_->currentIndex());
  s.setValue("step", step_->text());
  s.setValue("curveStep", curveStep_->text());
  s.endGroup();
}

QWidget* openStabilityWindow(QWidget* board, const HullStore& h) {
  return new StabilityWindow(board, h);
}

}  // namespace tolmar::gui
