// A hull designed as a user designs one, through the program's windows:
// Create, a bottom typed and validated, planks validated, the plates
// developed, a mass budget floated, a lap-strake DXF, all offsets printed
// to PDF, the hull saved, New, and the saved file opened again.  Every
// dialog is answered by the test; the files are checked as they land.
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include "board/board_control.h"
#include "board_session_util.h"
#include "export/plate_dxf.h"
#include "export/preset_host.h"
#include "hull/hull_file.h"
#include "windows/analysis_windows.h"
#include "windows/board_commands.h"
#include "windows/bouchain2_window.h"
#include "windows/file_dialog.h"
#include "windows/overlap1_window.h"
#include "windows/printer_dialog.h"
#include "windows_test_util.h"

using namespace tolmar;
using namespace tolmar::gui;
using C = board::BoardControl;

namespace {

int pdfPages(const QByteArray& pdf) {
  return static_cast<int>(pdf.count("/Type /Page\n") + pdf.count("/Type /Page "));
}

// Stores that must agree after a save and an open: the file's own fields.
void compareFileFields(const HullStore& a, const HullStore& b) {
  QCOMPARE(a.nChines, b.nChines);
  QCOMPARE(a.powerFwd, b.powerFwd);
  QCOMPARE(a.keelAdvance, b.keelAdvance);
  QCOMPARE(a.stemShape, b.stemShape);
  for (int n = 0; n <= a.nChines; ++n) {
    QCOMPARE(a.plankAngle(n), b.plankAngle(n));
    QCOMPARE(a.xFwd(n), b.xFwd(n));
    QCOMPARE(a.zMax(n), b.zMax(n));
    QCOMPARE(a.planeC(n), b.planeC(n));
  }
  for (int n = 2; n <= a.nChines; ++n) QCOMPARE(a.bowTurn(n), b.bowTurn(n));
  for (int i = 0; i <= kLastPoint; i += 9) QCOMPARE(a.lineZ(a.nChines, i), b.lineZ(b.nChines, i));
}

}  // namespace

class EndToEndTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { test::quietOffscreen(); }
  void designSaveNewOpen();
};

