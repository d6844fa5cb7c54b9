// The choice made before the full-size patterns or the panel offsets are
// printed: the plates ticked by default, the remembered choice per
// document and per plate, values out of range, Print refused with no
// plate, a cancel that prints and remembers nothing, and the board's print
// entries following the remembered choice.
#include "windows/plate_choice_dialog.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>
#include <memory>

#include "board/board_model.h"
#include "development/hull_fixture.h"
#include "qtdraw/image_surface.h"
#include "windows/board_commands.h"
#include "windows/file_dialog.h"
#include "windows/printer_dialog.h"
#include "windows_test_util.h"

using namespace tolmar;
using namespace tolmar::gui;

class PlateChoiceDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void init();
  void everyPlateButTheDecksByDefault();
  void choiceRememberedPerDocumentAndPlate();
  void printNeedsAPlate();
  void cancelPrintsAndRemembersNothing();
  void boardPrintsTheRememberedPlates();

 private:
  std::unique_ptr<HullStore> h_ = fixture::defaultHull();
  std::vector<DevelopedPlate> plates_;
};

namespace {

QSettings store() { return QSettings(QStringLiteral("Tolmar"), QStringLiteral("tolmar")); }

QStringList checked(const QListWidget& l) {
  QStringList r;
  for (int i = 0; i < l.count(); ++i)
    if (l.item(i)->checkState() == Qt::Checked) r << l.item(i)->text();
  return r;
}

std::vector<std::string> nonDecks(const std::vector<DevelopedPlate>& plates) {
  std::vector<std::string> r;
  for (const DevelopedPlate& p : plates)
    if (!p.empty() && p.kind != PlateKind::deck) r.push_back(p.name);
  return r;
}

// The dialog that askPlateChoice shows, answered once it is up.
void answerDialog(const std::function<void(PlateChoiceDialog&)>& answer) {
  QTimer::singleShot(0, [answer] {
    for (QWidget* w : QApplication::topLevelWidgets())
      if (auto* d = qobject_cast<PlateChoiceDialog*>(w); d && d->isVisible()) return answer(*d);
    QFAIL("no plate choice dialog");
  });
}

}  // namespace

void PlateChoiceDialogTest::initTestCase() {
  QStandardPaths::setTestModeEnabled(true);
  plates_ = developAll(*h_);
  QVERIFY(plates_.size() >= 4);
}

void PlateChoiceDialogTest::init() { store().clear(); }

void PlateChoiceDialogTest::everyPlateButTheDecksByDefault() {
  const PlateChoice c = rememberedPlateChoice(PlateDocument::patterns, plates_);
  QCOMPARE(c.plates, nonDecks(plates_));
  QCOMPARE(c.valueMm, 10.0);
  QCOMPARE(rememberedPlateChoice(PlateDocument::panelOffsets, plates_).valueMm, 100.0);

  PlateChoiceDialog fr(PlateDocument::patterns, plates_, c, 0);
  QCOMPARE(fr.windowTitle(), QString("Gabarits grandeur nature"));
  QVERIFY(checked(*fr.plateList()).contains("fond (p00)"));
  QVERIFY(!checked(*fr.plateList()).join(' ').contains("pont"));
  PlateChoiceDialog en(PlateDocument::panelOffsets, plates_, c, 1);
  QCOMPARE(en.windowTitle(), QString("Panel offsets"));
  QCOMPARE(en.buttons()->button(QDialogButtonBox::Ok)->text(), QString("Print"));
  QCOMPARE(en.choice().plates, c.plates);
  // Pictures for the documentation when TOLMAR_SCREENSHOTS names a folder.
  if (const QString folder = qEnvironmentVariable("TOLMAR_SCREENSHOTS"); !folder.isEmpty()) {
    for (QDialog* d : {static_cast<QDialog*>(&fr), static_cast<QDialog*>(&en)}) {
      d->show();
      QVERIFY(QTest::qWaitForWindowExposed(d));
      QVERIFY(d->grab().save(QDir(folder).filePath(d->objectName() + ".png")));
    }
  }
}

void PlateChoiceDialogTest::choiceRememberedPerDocumentAndPlate() {
  // The transom alone for the patterns, with a deck added for the offsets.
  rememberPlateChoice(PlateDocument::patterns, plates_, {{"transom"}, 25});
  const auto deck = std::find_if(plates_.begin(), plates_.end(),
                                 [](const DevelopedPlate& d) { return d.kind == PlateKind::deck; });
  QVERIFY(deck != plates_.end());
  rememberPlateChoice(PlateDocument::panelOffsets, plates_, {{"p01", deck->name}, 50});
  PlateChoice p = rememberedPlateChoice(PlateDocument::patterns, plates_);
  QCOMPARE(p.plates, std::vector<std::string>{"transom"});
  QCOMPARE(p.valueMm, 25.0);
  p = rememberedPlateChoice(PlateDocument::panelOffsets, plates_);
  QCOMPARE(p.plates, (std::vector<std::string>{"p01", deck->name}));
  QCOMPARE(p.valueMm, 50.0);

  // A plate the hull did not have then is in by default; a value that is no
  // longer in range is the default.
  auto more = fixture::manyLineHull();
  const std::vector<DevelopedPlate> many = developAll(*more);
  p = rememberedPlateChoice(PlateDocument::patterns, many);
  QVERIFY(std::find(p.plates.begin(), p.plates.end(), "p12") != p.plates.end());
  QVERIFY(std::find(p.plates.begin(), p.plates.end(), "p01") == p.plates.end());
  for (const QVariant& bad : {QVariant(400.0), QVariant(-1.0), QVariant("ten")}) {
    store().setValue("patterns/valueMm", bad);
    QCOMPARE(rememberedPlateChoice(PlateDocument::patterns, plates_).valueMm, 10.0);
  }
}

