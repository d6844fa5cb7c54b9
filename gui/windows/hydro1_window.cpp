#include "windows/hydro1_window.h"

#include <QButtonGroup>
#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "windows/field_widgets.h"

namespace tolmar::gui {

Hydro1Window::Hydro1Window(analysis::Hydro1& model, QWidget* parent)
    : QWidget(parent, Qt::Window), model_(model) {
  setObjectName("hydro1");
  auto* top = new QVBoxLayout(this);
  for (int i = 0; i < 3; ++i) {
    label1_[i] = new QLabel(this);
    label1_[i]->setWordWrap(true);
  }
  top->addWidget(label1_[0]);
  top->addWidget(label1_[1]);

  auto* grid = new QGridLayout;
  auto* modes = new QButtonGroup(this);
  for (int i = 0; i < 2; ++i) {
    option1_[i] = new QRadioButton(this);
    option1_[i]->setObjectName(QString("Option1(%1)").arg(i));
    modes->addButton(option1_[i], i);
    text1_[i] = new QLineEdit(this);
    text1_[i]->setObjectName(QString("Text1(%1)").arg(i));
    text1_[i]->setMaximumWidth(120);
    grid->addWidget(option1_[i], i, 0);
    grid->addWidget(text1_[i], i, 1);
    connect(option1_[i], &QRadioButton::clicked, this, [this, i] {
      if (onOption) onOption(i);
    });
    connect(text1_[i], &QLineEdit::returnPressed, this, [this, i] {
      if (onEnter) onEnter(i);
    });
  }
  label3_ = new QLabel(this);
  text3_ = new QLineEdit(this);
  text3_->setObjectName("Text3(0)");
  text3_->setMaximumWidth(120);
  grid->addWidget(label3_, 2, 0);
  grid->addWidget(text3_, 2, 1);
  top->addLayout(grid);
  top->addWidget(label1_[2]);

  for (int i = 0; i < 2; ++i) {
    label2_[i] = new QLabel(this);
    label2_[i]->setObjectName(QString("Label2(%1)").arg(i));
    label2_[i]->setMinimumHeight(i == 0 ? 24 : 90);
    top->addWidget(label2_[i]);
  }

  auto* buttons = new QHBoxLayout;
  calcul1_ = new QPushButton(this);
  calcul1_->setObjectName("Calcul1");
  cdQuit_ = new QPushButton(this);
  cdQuit_->setObjectName("cdQuit");
  buttons->addWidget(calcul1_);
  buttons->addWidget(cdQuit_);
  top->addLayout(buttons);
  connect(calcul1_, &QPushButton::clicked, this, [this] {
    if (onCalcul) onCalcul();
  });
  connect(cdQuit_, &QPushButton::clicked, this, [this] {
    if (onQuit) onQuit();
  });
}

void Hydro1Window::showModel() {
  setWindowTitle(qtText(model_.title.caption));
  for (int i = 0; i < 2; ++i) {
    showField(text1_[i], model_.Text1(i));
    showCaption(option1_[i], model_.Option1(i));
    showCaption(label2_[i], model_.Label2(i));
    setBackground(label2_[i], qtColor(model_.Label2(i).backColor));
  }
  showField(text3_, model_.Text3(0));
  showCaption(label3_, model_.Label3(0));
  for (int i = 0; i < 3; ++i) showCaption(label1_[i], model_.Label1(i));
  showCaption(calcul1_, model_.Calcul1);
  showCaption(cdQuit_, model_.cdQuit);
}

void Hydro1Window::takeTexts() {
  for (int i = 0; i < 2; ++i) takeText(model_.Text1(i), text1_[i]);
  takeText(model_.Text3(0), text3_);
}

void Hydro1Window::closeEvent(QCloseEvent* event) {
  // Closing by the window's frame runs a last calculation and hides the
  // pair, which AnalysisWindows does; the window itself only hides.
  if (onClose && isVisible()) onClose();
  event->accept();
}

}  // namespace tolmar::gui