void EndToEndTest::designSaveNewOpen() {
  QTemporaryDir dir;
  auto at = [&](const char* name) { return dir.filePath(name).toStdString(); };
  test::Started p;
  DessinWindow& board = p.board();
  BoardWindows& w = BoardWindows::of(&board, p.h());
  w.setUnattended(true);
  w.printers().pdfOnly = true;
  CmDialog1& files = w.files();

  // Create, a longer bottom typed into bouchain1, Valider.
  p.s->menu2().createButton()->click();
  test::type(p.s->bouchain1().text1(0), "6.5");
  p.s->bouchain1().valider();
  if (p.s->bouchain1().isVisible()) p.s->bouchain1().valider();  // a replaced value shows once
  QVERIFY(!p.s->bouchain1().isVisible());
  QCOMPARE(p.h().xFwd(0), 6.5);

  // Planks: Command1(1), the highest sheer raised, Valider.
  board.button(C::Command1_1)->click();
  Bouchain2Window& b2 = p.s->bouchain2();
  QVERIFY(b2.isVisible());
  b2.valider();
  if (b2.isVisible()) b2.valider();
  QVERIFY(!b2.isVisible());
  QCOMPARE(board.state().stepIndex, i16{1});
  QVERIFY(board.button(C::Developer)->isEnabled());

  // Develop: the plates over the views.
  const QImage beforeDevelop = board.plan().picture();
  QElapsedTimer clock;
  clock.start();
  board.button(C::Developer)->click();
  qInfo("Develop to the patterns drawn, %d lines: %lld ms", int(p.h().nChines), clock.elapsed());
  QVERIFY(board.plan().picture() != beforeDevelop);

  // Mass budget and hydrostatics: an engine aft, Calcul1, then Quit draws
  // the water line on the board.
  board.press(C::Hmenu);
  AnalysisWindows& pair = w.analysis();
  QVERIFY(pair.hydroWindow()->isVisible() && pair.massWindow()->isVisible());
  test::type(pair.massWindow()->text(3, 13), "40");
  test::type(pair.massWindow()->text(4, 13), "1");
  QTest::mouseClick(pair.massWindow()->calcul1(), Qt::LeftButton);
  const double total = pair.massWindow()->text(3, 0)->text().toDouble();
  QVERIFY(total > 40);
  QVERIFY(std::fabs(pair.hydroWindow()->text1(0)->text().toDouble() - total / 1000) <= 0.0011);
  const QImage beforeWater = board.plan().picture();
  QTest::mouseClick(pair.hydroWindow()->cdQuit(), Qt::LeftButton);
  QVERIFY(!pair.hydroWindow()->isVisible());
  QVERIFY(board.plan().picture() != beforeWater);

  // Lap-strake DXF: overlap1 answered as a user would, then two files.
  test::whenModal<Overlap1Window>([](Overlap1Window* o) {
    test::type(o->field(Overlap1::Group::text1, 0), "9");
    test::type(o->field(Overlap1::Group::text1, 1), "22");
    test::type(o->field(Overlap1::Group::text2, 0), "6");
    test::type(o->field(Overlap1::Group::text2, 1), "18");
    test::type(o->field(Overlap1::Group::text3, 1), "12");
    o->command1(2)->click();
  });
  files.answerWith(at("LAPS.DXF"));
  files.answerWith(at("DECKS.DXF"));
  board.press(C::fmenu_SD_DXF);
  QCOMPARE(p.h().overlapMode, i16{2});
  {
    // The core's lap-strake writer on the same hull gives the same bytes;
    // the plain one differs.
    auto copy = std::make_unique<HullStore>(p.h());
    PresetHost lap = PresetHost::toPath(at("core_lap.DXF"));
    (void)savePlateFile(lap, *copy, board.state().stepIndex);
    copy->overlapMode = 1;
    PresetHost plain = PresetHost::toPath(at("core_plain.DXF"));
    (void)savePlateFile(plain, *copy, board.state().stepIndex);
  }
  const QByteArray laps = test::readAll(dir.filePath("LAPS.DXF"));
  QVERIFY(laps.endsWith("EOF\r\n"));
  QCOMPARE(laps, test::readAll(dir.filePath("core_lap.DXF")));
  QVERIFY(laps != test::readAll(dir.filePath("core_plain.DXF")));
  QVERIFY(QFileInfo(dir.filePath("DECKS.DXF")).size() > 0);

  // All offsets to PDF.
  files.answerWith(at("OFFSETS.PDF"));
  board.press(C::fmenu_P_Tout);
  QVERIFY2(files.messages().empty(),
           files.messages().empty() ? "" : files.messages().back().text.c_str());
  QVERIFY(pdfPages(test::readAll(dir.filePath("OFFSETS.PDF"))) >= 8);

  // Save: the hull takes the file's name.
  files.answerWith(at("Skiff"));
  board.press(C::fmenu_S_Data);
  const QString saved = dir.filePath("Skiff.D50");
  QVERIFY(QFileInfo::exists(saved));
  QCOMPARE(p.h().hullName, std::string("Skiff"));
  QCOMPARE(files.messages().back().title, std::string("Tolmar2008 - Data saved "));
  const auto designed = std::make_unique<HullStore>(p.h());

  // New: the default hull, bouchain1 over the board.
  board.press(C::fmenu_New);
  QCOMPARE(p.h().hullName, std::string("Tolmar"));
  QVERIFY(p.s->bouchain1().isVisible());
  p.s->bouchain1().valider();
  QVERIFY(p.h().xFwd(0) != 6.5);

  // Open the saved file: the hull comes back, bouchain1 asks for its
  // validation, and the board redraws it; the planks are validated again
  // on what the file gave them.
  files.answerWith(saved.toStdString());
  board.press(C::fmenu_Open);
  QCOMPARE(files.asked().back().kind, DialogKind::open);
  QVERIFY(p.s->bouchain1().isVisible());
  p.s->bouchain1().valider();
  QVERIFY(!p.s->bouchain1().isVisible());
  board.button(C::Command1_1)->click();
  QVERIFY(b2.isVisible());
  b2.valider();
  QVERIFY(!b2.isVisible());
  QCOMPARE(p.h().hullName, std::string("Skiff"));
  QCOMPARE(board.text2()->text(), QString("Skiff"));
  compareFileFields(*designed, p.h());
  QVERIFY(test::inkedPixels(board.plan().picture()) > 2000);

  // Saved again unchanged: the same lines after the name.
  files.answerWith(at("Again"));
  board.press(C::fmenu_S_Data);
  const auto body = [](const QByteArray& f) { return f.mid(f.indexOf("\r\n")); };
  QCOMPARE(body(test::readAll(dir.filePath("Again.D50"))), body(test::readAll(saved)));
}

QTEST_MAIN(EndToEndTest)
#include "end_to_end_test.moc"
