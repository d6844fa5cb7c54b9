// runBoardCommand on the default hull with the dialogs answered by the
// test: every export writes what the core writes, the hull name follows
// the file, one dialog per plate file with a cancel going on, overlap1 in
// front of the developed DXF, hull files in old and current layouts, and
// the error paths (not a hull, no write permission, a full disk, a cancel)
// leaving the hull in memory and the files on disk as they were.
#include "windows/board_commands.h"

#include <sys/resource.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>
#include <memory>

#include "board/board_model.h"
#include "board/views.h"
#include "development/hull_fixture.h"
#include "export/lines_dxf.h"
#include "export/plate_dxf.h"
#include "export/preset_host.h"
#include "export/vrml_file.h"
#include "export/xyz_files.h"
#include "qtdraw/image_surface.h"
#include "windows/analysis_windows.h"
#include "windows/command_steps.h"
#include "windows/file_dialog.h"
#include "windows/overlap1_window.h"
#include "windows/printer_dialog.h"
#include "windows_test_util.h"

using namespace tolmar;
using namespace tolmar::gui;
using board::BoardControl;
using board::Do;
using C = BoardControl;

namespace {

// Files are limited to `bytes` for the life of the object: writes beyond
// fail with EFBIG, as on a full disk.
class DiskFull {
 public:
  explicit DiskFull(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &old_);
    rlimit lim = old_;
    lim.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &lim);
  }
  ~DiskFull() { setrlimit(RLIMIT_FSIZE, &old_); }
  DiskFull(const DiskFull&) = delete;
  DiskFull& operator=(const DiskFull&) = delete;

 private:
  rlimit old_{};
};

QStringList filesIn(const QString& dir) {
  return QDir(dir).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

}  // namespace

class BoardCommandsTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<HullStore> h_;
  board::BoardState b_;
  std::unique_ptr<QWidget> board_;
  std::unique_ptr<qtdraw::ImageSurface> plan_;
  std::unique_ptr<QTemporaryDir> dir_;
  BoardHooks hooks_;
  board::Actions performed_;
  int refreshes_ = 0;
  int pictureChanges_ = 0;

  CmDialog1& files() { return BoardWindows::of(board_.get(), *h_).files(); }
  void run(BoardControl c) { runBoardCommand(board_.get(), *h_, b_, c, hooks_); }
  QString path(const QString& name) const { return dir_->filePath(name); }
  std::string spath(const QString& name) const { return path(name).toStdString(); }
  bool performedStep(Do what, BoardControl c) const {
    for (const auto& a : performed_)
      if (a.what == what && a.control == c) return true;
    return false;
  }
  bool performedScreen(Do what, board::ScreenId s) const {
    for (const auto& a : performed_)
      if (a.what == what && a.screen == s) return true;
    return false;
  }

 private slots:
  void init();
  void cleanup();

  void exportsWriteWhatTheCoreWrites_data();
  void exportsWriteWhatTheCoreWrites();
  void hullNameFollowsTheDxfFile();
  void cancelledExportLeavesNothing();
  void developmentXyzOneDialogPerFileCancelGoesOn();
  void developmentDxfThroughOverlap1();
  void overlap1CancelWritesNothing();
  void overlap1ShownByTheBoardIsNotShownAgain();
  void stationDxfAfterDrawStation();
  void saveWritesTheFileAndSaysWhere();
  void exportTitleStaysForTheHullDialogs();
  void openReplacesTheHullAndOpensBouchain1_data();
  void openReplacesTheHullAndOpensBouchain1();
  void openRefusesWhatIsNotAHull_data();
  void openRefusesWhatIsNotAHull();
  void saveIntoAFolderWithoutWritePermission();
  void fullDiskLeavesNoPartialFile();
  void printEntriesGoToPdf_data();
  void printEntriesGoToPdf();
  void printerSetupUnattendedShowsNothing();
  void newStartsOverThroughTheModel();
  void hmenuShowsThePairBesideTheBoard();
  void developerDrawsThePlates();
};

