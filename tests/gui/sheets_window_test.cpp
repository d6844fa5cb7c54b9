// The board's Build menu and its "Plywood sheets…" window: the menu after
// the original ones in both languages, its entry enabled only once the
// planks are drawn, the window's plan, choices kept in the settings,
// a refusal shown in the window, and the three files written through the
// dialog.  With TOLMAR_SCREENSHOTS set to a folder it also saves pictures
// of the window (take them under xvfb-run with QT_QPA_PLATFORM=xcb).
#include "windows/sheets_window.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "board_session_util.h"
#include "development/hull_fixture.h"
#include "windows/bouchain2_window.h"
#include "windows/dessin_window.h"

using namespace tolmar;
using C = board::BoardControl;

class SheetsWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    test::quietOffscreen();
    QStandardPaths::setTestModeEnabled(true);  // settings of their own
  }

  void menuAfterTheOthersEnabledOncePlanksAreDrawn() {
    test::Started p;
    p.createAndValidate();
    QMenuBar* bar = p.board().menuBar();
    const auto menus = bar->actions();
    QCOMPARE(menus.back(), p.board().constructionMenu().menu()->menuAction());
    QAction* sheets = p.board().constructionMenu().action("fmenu_B_Sheets");
    QVERIFY(sheets);
    QVERIFY(!sheets->isEnabled());  // the bottom alone is drawn
    p.board().button(C::Command1_1)->click();
    p.s->bouchain2().valider();
    QVERIFY(sheets->isEnabled());
    p.board().syncFromModel();
    QCOMPARE(p.board().constructionMenu().menu()->title(), QString("Build"));
    QCOMPARE(sheets->text(), QString::fromUtf8("Plywood sheets…"));
    p.h().langue = 0;
    QEvent activate(QEvent::WindowActivate);
    QApplication::sendEvent(&p.board(), &activate);
    QCOMPARE(p.board().constructionMenu().menu()->title(), QString("Construction"));
    QCOMPARE(sheets->text(), QString::fromUtf8("Panneaux de contreplaqué…"));
    sheets->trigger();
    auto* w =
        qobject_cast<gui::SheetsWindow*>(p.board().constructionMenu().window("fmenu_B_Sheets"));
    QVERIFY(w);
    QCOMPARE(w->windowTitle(), QString::fromUtf8("Panneaux de contreplaqué"));
  }

  void planChoicesAndFiles() {
    test::Started p;
    p.createAndValidate();
    p.board().button(C::Command1_1)->click();
    p.s->bouchain2().valider();
    p.h().langue = 1;
    {
      gui::SheetsWindow w(nullptr, p.h());
      // The default hull's deck is wider than 2440 x 1220 allows.
      w.findChild<QComboBox*>("sheetSize")->setCurrentIndex(0);
      w.compute();
      QVERIFY2(w.message()->text().contains("deck 5 needs a width of 13"),
               qPrintable(w.message()->text()));
      QVERIFY(!w.findChild<QPushButton*>("saveDxf")->isEnabled());
      QVERIFY(w.plan().sheets.empty());
      // On 3050 x 1525 it fits.
      w.findChild<QComboBox*>("sheetSize")->setCurrentIndex(2);
      QCOMPARE(w.findChild<QDoubleSpinBox*>("sheetLength")->value(), 3050.0);
      w.findChild<QDoubleSpinBox*>("kerf")->setValue(4);
      w.findChild<QPushButton*>("compute")->click();
      QCOMPARE(w.message()->text(), QString());
      QVERIFY(!w.plan().sheets.empty());
      QVERIFY(w.findChild<QPlainTextEdit*>("bom")->toPlainText().contains("Bill of materials"));
      QVERIFY(!w.findChild<QLabel*>("sheetsPicture")->pixmap().isNull());

      QTemporaryDir dir;
      const auto sheetFile = [&dir](std::size_t s) {
        return dir.filePath(QString("boat_SHEET%1.DXF").arg(s, 2, 10, QChar('0')));
      };
      // Two sheets of an earlier, longer plan: they go with this one's save.
      const std::size_t n = w.plan().sheets.size();
      for (std::size_t s : {n + 1, n + 2}) {
        QFile old(sheetFile(s));
        QVERIFY(old.open(QIODevice::WriteOnly));
      }
      w.dialog().setUnattended(true);
      w.dialog().answerWith(dir.filePath("boat_SHEET01.DXF").toStdString());
      QVERIFY(w.saveDxf());
      for (std::size_t s = 1; s <= n; ++s) QVERIFY(QFile::exists(sheetFile(s)));
      QVERIFY(!QFile::exists(sheetFile(n + 1)));
      QVERIFY(!QFile::exists(sheetFile(n + 2)));
      w.dialog().answerWith(dir.filePath("boat.svg").toStdString());
      QVERIFY(w.saveSvg());
      w.dialog().answerWith(dir.filePath("boat.pdf").toStdString());
      QVERIFY(w.savePdf());
      QFile pdf(dir.filePath("boat.pdf"));
      QVERIFY(pdf.open(QIODevice::ReadOnly));
      QVERIFY(pdf.read(5) == "%PDF-");
      w.dialog().answerWith(std::nullopt);  // cancelled: nothing written, nothing said
      QVERIFY(!w.saveSvg());
      QVERIFY(w.dialog().messages().empty());

      const QString folder = qEnvironmentVariable("TOLMAR_SCREENSHOTS");
      if (!folder.isEmpty()) {
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        QTest::qWait(50);
        QVERIFY(w.grab().save(QDir(folder).filePath("sheets-en.png")));
      }
    }
    // The choices come back in the next window.
    gui::SheetsWindow again(nullptr, p.h());
    QCOMPARE(again.findChild<QDoubleSpinBox*>("sheetLength")->value(), 3050.0);
    QCOMPARE(again.findChild<QDoubleSpinBox*>("kerf")->value(), 4.0);
    QCOMPARE(again.options().widthMm, 1525.0);
  }

  // Open, then the board redraws the same hull (a zoom): the plan stays;
  // it redraws another hull: the plan is made again on it.
  void followsTheHullRedrawn() {
    test::Started p;
    p.createAndValidate();
    gui::DessinWindow& board = p.board();
    p.h() = *fixture::defaultHull();
    p.h().langue = 1;
    board.state().stepIndex = 1;
    board.dessineAction();
    board.constructionMenu().action("fmenu_B_Sheets")->trigger();
    auto* w = qobject_cast<gui::SheetsWindow*>(board.constructionMenu().window("fmenu_B_Sheets"));
    QVERIFY(w);
    w->findChild<QComboBox*>("sheetSize")->setCurrentIndex(2);
    w->compute();
    QVERIFY2(w->plan().error.empty(), w->plan().error.c_str());
    const auto partsOf = [](const gui::SheetsWindow& sw) {
      QStringList names;
      for (const sheets::SheetPart& part : sw.plan().parts)
        names << QString::fromStdString(part.name);
      return names;
    };
    const QStringList before = partsOf(*w);
    QVERIFY(before.contains("p04"));

    board.dessineAction();
    QCOMPARE(partsOf(*w), before);

    // Two lines: the bottom and one plank.
    p.h() = *fixture::twoLineHull();
    p.h().langue = 1;
    board.dessineAction();
    QCOMPARE(qobject_cast<gui::SheetsWindow*>(board.constructionMenu().window("fmenu_B_Sheets")),
             w);
    QVERIFY2(w->plan().error.empty(), w->plan().error.c_str());
    QVERIFY(partsOf(*w).contains("p01"));
    QVERIFY(!partsOf(*w).contains("p02"));
    w->close();
  }
};

QTEST_MAIN(SheetsWindowTest)
#include "sheets_window_test.moc"
