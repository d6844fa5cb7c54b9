#include "windows/mass1_window.h"

#include <QCloseEvent>
#include <QFocusEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "windows/field_widgets.h"

namespace tolmar::gui {

namespace {

// The groups of rows as the screen stacks them.
constexpr int kGroupRows[4][6] = {
    {1, 2, 3, 4, -1, -1}, {5, 6, 7, 8, -1, -1}, {21, 22, 23, 24, -1, -1}, {13, 14, 15, 16, 17, 18}};

// A scroll area whose natural size is its whole content: the window comes
// up showing every row, and scrolls only when it is made shorter.
class WholeScrollArea : public QScrollArea {
 public:
  using QScrollArea::QScrollArea;
  QSize sizeHint() const override {
    const int f = 2 * frameWidth();
    return widget() ? widget()->sizeHint() + QSize(f, f) : QScrollArea::sizeHint();
  }
};

}  // namespace

Mass1Window::Mass1Window(analysis::Mass1& model, QWidget* parent)
    : QWidget(parent, Qt::Window), model_(model) {
  setObjectName("mass1");
  auto* outer = new QVBoxLayout(this);
  scroll_ = new WholeScrollArea(this);
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setWidgetResizable(true);
  scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* rows = new QWidget(scroll_);
  auto* top = new QVBoxLayout(rows);
  top->setContentsMargins(0, 0, 0, 0);
  label1_ = new QLabel(this);
  top->addWidget(label1_);

  // One grid: the column heads, then each group's caption and rows, then
  // the totals, so that every column lines up.
  auto* grid = new QGridLayout;
  grid->setColumnMinimumWidth(0, 150);
  int line = 0;
  for (int c = 0; c < 4; ++c) {
    label2_[c] = new QLabel(this);
    label2_[c]->setWordWrap(true);
    label2_[c]->setAlignment(Qt::AlignCenter);
    label2_[c]->setFixedWidth(120);
    grid->addWidget(label2_[c], line, c + 1);
  }
  ++line;

  auto addRow = [this, grid](int at, int r) {
    label3_[r] = new QLabel(this);
    grid->addWidget(label3_[r], at, 0);
    for (int c = 0; c < 4; ++c) {
      if (!modelText(c + 1, r).visible) continue;
      auto* e = new QLineEdit(this);
      e->setObjectName(QString("Text%1(%2)").arg(c + 1).arg(r));
      e->setFixedWidth(120);
      e->setReadOnly(modelText(c + 1, r).backColor == analysis::kResultPink);
      e->installEventFilter(this);
      connect(e, &QLineEdit::returnPressed, this, [this] {
        if (onEnter) onEnter();
      });
      text_[c][r] = e;
      grid->addWidget(e, at, c + 1);
    }
  };
  for (int g = 0; g < 4; ++g) {
    frame_[g] = new QLabel(this);
    QFont bold = frame_[g]->font();
    bold.setBold(true);
    frame_[g]->setFont(bold);
    grid->addWidget(frame_[g], line++, 0, 1, 5);
    for (int r : kGroupRows[g])
      if (r >= 0) addRow(line++, r);
  }
  grid->setRowMinimumHeight(line++, 8);
  addRow(line, 0);
  top->addLayout(grid);
  top->addStretch();
  scroll_->setWidget(rows);
  outer->addWidget(scroll_);

  // Calcul1 stays in sight under the rows.
  calcul1_ = new QPushButton(this);
  calcul1_->setObjectName("Calcul1");
  calcul1_->setAutoDefault(false);
  outer->addWidget(calcul1_);
  connect(calcul1_, &QPushButton::clicked, this, [this] {
    if (onCalcul) onCalcul();
  });
}

Field& Mass1Window::modelText(int column, int row) {
  switch (column) {
    case 1:
      return model_.Text1(row);
    case 2:
      return model_.Text2(row);
    case 3:
      return model_.Text3(row);
    default:
      return model_.Text4(row);
  }
}

QLineEdit* Mass1Window::text(int column, int row) {
  if (column < 1 || column > 4 || row < 0 || row > analysis::kLastMassRow) return nullptr;
  return text_[column - 1][row];
}

void Mass1Window::showModel() {
  setWindowTitle(qtText(model_.title.caption));
  label1_->setText(qtText(model_.Label1.caption));
  for (int c = 0; c < 4; ++c) {
    showCaption(label2_[c], model_.Label2(c + 1));
    // A scroll area lays its rows out without height for width: the
    // wrapped heading asks for its lines itself.
    label2_[c]->setMinimumHeight(label2_[c]->heightForWidth(label2_[c]->width()));
  }
  const Field* frames[4] = {&model_.Frame1, &model_.Frame2, &model_.Frame3, &model_.Frame4};
  for (int g = 0; g < 4; ++g) frame_[g]->setText(qtText(frames[g]->caption));
  for (int r = 0; r <= analysis::kLastMassRow; ++r) {
    if (label3_[r]) showCaption(label3_[r], model_.Label3(r));
    for (int c = 0; c < 4; ++c)
      if (text_[c][r]) showField(text_[c][r], modelText(c + 1, r));
  }
  showCaption(calcul1_, model_.Calcul1);
}

void Mass1Window::takeTexts() {
  for (int r = 0; r <= analysis::kLastMassRow; ++r)
    for (int c = 0; c < 4; ++c)
      if (text_[c][r]) takeText(modelText(c + 1, r), text_[c][r]);
}

bool Mass1Window::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusOut) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    // Leaving for another window is the screen's deactivation, not a field's.
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && onFieldLeft)
      onFieldLeft();
  }
  return QWidget::eventFilter(watched, event);
}

QSize Mass1Window::sizeHint() const {
  // All rows in sight: the layout alone would let word-wrapped headings
  // trade height for width and leave the rows a little short.
  const QLayout* l = layout();
  const QMargins m = l->contentsMargins();
  const QSize rows = scroll_->sizeHint(), button = calcul1_->sizeHint();
  return {std::max(rows.width(), button.width()) + m.left() + m.right(),
          rows.height() + l->spacing() + button.height() + m.top() + m.bottom()};
}

int Mass1Window::scrollBarWidth() const { return scroll_->verticalScrollBar()->sizeHint().width(); }

void Mass1Window::closeEvent(QCloseEvent* event) {
  if (onClose && isVisible()) onClose();
  event->accept();
}

}  // namespace tolmar::gui