void BoardCommandsTest::init() {
  // The print entries' remembered choices are the defaults.
  QStandardPaths::setTestModeEnabled(true);
  QSettings(QStringLiteral("Tolmar"), QStringLiteral("tolmar")).clear();
  h_ = fixture::defaultHull();
  h_->langue = 1;
  h_->hullName = "TOLMAR2005";
  b_ = board::loadBoard(*h_);
  b_.stepIndex = 1;
  board_ = std::make_unique<QWidget>();
  plan_ = std::make_unique<qtdraw::ImageSurface>(QSize(1200, 700));
  dessine(*plan_, *h_, b_.stepIndex);
  dir_ = std::make_unique<QTemporaryDir>();
  performed_.clear();
  refreshes_ = pictureChanges_ = 0;
  hooks_.refresh = [this] { ++refreshes_; };
  hooks_.perform = [this](const board::Actions& a) {
    performed_.insert(performed_.end(), a.begin(), a.end());
  };
  hooks_.picture = [this] { return plan_.get(); };
  hooks_.pictureChanged = [this] { ++pictureChanges_; };
  BoardWindows& w = BoardWindows::of(board_.get(), *h_);
  w.setUnattended(true);
  w.printers().pdfOnly = true;
}

void BoardCommandsTest::cleanup() {
  board_.reset();
  plan_.reset();
  dir_.reset();
  h_.reset();
}

void BoardCommandsTest::exportsWriteWhatTheCoreWrites_data() {
  QTest::addColumn<int>("control");
  QTest::addColumn<QString>("start");
  QTest::newRow("lines XYZ") << int(C::fmenu_S_XYZ) << "";
  QTest::newRow("lines 2D DXF") << int(C::fmenu_S_DXF2D) << "999\r\n2D lines of OUT\r\n";
  QTest::newRow("lines 3D DXF") << int(C::fmenu_S_DXF3D) << "999\r\n3D lines of OUT\r\n";
  QTest::newRow("VRML") << int(C::fmenu_S_VRML) << "#VRML V2.0";
}

void BoardCommandsTest::exportsWriteWhatTheCoreWrites() {
  QFETCH(int, control);
  QFETCH(QString, start);
  const auto c = static_cast<BoardControl>(control);
  files().answerWith(spath("OUT.TXT"));
  run(c);
  QVERIFY(files().messages().empty());
  const QByteArray written = test::readAll(path("OUT.TXT"));
  QVERIFY(written.startsWith(start.toUtf8()));

  // The same export through the core with a preset answer, on a copy of
  // the hull as it was before.
  auto again = fixture::defaultHull();
  again->langue = 1;
  again->hullName = "TOLMAR2005";
  // The hull name follows "OUT.TXT" and "OUT.TXT.core" alike: "OUT".
  PresetHost host = PresetHost::toPath(spath("OUT.TXT.core"));
  if (c == C::fmenu_S_XYZ) (void)saveLinesXyz(host, *again);
  if (c == C::fmenu_S_DXF2D) (void)saveLines2D(host, *again);
  if (c == C::fmenu_S_DXF3D) (void)saveLines3D(host, *again);
  if (c == C::fmenu_S_VRML) (void)saveVrml(host, *again);
  QCOMPARE(written, test::readAll(path("OUT.TXT.core")));
}

void BoardCommandsTest::hullNameFollowsTheDxfFile() {
  files().answerWith(spath("BOAT.V2.DXF"));
  run(C::fmenu_S_DXF2D);
  QCOMPARE(h_->hullName, std::string("BOAT"));
  QCOMPARE(b_.text2, std::string("BOAT"));
  QVERIFY(refreshes_ >= 1);
  QVERIFY(performedStep(Do::Focus, C::Cancel));
  QCOMPARE(files().asked().back().title, QString("Tolmar2008 - Save hull lines as 2D DXF file"));
  QCOMPARE(files().asked().back().name, QString("TOLMAR2005.DXF"));
}

void BoardCommandsTest::cancelledExportLeavesNothing() {
  for (C c :
       {C::fmenu_S_XYZ, C::fmenu_S_DXF2D, C::fmenu_S_DXF3D, C::fmenu_S_VRML, C::fmenu_S_Data}) {
    files().answerWith(std::nullopt);
    run(c);
  }
  QCOMPARE(files().asked().size(), std::size_t{5});
  QVERIFY(files().messages().empty());
  QCOMPARE(h_->hullName, std::string("TOLMAR2005"));
  QVERIFY(performed_.empty());
  QVERIFY(filesIn(dir_->path()).isEmpty());
  QCOMPARE(QApplication::overrideCursor(), nullptr);
}

