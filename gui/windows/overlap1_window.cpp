#include "windows/overlap1_window.h"

#include <QEvent>
#include <QFocusEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "windows/field_widgets.h"

namespace tolmar::gui {

namespace {

using Group = Overlap1::Group;

// Focus leaving for another window is no leaving of the field.
bool leavesField(const QFocusEvent* e) {
  return e->reason() != Qt::ActiveWindowFocusReason && e->reason() != Qt::PopupFocusReason;
}

}  // namespace

Overlap1Window::Overlap1Window(HullStore& h, QWidget* parent) : QDialog(parent), h_(h) {
  setObjectName("overlap1");
  model_.load();
  build();
}

void Overlap1Window::build() {
  auto* top = new QVBoxLayout(this);
  label0_ = new QLabel(this);
  label0_->setWordWrap(true);
  top->addWidget(label0_);

  const struct {
    Group g;
    int index;
  } order[6] = {{Group::text1, 0}, {Group::text1, 1}, {Group::text2, 0},
                {Group::text2, 1}, {Group::text3, 1}, {Group::text3, 2}};
  auto* grid = new QGridLayout;
  int row = 0;
  for (int k = 0; k < 6; ++k) {
    auto* label = new QLabel(this);
    auto* edit = new QLineEdit(this);
    edit->setObjectName(
        QString("Text%1(%2)").arg(static_cast<int>(order[k].g) + 1).arg(order[k].index));
    edit->setMaximumWidth(120);
    label9_[k] = new QLabel(this);
    slots_[k] = {order[k].g, order[k].index, edit, label};
    grid->addWidget(label, row, 0);
    grid->addWidget(edit, row, 1);
    grid->addWidget(label9_[k], row, 2);
    ++row;
    edit->installEventFilter(this);
    const Slot s = slots_[k];
    connect(edit, &QLineEdit::textEdited, this, [this, s](const QString& text) {
      model_.typeText(h_, s.group, s.index, text.toStdString());
      showModel();
    });
    connect(edit, &QLineEdit::returnPressed, this, [this, s] {
      model_.leaveField(h_, s.group, s.index);
      showModel();
    });
    // The advice of the bottom under its two fields, that of the sides
    // under theirs, each with the room of its lines (two for the bottom,
    // one for the sides) from the start, so that the fields stay still.
    if (k == 1 || k == 3) {
      QLabel* advice = label8_[k / 2] = new QLabel(this);
      advice->setObjectName(QString("Label8(%1)").arg(k / 2));
      const int lines = k == 1 ? 2 : 1;
      advice->setFixedHeight(lines * advice->fontMetrics().lineSpacing() + 2 * advice->margin());
      advice->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
      grid->addWidget(advice, row++, 0, 1, 3);
    }
  }
  top->addLayout(grid);

  auto* buttons = new QHBoxLayout;
  for (int i = 0; i < 3; ++i) {
    command1_[i] = new QPushButton(this);
    command1_[i]->setObjectName(QString("Command1(%1)").arg(i));
    // Enter in a field rewrites it; it must not press a button.
    command1_[i]->setAutoDefault(false);
    command1_[i]->setDefault(false);
    connect(command1_[i], &QPushButton::clicked, this, [this, i] { clickCommand1(i); });
    buttons->addWidget(command1_[i]);
  }
  top->addLayout(buttons);
}

QLineEdit* Overlap1Window::field(Group g, int index) {
  for (const Slot& s : slots_)
    if (s.group == g && s.index == index) return s.edit;
  return nullptr;
}

const Overlap1Window::Slot* Overlap1Window::slotOf(const QObject* o) const {
  for (const Slot& s : slots_)
    if (s.edit == o) return &s;
  return nullptr;
}

int Overlap1Window::run() {
  model_.activate(h_);
  showModel();
  exec();
  return h_.overlapMode;
}

void Overlap1Window::showModel() {
  setWindowTitle(qtText(model_.title.caption));
  label0_->setText(qtText(model_.Label0.caption));
  for (int k = 0; k < 6; ++k) {
    const Slot& s = slots_[k];
    const Field& f = s.group == Group::text1   ? model_.Text1(s.index)
                     : s.group == Group::text2 ? model_.Text2(s.index)
                                               : model_.Text3(s.index);
    const Field& caption = s.group == Group::text1   ? model_.Label1(s.index)
                           : s.group == Group::text2 ? model_.Label2(s.index)
                                                     : model_.Label3(s.index);
    showField(s.edit, f);
    showCaption(s.label, caption);
    showCaption(label9_[k], model_.Label9(k));
  }
  for (int i = 0; i < 2; ++i) showCaption(label8_[i], model_.Label8(i));
  for (int i = 0; i < 3; ++i) showCaption(command1_[i], model_.Command1(i));
}

bool Overlap1Window::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusOut && leavesField(static_cast<QFocusEvent*>(event))) {
    if (const Slot* s = slotOf(watched)) {
      model_.leaveField(h_, s->group, s->index);
      showModel();
    }
  }
  return QDialog::eventFilter(watched, event);
}

void Overlap1Window::clickCommand1(int i) {
  model_.clickCommand1(h_, i);
  showModel();
  done(QDialog::Accepted);
}

void Overlap1Window::reject() {
  // The screen always ends through a button: Escape and closing the window
  // are its Cancel.
  if (model_.visible) model_.clickCommand1(h_, 0);
  QDialog::reject();
}

}  // namespace tolmar::gui
