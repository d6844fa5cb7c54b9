#include "windows/menu2.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tolmar::gui {

Menu2::Menu2(QWidget* parent) : QWidget(parent) {
  setWindowTitle(QStringLiteral(" Tolmar2008  - version  2 Dec 2007 "));
  auto* lay = new QVBoxLayout(this);
  label1_ = new QLabel(QStringLiteral("Tolmar2008"), this);
  label1_->setAlignment(Qt::AlignCenter);
  label3_ = new QLabel(
      QStringLiteral("The author takes no responsibility for the consequences resulting from "
                     "the use of this software."),
      this);
  label3_->setWordWrap(true);
  create_ = new QPushButton(QStringLiteral("Create a hull"), this);
  terminate_ = new QPushButton(QStringLiteral("Quit"), this);
  langue_[0] = new QRadioButton(QStringLiteral("Français"), this);
  langue_[1] = new QRadioButton(QStringLiteral("English"), this);
  langue_[1]->setChecked(true);
  for (QWidget* w : {static_cast<QWidget*>(label1_), static_cast<QWidget*>(label3_),
                     static_cast<QWidget*>(create_), static_cast<QWidget*>(terminate_),
                     static_cast<QWidget*>(langue_[0]), static_cast<QWidget*>(langue_[1])})
    lay->addWidget(w);
  connect(terminate_, &QPushButton::clicked, this, &QWidget::close);
  connect(create_, &QPushButton::clicked, this, [this] {
    QMessageBox::information(this, QStringLiteral("Tolmar2008"),
                             QStringLiteral("The drawing board is not built yet."));
  });
}

}  // namespace tolmar::gui