void BoardCommandsTest::developmentXyzOneDialogPerFileCancelGoesOn() {
  // How many files the core asks for on this hull.
  PresetHost count = PresetHost::cancelling();
  auto copy = std::make_unique<HullStore>(*h_);
  saveDevelopedXyz(count, *copy, b_.stepIndex);
  const int n = static_cast<int>(count.requests.size());
  QVERIFY(n >= 5);

  files().answerWith(std::nullopt);  // the first plate is cancelled
  for (int k = 1; k < n; ++k) files().answerWith(spath(QString("plate%1.XYZ").arg(k)));
  run(C::fmenu_SD_XYZ);
  QCOMPARE(static_cast<int>(files().asked().size()), n);
  QCOMPARE(files().answersLeft(), std::size_t{0});
  QCOMPARE(filesIn(dir_->path()).size(), n - 1);
  for (int k = 0; k < n; ++k)
    QCOMPARE(files().asked()[k].name.toStdString(), count.requests[k].defaultName);
}

void BoardCommandsTest::developmentDxfThroughOverlap1() {
  test::whenModal<Overlap1Window>([](Overlap1Window* w) {
    QLineEdit* lap = w->field(Overlap1::Group::text1, 1);
    lap->setFocus();
    lap->selectAll();
    QTest::keyClicks(lap, "25");
    QLineEdit* side = w->field(Overlap1::Group::text2, 1);
    side->setFocus();
    side->selectAll();
    QTest::keyClicks(side, "18.5");
    w->command1(2)->click();
  });
  files().answerWith(spath("PLATES.DXF"));
  files().answerWith(spath("DECKS.DXF"));
  run(C::fmenu_SD_DXF);
  QCOMPARE(h_->overlapMode, i16{2});
  QCOMPARE(files().asked().size(), std::size_t{2});
  QCOMPARE(files().asked()[0].title, QString("Tolmar2008 - Save developed plank as DXF file"));
  QCOMPARE(files().asked()[0].name, QString("TOLMAR2005_PLANK.DXF"));
  QCOMPARE(files().asked()[1].name, QString("TOLMAR2005_DECK.DXF"));
  QVERIFY(performedStep(Do::Focus, C::Cancel));

  // The core writes the same lap-strake file from the tables overlap1 left.
  PresetHost host = PresetHost::toFolder(dir_->path().toStdString());
  auto copy = std::make_unique<HullStore>(*h_);
  saveDevelopedDxf(host, *copy, b_.stepIndex);
  QCOMPARE(test::readAll(path("PLATES.DXF")), test::readAll(path("TOLMAR2005_PLANK.DXF")));
  QCOMPARE(test::readAll(path("DECKS.DXF")), test::readAll(path("TOLMAR2005_DECK.DXF")));
  QCOMPARE(h_->overlapWidth(2, 40), static_cast<double>(18.5f) / 1000);
}

void BoardCommandsTest::overlap1CancelWritesNothing() {
  test::whenModal<Overlap1Window>([](Overlap1Window* w) { w->command1(0)->click(); });
  files().answerWith(spath("PLATES.DXF"));
  run(C::fmenu_SD_DXF);
  QCOMPARE(h_->overlapMode, i16{0});
  QVERIFY(files().asked().empty());
  QVERIFY(filesIn(dir_->path()).isEmpty());
}

void BoardCommandsTest::overlap1ShownByTheBoardIsNotShownAgain() {
  int shown = 0;
  test::whenModal<Overlap1Window>([&](Overlap1Window* w) {
    ++shown;
    w->command1(1)->click();
  });
  // The board runs the model's steps of fmenu_SD_DXF one after the other.
  for (const board::Action& a : board::press(b_, *h_, C::fmenu_SD_DXF)) {
    if (a.what == Do::ShowModal) showBoardScreen(board_.get(), *h_, b_, a.screen, hooks_);
    if (a.what == Do::Run) {
      files().answerWith(spath("P.DXF"));
      files().answerWith(spath("D.DXF"));
      run(a.control);
    }
  }
  QCOMPARE(shown, 1);
  QCOMPARE(h_->overlapMode, i16{1});
  QCOMPARE(filesIn(dir_->path()), (QStringList{"D.DXF", "P.DXF"}));
}

