#include "windows/menu2_window.h"

#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "windows/field_widgets.h"
#include "windows/session.h"
#include "windows/twips.h"

namespace tolmar::gui {

Menu2Window::Menu2Window(Session& s)
    : QWidget(nullptr),
      s_(s),
      label1_(new QLabel(this)),
      label2_(new QLabel(this)),
      label3_(new QLabel(this)),
      create_(new QPushButton(this)),
      terminate_(new QPushButton(this)),
      langue_{new QRadioButton(this), new QRadioButton(this)} {
  setObjectName("menu2");
  label1_->setObjectName("Label1");
  label2_->setObjectName("Label2");
  label3_->setObjectName("Label3");
  create_->setObjectName("Create");
  terminate_->setObjectName("Terminate");
  QFont title = label1_->font();
  title.setPointSizeF(14);
  title.setBold(true);
  label1_->setFont(title);
  label1_->setAlignment(Qt::AlignCenter);
  label3_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  label3_->setWordWrap(true);
  for (int i = 0; i < 2; ++i) {
    langue_[static_cast<std::size_t>(i)]->setObjectName(QStringLiteral("Langue1(%1)").arg(i));
    connect(langue_[static_cast<std::size_t>(i)], &QRadioButton::clicked, this,
            [this, i] { langueClicked(i); });
  }
  connect(create_, &QPushButton::clicked, this, &Menu2Window::createClicked);
  connect(terminate_, &QPushButton::clicked, this, &Menu2Window::terminateClicked);
}

void Menu2Window::applyLayout() {
  const Twips t(*this);
  const screens::Menu2Layout& l = m_.layout;
  setGeometry(t.rect(l.window));
  setFixedSize(size());
  place(label1_, t, l.label1);
  place(label2_, t, l.label2);
  place(label3_, t, l.label3);
  place(create_, t, l.create);
  place(terminate_, t, l.terminate);
  place(langue_[0], t, l.langue1[0]);
  place(langue_[1], t, l.langue1[1]);
}

void Menu2Window::syncFromModel() {
  setWindowTitle(qtText(m_.title.caption));
  showCaption(label1_, m_.Label1);
  showCaption(label2_, m_.Label2);
  if (m_.label3FontSize > 0) {
    QFont f = label3_->font();
    f.setPointSizeF(m_.label3FontSize);
    label3_->setFont(f);
  }
  showCaption(label3_, m_.Label3);
  showCaption(create_, m_.Create);
  showCaption(terminate_, m_.Terminate);
  showCaption(langue_[0], m_.Langue1(0));
  showCaption(langue_[1], m_.Langue1(1));
}

void Menu2Window::createClicked() { s_.create(); }

void Menu2Window::terminateClicked() { s_.perform(screens::terminateClick()); }

void Menu2Window::langueClicked(int i) {
  screens::langueClick(m_, s_.store(), i);
  s_.syncWindows();
}

void Menu2Window::closeEvent(QCloseEvent* e) {
  e->accept();
  s_.perform(screens::closeMenu2());
}

}  // namespace tolmar::gui
