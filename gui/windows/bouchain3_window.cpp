#include "windows/bouchain3_window.h"

#include <QLabel>
#include <QLineEdit>

#include "board/board_model.h"
#include "windows/busy_cursor.h"
#include "windows/dessin_window.h"
#include "windows/field_widgets.h"
#include "windows/session.h"

namespace tolmar::gui {

namespace {

// Layout in twips: the explanation, seven rows of label and field, the
// progress line and Valider.
constexpr double kRowTop = 1350, kRowStep = 540, kRowHeight = 300;
constexpr double kLabelLeft = 200, kLabelWidth = 6900;
constexpr double kFieldLeft = 7250, kFieldWidth = 1400;

// The progress line's light text colours stand on a dark ground.
const QColor kProgressGround(0, 0, 128);

}  // namespace

Bouchain3Window::Bouchain3Window(Session& s)
    : HullScreenWindow(s, kWidth, kHeight),
      text0_(new QLineEdit(this)),
      label1_(new QLabel(this)),
      text1_(new QLineEdit(this)),
      label4_(new QLabel(this)),
      text4_(new QLineEdit(this)),
      label3_(new QLabel(this)),
      valider_(new QPushButton(this)) {
  setObjectName("bouchain3");
  label0_[0] = new QLabel(this);
  label0_[0]->setObjectName("Label0(0)");
  label0_[0]->setWordWrap(true);
  label0_[0]->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  place(label0_[0], t_, 200, 150, 9200, 1000);
  label0_[1] = new QLabel(this);

  text0_->setObjectName("Text0");
  text1_->setObjectName("Text1(0)");
  text4_->setObjectName("Text4");
  for (int i = 0; i < 4; ++i) {
    label2_[static_cast<std::size_t>(i)] = new QLabel(this);
    text2_[static_cast<std::size_t>(i)] = new QLineEdit(this);
    text2_[static_cast<std::size_t>(i)]->setObjectName(QStringLiteral("Text2(%1)").arg(i));
  }
  const std::array<std::pair<QLabel*, QLineEdit*>, 7> rows{{{label0_[1], text0_},
                                                            {label1_, text1_},
                                                            {label2_[0], text2_[0]},
                                                            {label2_[1], text2_[1]},
                                                            {label2_[2], text2_[2]},
                                                            {label2_[3], text2_[3]},
                                                            {label4_, text4_}}};
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const double top = kRowTop + static_cast<double>(i) * kRowStep;
    rows[i].first->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    place(rows[i].first, t_, kLabelLeft, top, kLabelWidth, kRowHeight);
    place(rows[i].second, t_, kFieldLeft, top, kFieldWidth, kRowHeight);
  }
  connect(text0_, &QLineEdit::textEdited, this,
          [this](const QString& t) { m_.Text0.text = t.toStdString(); });
  connect(text1_, &QLineEdit::textEdited, this,
          [this](const QString& t) { m_.Text1(0).text = t.toStdString(); });
  connect(text4_, &QLineEdit::textEdited, this,
          [this](const QString& t) { m_.Text4.text = t.toStdString(); });
  for (int i = 0; i < 4; ++i) {
    connect(text2_[static_cast<std::size_t>(i)], &QLineEdit::textEdited, this,
            [this, i](const QString& t) { m_.Text2(i).text = t.toStdString(); });
  }

  label3_->setObjectName("Label3");
  QPalette p = label3_->palette();
  p.setColor(QPalette::Window, kProgressGround);
  label3_->setPalette(p);
  label3_->setIndent(8);
  place(label3_, t_, 200, kRowTop + 7 * kRowStep + 100, 9200, 350);

  valider_->setObjectName("Valider");
  valider_->setDefault(true);
  place(valider_, t_, 3800, 5850, 2000, 450);
  connect(valider_, &QPushButton::clicked, this, &Bouchain3Window::valider);

  // Between the passes of a long validation the progress line is painted
  // at once; no other event is served meanwhile.
  m_.refresh = [this] {
    showProgress();
    label3_->repaint();
  };
}

void Bouchain3Window::activate() { m_.activate(s_.store()); }

void Bouchain3Window::syncFromModel() {
  setWindowTitle(qtText(m_.title.caption));
  showCaption(valider_, m_.Valider);
  showCaption(label0_[0], m_.Label0(0));
  showCaption(label0_[1], m_.Label0(1));
  showField(text0_, m_.Text0);
  showCaption(label1_, m_.Label1(0));
  showField(text1_, m_.Text1(0));
  for (int i = 0; i < 4; ++i) {
    showCaption(label2_[static_cast<std::size_t>(i)], m_.Label2(i));
    showField(text2_[static_cast<std::size_t>(i)], m_.Text2(i));
  }
  showCaption(label4_, m_.Label4);
  showField(text4_, m_.Text4);
  showProgress();
}

void Bouchain3Window::showProgress() {
  showCaption(label3_, m_.Label3);
  QPalette p = label3_->palette();
  p.setColor(QPalette::WindowText, qtColor(m_.Label3.foreColor));
  label3_->setPalette(p);
  // The dark ground only behind a caption: an empty line is no bar.
  label3_->setAutoFillBackground(!m_.Label3.caption.empty());
}

void Bouchain3Window::valider() {
  HullStore& h = s_.store();
  bool ok = false;
  {
    BusyCursor busy;
    ok = m_.validerAuto(h);
  }
  syncFromModel();
  if (ok) s_.perform(board::endOfBouchain3(s_.dessin().state(), h));
}

}  // namespace tolmar::gui