void BoardCommandsTest::stationDxfAfterDrawStation() {
  b_.text1 = "1,5";
  run(C::DessCouple);
  QCOMPARE(pictureChanges_, 1);
  QVERIFY(b_.isEnabled(C::fmenu_Station_DXF));
  QVERIFY(h_->stationIndex > 1 && h_->stationIndex < 81);
  files().answerWith(spath("STATION.DXF"));
  run(C::fmenu_Station_DXF);
  QVERIFY(test::readAll(path("STATION.DXF")).startsWith("999\r\n"));
  QVERIFY(files().messages().empty());
}

void BoardCommandsTest::saveWritesTheFileAndSaysWhere() {
  files().answerWith(spath("MyBoat"));
  run(C::fmenu_S_Data);
  QCOMPARE(files().asked().back().name, QString("TOLMAR2005.D50"));
  QCOMPARE(files().asked().back().filter, QString("Data Tolmar2000 (*.D50 *.d50);;All files (*)"));
  QVERIFY(QFileInfo::exists(path("MyBoat.D50")));
  QCOMPARE(h_->hullName, std::string("MyBoat"));
  QCOMPARE(b_.text2, std::string("MyBoat"));
  QCOMPARE(b_.title, std::string("Tolmar2008 -  Data saved  "));
  QCOMPARE(files().messages().size(), std::size_t{1});
  QCOMPARE(files().messages()[0].title, std::string("Tolmar2008 - Data saved "));
  QCOMPARE(QString::fromStdString(files().messages()[0].text), path("MyBoat.D50"));
  QVERIFY(performedStep(Do::Focus, C::Cancel));
  QVERIFY(test::readAll(path("MyBoat.D50")).startsWith("MyBoat - Tolmar2008\r\n&"));
}

void BoardCommandsTest::exportTitleStaysForTheHullDialogs() {
  files().answerWith(std::nullopt);
  run(C::fmenu_S_DXF3D);
  files().answerWith(std::nullopt);
  run(C::fmenu_Open);
  files().answerWith(std::nullopt);
  run(C::fmenu_S_Data);
  QCOMPARE(files().asked().size(), std::size_t{3});
  QCOMPARE(files().asked()[1].title, QString("Tolmar2008 - Save hull lines as 3D DXF file"));
  QCOMPARE(files().asked()[1].kind, DialogKind::open);
  QCOMPARE(files().asked()[1].filter,
           QString("Data Tolmar2000 (*.D50 *.d50);;Old Data (*.D51 *.d51)"));
  QCOMPARE(files().asked()[1].name, QString("Tolmar.D50"));
  QCOMPARE(files().asked()[2].title, QString("Tolmar2008 - Save hull lines as 3D DXF file"));
  QVERIFY(files().messages().empty());
}

void BoardCommandsTest::openReplacesTheHullAndOpensBouchain1_data() {
  QTest::addColumn<QString>("file");
  QTest::addColumn<QString>("name");
  QTest::addColumn<int>("lines");
  QTest::newRow("no version") << "old_no_version.D50"
                              << "old_no_version" << 3;
  QTest::newRow("no &, count at the start") << "old_no_amp_short.D50"
                                            << "old_no_amp_short" << 4;
  QTest::newRow("oldest .D51") << "old_oldest.D51"
                               << "old_oldest" << 4;
}

