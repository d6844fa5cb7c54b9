#include "windows/devcheck_window.h"

#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QTableWidget>
#include <QVBoxLayout>

#include "devcheck/check_table.h"
#include "hull/fold_check.h"

namespace tolmar::gui {

namespace {

QString q(const std::string& s) {
  return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

QColor colourOf(std::int32_t rgb) {
  return QColor(rgb & 0xff, (rgb >> 8) & 0xff, (rgb >> 16) & 0xff);
}

constexpr const char* kFactorKey = "devcheck/factor";
constexpr const char* kThicknessKey = "devcheck/thicknessMm";

}  // namespace

DevCheckWindow::DevCheckWindow(QWidget* parent, const HullStore& h, DrawOnBoard draw)
    : QWidget(parent, Qt::Window),
      h_(h),
      langue_(h.langue),
      watch_(h),
      drawOnBoard_(std::move(draw)) {
  setObjectName("devcheck");
  const bool fr = langue_ == 0;
  setWindowTitle(q(devcheck::checkTitle(langue_)));
  table_ = new QTableWidget(this);
  table_->setObjectName("table");
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->verticalHeader()->hide();
  table_->horizontalHeader()->setStretchLastSection(true);
  factor_ = new QDoubleSpinBox(this);
  factor_->setObjectName("factor");
  factor_->setRange(0.1, 10);
  factor_->setSingleStep(0.1);
  factor_->setDecimals(2);
  thickness_ = new QDoubleSpinBox(this);
  thickness_->setObjectName("thickness");
  thickness_->setRange(0.5, 50);
  thickness_->setDecimals(1);
  thickness_->setSuffix(" mm");
  QSettings settings;
  factor_->setValue(settings.value(kFactorKey, 1.0).toDouble());
  thickness_->setValue(settings.value(kThicknessKey, 6.0).toDouble());
  draw_ = new QPushButton(fr ? "Dessiner sur la planche" : "Draw on the board", this);
  draw_->setObjectName("draw");
  notes_ = new QLabel(this);
  notes_->setObjectName("notes");
  notes_->setWordWrap(true);
  // The colours of the rows, and of the patterns the button draws.
  auto* legend = new QHBoxLayout;
  legend->addWidget(new QLabel(
      fr ? "Couleurs, ici et sur la planche :" : "Colours, here and on the board:", this));
  for (const devcheck::Verdict v :
       {devcheck::Verdict::fits, devcheck::Verdict::tight, devcheck::Verdict::willNotBend}) {
    auto* l = new QLabel(QString::fromUtf8("\u25A0 ") + q(devcheck::verdictText(v, langue_)), this);
    l->setObjectName(QString("legend%1").arg(static_cast<int>(v)));
    QPalette p = l->palette();
    p.setColor(QPalette::WindowText, colourOf(devcheck::verdictColour(v)));
    l->setPalette(p);
    legend_[static_cast<int>(v)] = l;
    legend->addSpacing(12);
    legend->addWidget(l);
  }
  legend->addStretch();

  auto* form = new QFormLayout;
  form->addRow(fr ? "Facteur du contreplaqué" : "Plywood factor", factor_);
  form->addRow(fr ? "Épaisseur si non donnée" : "Thickness when none given", thickness_);
  auto* top = new QHBoxLayout;
  top->addLayout(form);
  top->addStretch();
  top->addWidget(draw_);
  auto* v = new QVBoxLayout(this);
  v->addLayout(top);
  v->addWidget(table_, 1);
  v->addLayout(legend);
  v->addWidget(notes_);

  auto changed = [this] {
    QSettings s;
    s.setValue(kFactorKey, factor_->value());
    s.setValue(kThicknessKey, thickness_->value());
    refresh();
  };
  connect(factor_, &QDoubleSpinBox::valueChanged, this, changed);
  connect(thickness_, &QDoubleSpinBox::valueChanged, this, changed);
  connect(draw_, &QPushButton::clicked, this, [this] {
    if (drawOnBoard_ && !report_.folded) drawOnBoard_(plates_, report_);
  });
  resize(1100, 520);
  refresh();
}

void DevCheckWindow::follow() {
  if (watch_.changed()) refresh();
}

void DevCheckWindow::refresh() {
  const int langue = langue_;
  devcheck::CheckOptions o;
  o.factor = factor_->value();
  o.assumedThickness = thickness_->value() / 1000;
  const FoldReport folds = checkFolds(h_);
  plates_.clear();
  if (folds.folded()) {
    report_ = {};
    report_.folded = true;
    report_.message = folds.message(langue);
  } else {
    plates_ = developAll(h_);
    report_ = devcheck::checkDevelopment(h_, plates_, o);
  }
  const std::vector<std::string> heads = devcheck::checkHeads(langue);
  table_->clear();
  table_->setColumnCount(static_cast<int>(heads.size()));
  QStringList labels;
  for (const std::string& s : heads) labels << q(s);
  table_->setHorizontalHeaderLabels(labels);
  table_->setRowCount(static_cast<int>(report_.plates.size()));
  for (int r = 0; r < table_->rowCount(); ++r) {
    const devcheck::PlateCheck& c = report_.plates[static_cast<std::size_t>(r)];
    const std::vector<std::string> cells = devcheck::checkCells(c, langue);
    const QColor colour = colourOf(devcheck::verdictColour(c.verdict));
    for (int col = 0; col < static_cast<int>(cells.size()); ++col) {
      auto* item = new QTableWidgetItem(q(cells[static_cast<std::size_t>(col)]));
      item->setForeground(colour);
      if (col == static_cast<int>(cells.size()) - 1) {
        QColor back = colour;
        back.setAlpha(50);
        item->setBackground(back);
      }
      table_->setItem(r, col, item);
    }
  }
  table_->resizeColumnsToContents();
  draw_->setEnabled(!report_.folded);
  QStringList lines;
  if (report_.folded) {
    lines << q(report_.message);
  } else {
    for (const std::string& s : devcheck::checkNotes(report_, o, langue)) lines << q(s);
  }
  notes_->setText(lines.join('\n'));
}

}  // namespace tolmar::gui
