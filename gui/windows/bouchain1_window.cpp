#include "windows/bouchain1_window.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "board/board_model.h"
#include "windows/dessin_window.h"
#include "windows/field_widgets.h"
#include "windows/session.h"

namespace tolmar::gui {

namespace {

// Layout in twips on the 8400 x 6500 screen: two columns of label and
// field under their headings.
constexpr double kRowTop = 1550, kRowStep = 520, kRowHeight = 300;
constexpr double kLabelWidth = 3050, kFieldWidth = 950;
constexpr double kColumnLeft[2] = {100, 4250};

QLabel* heading(QWidget* parent, bool bold) {
  auto* l = new QLabel(parent);
  QFont f = l->font();
  f.setBold(bold);
  l->setFont(f);
  l->setWordWrap(true);
  return l;
}

}  // namespace

Bouchain1Window::Bouchain1Window(Session& s)
    : HullScreenWindow(s, Bouchain1::kWidth, Bouchain1::kHeight), valider_(new QPushButton(this)) {
  setObjectName("bouchain1");
  for (std::size_t i = 0; i < titre1_.size(); ++i) {
    titre1_[i] = heading(this, i != 1);
    titre1_[i]->setObjectName(QStringLiteral("titre1(%1)").arg(i));
  }
  place(titre1_[0], t_, 200, 150, 8000, 300);
  place(titre1_[1], t_, 200, 500, 8000, 520);
  place(titre1_[2], t_, kColumnLeft[0] + 1000, 1150, 3000, 300);
  place(titre1_[3], t_, kColumnLeft[1] + 1000, 1150, 3000, 300);

  auto row = [this](QLabel*& label, QLineEdit*& field, int column, int i, const QString& name) {
    label = new QLabel(this);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    field = new QLineEdit(this);
    field->setObjectName(name);
    const double top = kRowTop + i * kRowStep;
    place(label, t_, kColumnLeft[column], top, kLabelWidth, kRowHeight);
    place(field, t_, kColumnLeft[column] + kLabelWidth + 50, top, kFieldWidth, kRowHeight);
  };
  for (int i = 0; i <= 6; ++i) {
    const auto k = static_cast<std::size_t>(i);
    row(label1_[k], text1_[k], 0, i, QStringLiteral("Text1(%1)").arg(i));
    connect(text1_[k], &QLineEdit::textEdited, this, [this, i](const QString& t) {
      m_.typeText1(i, t.toStdString());
      syncFromModel();
    });
  }
  for (int i = 0; i <= 7; ++i) {
    const auto k = static_cast<std::size_t>(i);
    row(label2_[k], text2_[k], 1, i, QStringLiteral("Text2(%1)").arg(i));
    connect(text2_[k], &QLineEdit::textEdited, this,
            [this, i](const QString& t) { m_.Text2(i).text = t.toStdString(); });
  }
  valider_->setObjectName("Valider");
  valider_->setDefault(true);
  place(valider_, t_, 3200, 5800, 2000, 450);
  connect(valider_, &QPushButton::clicked, this, &Bouchain1Window::valider);
}

void Bouchain1Window::activate() { m_.activate(s_.store()); }

void Bouchain1Window::syncFromModel() {
  setWindowTitle(qtText(m_.title.caption));
  showCaption(valider_, m_.Valider);
  for (int i = 0; i <= 3; ++i) showCaption(titre1_[static_cast<std::size_t>(i)], m_.titre1(i));
  for (int i = 0; i <= 6; ++i) {
    showCaption(label1_[static_cast<std::size_t>(i)], m_.Label1(i));
    showField(text1_[static_cast<std::size_t>(i)], m_.Text1(i));
  }
  for (int i = 0; i <= 7; ++i) {
    showCaption(label2_[static_cast<std::size_t>(i)], m_.Label2(i));
    showField(text2_[static_cast<std::size_t>(i)], m_.Text2(i));
  }
}

void Bouchain1Window::valider() {
  HullStore& h = s_.store();
  const bool ok = m_.validerBottom(h);
  if (m_.beeped && s_.beep) s_.beep();
  syncFromModel();
  if (ok) s_.perform(board::endOfBouchain1(s_.dessin().state(), h));
}

}  // namespace tolmar::gui