void PlateChoiceDialogTest::printNeedsAPlate() {
  PlateChoiceDialog d(PlateDocument::patterns, plates_,
                      rememberedPlateChoice(PlateDocument::patterns, plates_), 1);
  QPushButton* print = d.buttons()->button(QDialogButtonBox::Ok);
  QVERIFY(print->isEnabled());
  QTest::mouseClick(d.findChild<QPushButton*>("none"), Qt::LeftButton);
  QVERIFY(checked(*d.plateList()).isEmpty());
  QVERIFY(!print->isEnabled());
  d.plateList()->item(2)->setCheckState(Qt::Checked);
  QVERIFY(print->isEnabled());
  QCOMPARE(d.choice().plates, std::vector<std::string>{plates_[2].name});
  QTest::mouseClick(d.findChild<QPushButton*>("all"), Qt::LeftButton);
  QCOMPARE(checked(*d.plateList()).size(), d.plateList()->count());
  // The overlap keeps to what the tiles can take.
  d.valueBox()->setValue(80);
  QCOMPARE(d.choice().valueMm, 50.0);
}

void PlateChoiceDialogTest::cancelPrintsAndRemembersNothing() {
  answerDialog([](PlateChoiceDialog& d) {
    d.valueBox()->setValue(30);
    d.buttons()->button(QDialogButtonBox::Cancel)->click();
  });
  QVERIFY(!askPlateChoice(nullptr, false, PlateDocument::patterns, plates_, 1));
  QVERIFY(!store().contains("patterns/valueMm"));

  answerDialog([](PlateChoiceDialog& d) {
    QTest::mouseClick(d.findChild<QPushButton*>("none"), Qt::LeftButton);
    d.plateList()->item(0)->setCheckState(Qt::Checked);
    d.valueBox()->setValue(30);
    d.buttons()->button(QDialogButtonBox::Ok)->click();
  });
  const auto c = askPlateChoice(nullptr, false, PlateDocument::patterns, plates_, 1);
  QVERIFY(c);
  QCOMPARE(c->plates, std::vector<std::string>{plates_[0].name});
  QCOMPARE(c->valueMm, 30.0);
  QCOMPARE(rememberedPlateChoice(PlateDocument::patterns, plates_).plates, c->plates);
}

void PlateChoiceDialogTest::boardPrintsTheRememberedPlates() {
  HullStore& h = *h_;
  h.langue = 1;
  h.hullName = "CHOICE";
  board::BoardState b = board::loadBoard(h);
  b.stepIndex = 1;
  QWidget board;
  BoardWindows& w = BoardWindows::of(&board, h);
  w.setUnattended(true);
  w.printers().pdfOnly = true;
  QTemporaryDir dir;
  qtdraw::ImageSurface plan(QSize(1200, 700));
  BoardHooks hooks;
  hooks.refresh = [] {};
  hooks.perform = [](const board::Actions&) {};
  hooks.picture = [&plan] { return &plan; };
  hooks.pictureChanged = [] {};
  const auto pagesOf = [&](board::BoardControl c, const QString& name) {
    w.files().answerWith(dir.filePath(name).toStdString());
    runBoardCommand(&board, h, b, c, hooks);
    const QByteArray pdf = test::readAll(dir.filePath(name));
    return static_cast<int>(pdf.count("/Type /Page\n") + pdf.count("/Type /Page "));
  };
  using C = board::BoardControl;
  runBoardCommand(&board, h, b, C::DessCouple, hooks);
  const int every = pagesOf(C::fmenu_P_Patterns, "ALL.PDF");
  rememberPlateChoice(PlateDocument::patterns, plates_, {{"transom"}, 10});
  const int transom = pagesOf(C::fmenu_P_Patterns, "TRANSOM.PDF");
  QVERIFY2(transom > 0 && transom < every / 4,
           qPrintable(QString("%1 of %2").arg(transom).arg(every)));

  const int offsets = pagesOf(C::fmenu_P_Panels, "OFFSETS.PDF");
  rememberPlateChoice(PlateDocument::panelOffsets, plates_, {{"p01"}, 100});
  const int one = pagesOf(C::fmenu_P_Panels, "ONE.PDF");
  QVERIFY2(one > 0 && one < offsets, qPrintable(QString("%1 of %2").arg(one).arg(offsets)));

  // With every plate cleared nothing is asked and nothing printed.
  rememberPlateChoice(PlateDocument::patterns, plates_, {{}, 10});
  const std::size_t asked = w.files().asked().size();
  runBoardCommand(&board, h, b, C::fmenu_P_Patterns, hooks);
  QCOMPARE(w.files().asked().size(), asked);
  QVERIFY(w.files().messages().empty());
}

QTEST_MAIN(PlateChoiceDialogTest)
#include "plate_choice_dialog_test.moc"