void BoardCommandsTest::openReplacesTheHullAndOpensBouchain1() {
  QFETCH(QString, file);
  QFETCH(QString, name);
  QFETCH(int, lines);
  files().answerWith(QString(TOLMAR_TEST_DATA "/hull/" + file).toStdString());
  run(C::fmenu_Open);
  QVERIFY2(files().messages().empty(),
           files().messages().empty() ? "" : files().messages()[0].text.c_str());
  QCOMPARE(QString::fromStdString(h_->hullName), name);
  QCOMPARE(int(h_->nChines), lines);
  QCOMPARE(QString::fromStdString(b_.text2), name);
  QCOMPARE(QString::fromStdString(b_.title), "Tolmar2008 - File Open : " + name);
  QCOMPARE(b_.stepIndex, i16{0});
  QVERIFY(performedScreen(Do::ClearPicture, board::ScreenId::dessin));
  QVERIFY(performedScreen(Do::ShowModal, board::ScreenId::bouchain1));
  for (int i = 0; i <= 82; ++i) QVERIFY(std::isfinite(h_->lineZ(lines, i)));
}

void BoardCommandsTest::openRefusesWhatIsNotAHull_data() {
  QTest::addColumn<QByteArray>("content");
  QTest::addColumn<bool>("exists");
  QTest::newRow("missing") << QByteArray() << false;
  QTest::newRow("empty") << QByteArray() << true;
  QTest::newRow("binary") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16) << true;
  QTest::newRow("a DXF")
      << QByteArray("999\r\nlines\r\n  0\r\nSECTION\r\n  2\r\nENTITIES\r\n  0\r\nEOF\r\n") << true;
  QTest::newRow("count above 25")
      << QByteArray("X - Tolmar2008\r\n&C30\r\n1\r\n1\r\n0\r\n0\r\n0\r\n0\r\n0\r\n") << true;
}

void BoardCommandsTest::openRefusesWhatIsNotAHull() {
  QFETCH(QByteArray, content);
  QFETCH(bool, exists);
  const QString file = path("thing.D50");
  if (exists) {
    QFile f(file);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(content);
  }
  const HullStore before = *h_;
  const board::BoardState boardBefore = b_;
  files().answerWith(file.toStdString());
  run(C::fmenu_Open);
  QCOMPARE(files().messages().size(), std::size_t{1});
  QCOMPARE(files().messages()[0].title, std::string(kOpenErrorTitle));
  QVERIFY(!files().messages()[0].text.empty());
  QVERIFY(performed_.empty());
  QCOMPARE(h_->hullName, before.hullName);
  QCOMPARE(h_->nChines, before.nChines);
  QCOMPARE(h_->xFwd(0), before.xFwd(0));
  QCOMPARE(h_->lineZ(1, 40), before.lineZ(1, 40));
  QCOMPARE(b_.title, boardBefore.title);
  QCOMPARE(QApplication::overrideCursor(), nullptr);
}

void BoardCommandsTest::saveIntoAFolderWithoutWritePermission() {
  const QString locked = test::lockedFolder(*dir_);
  const QString former = QDir(locked).filePath("KEEP.D50");
  ::chmod(locked.toLocal8Bit().constData(), 0755);
  {
    QFile f(former);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write("former hull\r\n");
  }
  ::chmod(locked.toLocal8Bit().constData(), 0555);
  files().answerWith(former.toStdString());
  files().answerWith(QDir(locked).filePath("LINES.DXF").toStdString());
  {
    test::WithoutPrivilege asUser;
    run(C::fmenu_S_Data);
    run(C::fmenu_S_DXF2D);
  }
  QCOMPARE(files().messages().size(), std::size_t{2});
  QCOMPARE(files().messages()[0].title, std::string(kSaveErrorTitle));
  QCOMPARE(files().messages()[0].text, std::string("Permission denied"));
  QCOMPARE(files().messages()[1].title, std::string("Tolmar2008 - Saving Hull line 2D DXF"));
  QCOMPARE(h_->hullName, std::string("TOLMAR2005"));
  QVERIFY(b_.title.find("saved") == std::string::npos);
  QCOMPARE(test::readAll(former), QByteArray("former hull\r\n"));
  QCOMPARE(filesIn(locked), QStringList{"KEEP.D50"});
}

