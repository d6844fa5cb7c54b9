#include "windows/bouchain2_window.h"

#include <QButtonGroup>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "board/board_model.h"
#include "windows/busy_cursor.h"
#include "windows/dessin_window.h"
#include "windows/field_widgets.h"
#include "windows/option_group.h"
#include "windows/session.h"

namespace tolmar::gui {

namespace {

// Layout in twips on the 10000 x 7000 screen: a row per plank, four
// columns of fields, then the three option groups in their frames.
constexpr double kHeadTop = 550, kHeadHeight = 950;
constexpr double kRowTop = 1750, kRowStep = 600, kRowHeight = 300;
constexpr double kFieldLeft[4] = {1250, 2550, 3850, 5150};
constexpr double kFieldWidth = 1150;
constexpr double kFrameLeft[3] = {6550, 7700, 8850};
constexpr double kFrameWidth = 1050;

}  // namespace

Bouchain2Window::Bouchain2Window(Session& s)
    : HullScreenWindow(s, Bouchain2::kWidth, Bouchain2::kHeight),
      titre1_(new QLabel(this)),
      valider_(new QPushButton(this)) {
  setObjectName("bouchain2");
  QFont bold = titre1_->font();
  bold.setBold(true);
  titre1_->setFont(bold);
  place(titre1_, t_, 200, 150, 9600, 350);

  for (int c = 1; c <= 7; ++c) {
    QLabel* l = new QLabel(this);
    l->setObjectName(QStringLiteral("Label1(%1)").arg(c));
    l->setWordWrap(true);
    l->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    label1_[static_cast<std::size_t>(c - 1)] = l;
    // The inclination's long heading takes the gap before the frames too.
    const double left = c <= 4 ? kFieldLeft[c - 1] - (c == 4 ? 100 : 0) : kFrameLeft[c - 5];
    const double width = c <= 3 ? kFieldWidth : c == 4 ? kFieldWidth + 300 : kFrameWidth;
    place(l, t_, left, kHeadTop, width, kHeadHeight);
  }

  for (int g = 0; g < 3; ++g) {
    auto* frame = new QFrame(this);
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setObjectName(g == 0 ? "Frame1" : g == 1 ? "tableau" : "marotte");
    place(frame, t_, kFrameLeft[g], kRowTop - 150, kFrameWidth, kRows * kRowStep + 100);
    frames_[static_cast<std::size_t>(g)] = frame;
    groups_[static_cast<std::size_t>(g)] = new QButtonGroup(this);
  }

  const char* names[4] = {"Text1", "Text2", "Text3", "Text4"};
  for (int r = 0; r < kRows; ++r) {
    const auto k = static_cast<std::size_t>(r);
    const double top = kRowTop + r * kRowStep;
    label2_[k] = new QLabel(this);
    label2_[k]->setObjectName(QStringLiteral("Label2(%1)").arg(r));
    place(label2_[k], t_, 150, top, 1050, kRowHeight);
    for (int c = 0; c < 4; ++c) {
      auto* f = new QLineEdit(this);
      f->setObjectName(QStringLiteral("%1(%2)").arg(names[c]).arg(r));
      place(f, t_, kFieldLeft[c], top, kFieldWidth, kRowHeight);
      connect(f, &QLineEdit::textEdited, this,
              [this, c, r](const QString& t) { column(c)(r).text = t.toStdString(); });
      text_[static_cast<std::size_t>(c)][k] = f;
    }
    Options* groups[3] = {&optShear_, &optTableau_, &optMarotte_};
    const char* optionNames[3] = {"OptShear", "OptTableau", "OptMarotte"};
    for (int g = 0; g < 3; ++g) {
      auto* o = new QRadioButton(this);
      o->setObjectName(QStringLiteral("%1(%2)").arg(optionNames[g]).arg(r));
      // The button's own box, centred in its frame's column.
      place(o, t_, kFrameLeft[g] + kFrameWidth / 2 - 120, top, 300, kRowHeight);
      groups_[static_cast<std::size_t>(g)]->addButton(o, r);
      (*groups[g])[k] = o;
    }
    connect(optShear_[k], &QRadioButton::clicked, this, [this, r] {
      m_.clickOptShear(s_.store(), r);
      syncFromModel();
    });
    connect(optTableau_[k], &QRadioButton::clicked, this, [this, r] {
      m_.clickOptTableau(s_.store(), r);
      syncFromModel();
    });
    connect(optMarotte_[k], &QRadioButton::clicked, this, [this, r] {
      m_.clickOptMarotte(s_.store(), r);
      syncFromModel();
    });
  }
  valider_->setObjectName("Valider");
  valider_->setDefault(true);
  place(valider_, t_, 4000, 5950, 2000, 450);
  connect(valider_, &QPushButton::clicked, this, &Bouchain2Window::valider);
}

ControlArray<0, 4>& Bouchain2Window::column(int c) {
  switch (c) {
    case 0:
      return m_.Text1;
    case 1:
      return m_.Text2;
    case 2:
      return m_.Text3;
    default:
      return m_.Text4;
  }
}

QLineEdit* Bouchain2Window::field(int column, int row) const {
  return text_.at(static_cast<std::size_t>(column)).at(static_cast<std::size_t>(row));
}

void Bouchain2Window::activate() { m_.activate(s_.store()); }

void Bouchain2Window::syncFromModel() {
  setWindowTitle(qtText(m_.title.caption));
  showCaption(valider_, m_.Valider);
  showCaption(titre1_, m_.titre1(0));
  for (int c = 1; c <= 7; ++c) showCaption(label1_[static_cast<std::size_t>(c - 1)], m_.Label1(c));
  for (int r = 0; r < kRows; ++r) {
    showCaption(label2_[static_cast<std::size_t>(r)], m_.Label2(r));
    for (int c = 0; c < 4; ++c) showField(field(c, r), column(c)(r));
  }
  showOptionGroup(groups_[0], optShear_, m_.OptShear);
  showOptionGroup(groups_[1], optTableau_, m_.OptTableau);
  showOptionGroup(groups_[2], optMarotte_, m_.OptMarotte);
}

void Bouchain2Window::valider() {
  HullStore& h = s_.store();
  bool ok = false;
  {
    BusyCursor busy;
    ok = m_.validerPlanks(h);
  }
  syncFromModel();
  if (ok) s_.perform(board::endOfBouchain2(s_.dessin().state()));
}

}  // namespace tolmar::gui
