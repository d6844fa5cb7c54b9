#include "windows/plate_choice_dialog.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "printing/pattern_pages.h"
#include "printing/pattern_tiles.h"

namespace tolmar::gui {

namespace {

QSettings settings() { return QSettings(QStringLiteral("Tolmar"), QStringLiteral("tolmar")); }

struct Range {
  double lo, hi, byDefault, step;
};

Range rangeOf(PlateDocument doc) {
  if (doc == PlateDocument::patterns) return {kMinOverlapMm, kMaxOverlapMm, kPatternOverlapMm, 1};
  return {1, 1000, 100, 10};
}

QString group(PlateDocument doc) {
  return doc == PlateDocument::patterns ? QStringLiteral("patterns/")
                                        : QStringLiteral("panelOffsets/");
}

bool contains(const std::vector<std::string>& v, const std::string& s) {
  return std::find(v.begin(), v.end(), s) != v.end();
}

}  // namespace

PlateChoice rememberedPlateChoice(PlateDocument doc, const std::vector<DevelopedPlate>& plates) {
  const QSettings s = settings();
  const QStringList in = s.value(group(doc) + QStringLiteral("platesIn")).toStringList();
  const QStringList out = s.value(group(doc) + QStringLiteral("platesOut")).toStringList();
  PlateChoice c;
  for (const DevelopedPlate& p : plates) {
    if (p.empty()) continue;
    const QString name = QString::fromStdString(p.name);
    const bool chosen = in.contains(name) || (!out.contains(name) && p.kind != PlateKind::deck);
    if (chosen) c.plates.push_back(p.name);
  }
  const Range r = rangeOf(doc);
  bool ok = false;
  const double v = s.value(group(doc) + QStringLiteral("valueMm")).toDouble(&ok);
  c.valueMm = ok && std::isfinite(v) && v >= r.lo && v <= r.hi ? v : r.byDefault;
  return c;
}

void rememberPlateChoice(PlateDocument doc, const std::vector<DevelopedPlate>& plates,
                         const PlateChoice& choice) {
  QSettings s = settings();
  QStringList in = s.value(group(doc) + QStringLiteral("platesIn")).toStringList();
  QStringList out = s.value(group(doc) + QStringLiteral("platesOut")).toStringList();
  for (const DevelopedPlate& p : plates) {
    if (p.empty()) continue;
    const QString name = QString::fromStdString(p.name);
    in.removeAll(name);
    out.removeAll(name);
    (contains(choice.plates, p.name) ? in : out) << name;
  }
  s.setValue(group(doc) + QStringLiteral("platesIn"), in);
  s.setValue(group(doc) + QStringLiteral("platesOut"), out);
  s.setValue(group(doc) + QStringLiteral("valueMm"), choice.valueMm);
}

PlateChoiceDialog::PlateChoiceDialog(PlateDocument doc, const std::vector<DevelopedPlate>& plates,
                                     const PlateChoice& initial, int langue, QWidget* parent)
    : QDialog(parent) {
  const bool fr = langue == 0;
  const bool patterns = doc == PlateDocument::patterns;
  setObjectName(patterns ? QStringLiteral("patternChoice") : QStringLiteral("panelOffsetsChoice"));
  setWindowTitle(
      patterns
          ? (fr ? QStringLiteral("Gabarits grandeur nature") : QStringLiteral("Full-size patterns"))
          : (fr ? QStringLiteral("Cotes des panneaux") : QStringLiteral("Panel offsets")));

  auto* help = new QLabel(
      fr ? QStringLiteral("Plaques à imprimer :") : QStringLiteral("Plates to print:"), this);
  list_ = new QListWidget(this);
  list_->setObjectName(QStringLiteral("plates"));
  for (const DevelopedPlate& p : plates) {
    if (p.empty()) continue;
    // The bottom and the planks also by the name the files and the CLI use.
    QString text = QString::fromStdString(plateTitle(p, langue));
    if (p.kind == PlateKind::bottom || p.kind == PlateKind::plank)
      text += QStringLiteral(" (%1)").arg(QString::fromStdString(p.name));
    auto* item = new QListWidgetItem(text, list_);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
    item->setCheckState(contains(initial.plates, p.name) ? Qt::Checked : Qt::Unchecked);
    names_.push_back(p.name);
  }
  auto* all = new QPushButton(fr ? QStringLiteral("Toutes") : QStringLiteral("All"), this);
  auto* none = new QPushButton(fr ? QStringLiteral("Aucune") : QStringLiteral("None"), this);
  all->setObjectName(QStringLiteral("all"));
  none->setObjectName(QStringLiteral("none"));
  const auto tickAll = [this](Qt::CheckState state) {
    for (int i = 0; i < list_->count(); ++i) list_->item(i)->setCheckState(state);
  };
  connect(all, &QPushButton::clicked, this, [tickAll] { tickAll(Qt::Checked); });
  connect(none, &QPushButton::clicked, this, [tickAll] { tickAll(Qt::Unchecked); });
  auto* row = new QHBoxLayout;
  row->addWidget(all);
  row->addWidget(none);
  row->addStretch();

  const Range r = rangeOf(doc);
  value_ = new QDoubleSpinBox(this);
  value_->setObjectName(QStringLiteral("valueMm"));
  value_->setRange(r.lo, r.hi);
  value_->setDecimals(1);
  value_->setSingleStep(r.step);
  value_->setSuffix(QStringLiteral(" mm"));
  value_->setValue(initial.valueMm);
  auto* form = new QFormLayout;
  form->addRow(
      patterns ? (fr ? QStringLiteral("Recouvrement des feuilles")
                     : QStringLiteral("Overlap of the tiles"))
               : (fr ? QStringLiteral("Pas des stations") : QStringLiteral("Step of the stations")),
      value_);

  buttons_ = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons_->button(QDialogButtonBox::Ok)
      ->setText(fr ? QStringLiteral("Imprimer") : QStringLiteral("Print"));
  buttons_->button(QDialogButtonBox::Cancel)
      ->setText(fr ? QStringLiteral("Annuler") : QStringLiteral("Cancel"));
  connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(list_, &QListWidget::itemChanged, this, &PlateChoiceDialog::updateOk);

  auto* box = new QVBoxLayout(this);
  box->addWidget(help);
  box->addWidget(list_);
  box->addLayout(row);
  box->addLayout(form);
  box->addWidget(buttons_);
  updateOk();
}

PlateChoice PlateChoiceDialog::choice() const {
  PlateChoice c;
  for (int i = 0; i < list_->count(); ++i)
    if (list_->item(i)->checkState() == Qt::Checked) c.plates.push_back(names_[i]);
  c.valueMm = value_->value();
  return c;
}

// Nothing to print: no Print.
void PlateChoiceDialog::updateOk() {
  buttons_->button(QDialogButtonBox::Ok)->setEnabled(!choice().plates.empty());
}

std::optional<PlateChoice> askPlateChoice(QWidget* parent, bool unattended, PlateDocument doc,
                                          const std::vector<DevelopedPlate>& plates, int langue) {
  const PlateChoice remembered = rememberedPlateChoice(doc, plates);
  if (unattended) {
    if (remembered.plates.empty()) return std::nullopt;
    return remembered;
  }
  PlateChoiceDialog dialog(doc, plates, remembered, langue, parent);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  const PlateChoice c = dialog.choice();
  rememberPlateChoice(doc, plates, c);
  return c;
}

}  // namespace tolmar::gui