void BoardCommandsTest::fullDiskLeavesNoPartialFile() {
  const QString former = path("FULL.D50");
  {
    QFile f(former);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write("former hull\r\n");
  }
  files().answerWith(former.toStdString());
  files().answerWith(spath("FULL.DXF"));
  files().answerWith(spath("FULL.PDF"));
  {
    DiskFull disk(600);
    run(C::fmenu_S_Data);
    run(C::fmenu_S_DXF3D);
    run(C::fmenu_P_Tout);
  }
  QCOMPARE(files().messages().size(), std::size_t{3});
  QCOMPARE(files().messages()[0].title, std::string(kSaveErrorTitle));
  QCOMPARE(files().messages()[1].title, std::string("Tolmar2008 - Saving Hull line 3D DXF"));
  QCOMPARE(files().messages()[2].title, std::string(kPrintErrorTitle));
  QCOMPARE(files().messages()[0].text, std::string("File too large"));
  QCOMPARE(test::readAll(former), QByteArray("former hull\r\n"));
  QCOMPARE(filesIn(dir_->path()), QStringList{"FULL.D50"});
}

void BoardCommandsTest::printEntriesGoToPdf_data() {
  QTest::addColumn<int>("control");
  QTest::addColumn<int>("minPages");
  QTest::newRow("data") << int(C::fmenu_P_Data) << 1;
  QTest::newRow("drawing") << int(C::fmenu_P_Dessin) << 3;
  QTest::newRow("development") << int(C::fmenu_P_Develop) << 2;
  QTest::newRow("station") << int(C::fmenu_P_Station) << 1;
  QTest::newRow("all offsets") << int(C::fmenu_P_Tout) << 8;
  QTest::newRow("full-size patterns") << int(C::fmenu_P_Patterns) << 50;
  QTest::newRow("panel offsets") << int(C::fmenu_P_Panels) << 6;
}

void BoardCommandsTest::printEntriesGoToPdf() {
  QFETCH(int, control);
  QFETCH(int, minPages);
  run(C::DessCouple);
  files().answerWith(spath("PRINT.PDF"));
  run(static_cast<BoardControl>(control));
  QVERIFY2(files().messages().empty(),
           files().messages().empty() ? "" : files().messages()[0].text.c_str());
  QCOMPARE(files().asked().back().name, QString("TOLMAR2005.PDF"));
  const QByteArray pdf = test::readAll(path("PRINT.PDF"));
  QVERIFY(pdf.startsWith("%PDF"));
  const int pages = static_cast<int>(pdf.count("/Type /Page\n") + pdf.count("/Type /Page "));
  QVERIFY2(pages >= minPages, qPrintable(QString::number(pages)));
}

void BoardCommandsTest::printerSetupUnattendedShowsNothing() {
  run(C::fmenu_PSetup);
  QVERIFY(files().asked().empty());
  QVERIFY(files().messages().empty());
}

void BoardCommandsTest::newStartsOverThroughTheModel() {
  h_->hullName = "OLD";
  run(C::fmenu_New);
  QCOMPARE(h_->hullName, std::string("Tolmar"));
  QCOMPARE(b_.text2, std::string("Tolmar"));
  QVERIFY(performedScreen(Do::ShowModal, board::ScreenId::bouchain1));
  QVERIFY(!b_.isEnabled(C::fmenu_S_DXF2D));
}

void BoardCommandsTest::hmenuShowsThePairBesideTheBoard() {
  run(C::Hmenu);
  AnalysisWindows& pair = BoardWindows::of(board_.get(), *h_).analysis();
  QVERIFY(pair.hydroWindow()->isVisible());
  QVERIFY(pair.massWindow()->isVisible());
  QVERIFY(!pair.hydroWindow()->isModal());
  // Shown again by the model's second step (mass1): nothing more happens.
  showBoardScreen(board_.get(), *h_, b_, board::ScreenId::mass1, hooks_);
  QTest::mouseClick(pair.hydroWindow()->cdQuit(), Qt::LeftButton);
  QVERIFY(!pair.hydroWindow()->isVisible());
  QCOMPARE(pictureChanges_, 1);
}

void BoardCommandsTest::developerDrawsThePlates() {
  const QImage before = plan_->picture();
  run(C::Developer);
  QCOMPARE(pictureChanges_, 1);
  QVERIFY(plan_->picture() != before);
  QCOMPARE(QApplication::overrideCursor(), nullptr);
}

QTEST_MAIN(BoardCommandsTest)
#include "board_commands_test.moc"
