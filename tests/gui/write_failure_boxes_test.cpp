// A failed write as the user meets it in the program: the board's File
// menu saves the hull, exports the lines and prints a page into a PDF
// while one step of the writer fails (TOLMAR_WRITE_FAULT, as the command
// line's tests use it), then the 3-D model and the plywood sheets' SVG.
// The dialogs and the message boxes are the real ones, answered as a user
// would: the message names the failure, the file that was there is byte
// for byte as it was, no temporary is left, and the same command then
// succeeds.  Pictures of the boxes when TOLMAR_SCREENSHOTS names a folder
// (under xvfb-run with QT_QPA_PLATFORM=xcb).
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <memory>

#include "board_session_util.h"
#include "development/hull_fixture.h"
#include "windows/board_commands.h"
#include "windows/command_steps.h"
#include "windows/model_export.h"
#include "windows/printer_dialog.h"
#include "windows/sheets_window.h"
#include "windows_test_util.h"

using namespace tolmar;
using C = board::BoardControl;

namespace {

// What the message box said, once it showed and was closed with its OK.
struct Box {
  bool shown = false;
  QString title;
  QString text;
};

// For the time of one command: its file dialog answered with `path` (and
// a question whether to replace the file answered yes), its message box
// read and closed.  Each answer is given from the event loop, after the
// poll that found the window has returned, so that a window the answer
// opens in turn is found as well.
class User {
 public:
  // `picture`: the file name of the box's picture, taken when
  // TOLMAR_SCREENSHOTS names a folder.
  explicit User(const QString& path, const QString& picture = {}) {
    QObject::connect(&timer_, &QTimer::timeout, [this, path, picture] {
      for (QWidget* w : QApplication::topLevelWidgets()) {
        if (!w->isVisible() || answered_.contains(w)) continue;
        if (auto* d = qobject_cast<QFileDialog*>(w)) {
          answered_ << w;
          // Typed into the name field, as the dialog keeps the name it
          // proposed when the folder chosen is already its own.
          d->selectFile(path);
          if (auto* name = d->findChild<QLineEdit*>("fileNameEdit")) name->setText(path);
          QTimer::singleShot(0, d, [d] { static_cast<QDialog*>(d)->accept(); });
          return;
        }
        auto* m = qobject_cast<QMessageBox*>(w);
        if (!m) continue;
        answered_ << w;
        if (QAbstractButton* yes = m->button(QMessageBox::Yes)) {
          ++questions;
          QTimer::singleShot(0, yes, [yes] { yes->click(); });
          return;
        }
        box.shown = true;
        box.title = m->windowTitle();
        box.text = m->text();
        const QString folder = qEnvironmentVariable("TOLMAR_SCREENSHOTS");
        if (!folder.isEmpty() && !picture.isEmpty())
          m->grab().save(QDir(folder).filePath(picture + ".png"));
        QAbstractButton* ok = m->button(QMessageBox::Ok);
        QTimer::singleShot(0, m, [m, ok] {
          if (ok)
            ok->click();
          else
            m->close();
        });
        return;
      }
    });
    timer_.start(5);
  }
  Box box;
  int questions = 0;  // whether to replace a file

 private:
  QTimer timer_;
  QList<QPointer<QWidget>> answered_;
};

void writeFile(const QString& path, const QByteArray& bytes) {
  QFile f(path);
  QVERIFY(f.open(QIODevice::WriteOnly));
  QCOMPARE(f.write(bytes), bytes.size());
}

// Every file in the folder, hidden ones (a temporary ".NAME.tmpNNN") too.
QStringList filesIn(const QString& folder) {
  return QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
}

class Fault {
 public:
  explicit Fault(const char* step) { qputenv("TOLMAR_WRITE_FAULT", step); }
  ~Fault() { qunsetenv("TOLMAR_WRITE_FAULT"); }
  Fault(const Fault&) = delete;
  Fault& operator=(const Fault&) = delete;
};

}  // namespace

class WriteFailureBoxesTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    test::quietOffscreen();
    QCoreApplication::setOrganizationName("tolmar-test-write-failures");
    QSettings().clear();
  }
  void init();
  void cleanup();
  void saveOfTheHullFile_data();
  void saveOfTheHullFile();
  void exportOfTheLines_data();
  void exportOfTheLines();
  void printIntoAPdf();
  void threeDModel();
  void sheetsSvg();

 private:
  // The command run from the board's menu with the file dialog answered
  // with `path`; what its message box said.
  Box run(C entry, const QString& path, const QString& picture = {}) {
    return run(p_->board().action(entry), path, picture);
  }
  Box run(QAction* a, const QString& path, const QString& picture = {});

  std::unique_ptr<test::Started> p_;
  std::unique_ptr<QTemporaryDir> dir_;
};

void WriteFailureBoxesTest::init() {
  qunsetenv("TOLMAR_WRITE_FAULT");
  p_ = std::make_unique<test::Started>();
  p_->createAndValidate();
  gui::DessinWindow& board = p_->board();
  p_->h() = *fixture::defaultHull();
  p_->h().langue = 1;
  p_->h().hullName = "DORY";
  board.state().stepIndex = 1;
  board.dessineAction();
  gui::BoardWindows::of(&board, p_->h()).printers().pdfOnly = true;
  dir_ = std::make_unique<QTemporaryDir>();
}

void WriteFailureBoxesTest::cleanup() {
  qunsetenv("TOLMAR_WRITE_FAULT");
  p_.reset();
  dir_.reset();
}

Box WriteFailureBoxesTest::run(QAction* a, const QString& path, const QString& picture) {
  if (!a || !a->isEnabled()) return {};
  User user(path, picture);
  a->trigger();
  return user.box;
}

void WriteFailureBoxesTest::saveOfTheHullFile_data() {
  QTest::addColumn<QByteArray>("step");
  QTest::addColumn<QString>("reason");
  QTest::newRow("write") << QByteArray("write") << "No space left on device";
  QTest::newRow("fsync") << QByteArray("fsync") << "Input/output error";
  QTest::newRow("rename") << QByteArray("rename") << "Invalid cross-device link";
  QTest::newRow("open") << QByteArray("open") << "Permission denied";
}

void WriteFailureBoxesTest::saveOfTheHullFile() {
  QFETCH(QByteArray, step);
  QFETCH(QString, reason);
  const QString file = dir_->filePath("OLD.D50");
  const QByteArray former("former hull\r\n");
  writeFile(file, former);
  {
    Fault fault(step.constData());
    const auto box = run(C::fmenu_S_Data, file, "save-failed-" + step);
    QVERIFY(box.shown);
    QCOMPARE(box.title, QString(gui::kSaveErrorTitle));
    QVERIFY2(box.text.contains(reason), qPrintable(box.text));
  }
  QCOMPARE(test::readAll(file), former);
  QCOMPARE(filesIn(dir_->path()), QStringList{"OLD.D50"});
  QCOMPARE(p_->h().hullName, std::string("DORY"));  // the name goes with the file saved
  QVERIFY(p_->board().state().title.find("saved") == std::string::npos);

  // The program goes on: the same save, now written and said so.
  const auto saved = run(C::fmenu_S_Data, file);
  QVERIFY(saved.shown);
  QCOMPARE(saved.title, QString(gui::kSavedTitle));
  QVERIFY2(saved.text.contains("OLD.D50"), qPrintable(saved.text));
  QCOMPARE(filesIn(dir_->path()), QStringList{"OLD.D50"});
  auto back = std::make_unique<HullStore>();
  QCOMPARE(gui::readHullForOpen(file.toStdString(), *back), std::string());
  QCOMPARE(back->lineZ(2, 40), p_->h().lineZ(2, 40));
  QCOMPARE(p_->h().hullName, std::string("OLD"));
}

void WriteFailureBoxesTest::exportOfTheLines_data() {
  QTest::addColumn<int>("entry");
  QTest::addColumn<QByteArray>("step");
  QTest::addColumn<QString>("reason");
  QTest::addColumn<QByteArray>("start");
  QTest::newRow("2D DXF, flush") << int(C::fmenu_S_DXF2D) << QByteArray("flush")
                                 << "No space left on device" << QByteArray("999\r\n2D lines of");
  QTest::newRow("3D DXF, close") << int(C::fmenu_S_DXF3D) << QByteArray("close")
                                 << "Input/output error" << QByteArray("999\r\n3D lines of");
  QTest::newRow("VRML, rename") << int(C::fmenu_S_VRML) << QByteArray("rename")
                                << "Invalid cross-device link" << QByteArray("#VRML V2.0");
}

void WriteFailureBoxesTest::exportOfTheLines() {
  QFETCH(int, entry);
  QFETCH(QByteArray, step);
  QFETCH(QString, reason);
  QFETCH(QByteArray, start);
  const auto c = static_cast<C>(entry);
  const QString file = dir_->filePath("LINES.OUT");
  const QByteArray former("former export\r\n");
  writeFile(file, former);
  {
    Fault fault(step.constData());
    const auto box = run(c, file);
    QVERIFY(box.shown);
    QVERIFY2(box.title.startsWith("Tolmar2008 - Saving"), qPrintable(box.title));
    QVERIFY2(box.text.contains(reason), qPrintable(box.text));
  }
  QCOMPARE(test::readAll(file), former);
  QCOMPARE(filesIn(dir_->path()), QStringList{"LINES.OUT"});

  // Then the export is written, without a message.
  const auto again = run(c, file);
  QVERIFY2(!again.shown, qPrintable(again.text));
  QVERIFY(test::readAll(file).startsWith(start));
  QCOMPARE(filesIn(dir_->path()), QStringList{"LINES.OUT"});
}

void WriteFailureBoxesTest::printIntoAPdf() {
  const QString file = dir_->filePath("DATA.PDF");
  const QByteArray former("%PDF-1.4 former page\n");
  writeFile(file, former);
  {
    Fault fault("flush");
    const auto box = run(C::fmenu_P_Data, file, "print-failed");
    QVERIFY(box.shown);
    QCOMPARE(box.title, QString(gui::kPrintErrorTitle));
    QVERIFY2(box.text.contains("No space left on device"), qPrintable(box.text));
  }
  QCOMPARE(test::readAll(file), former);
  QCOMPARE(filesIn(dir_->path()), QStringList{"DATA.PDF"});

  const auto again = run(C::fmenu_P_Data, file);
  QVERIFY2(!again.shown, qPrintable(again.text));
  const QByteArray pdf = test::readAll(file);
  QVERIFY(pdf.startsWith("%PDF") && pdf != former && pdf.contains("%%EOF"));
  QCOMPARE(filesIn(dir_->path()), QStringList{"DATA.PDF"});
}

// "3-D model (STL, OBJ)…" after the VRML export: its own dialog, which
// says why it could not write and stays open for another try.
void WriteFailureBoxesTest::threeDModel() {
  QAction* entry = p_->board().model3dAction();
  QVERIFY(entry && entry->isEnabled());
  const QString file = dir_->filePath("HULL.stl");
  const QByteArray former("solid former\nendsolid former\n");
  writeFile(file, former);
  // Save with the file typed, then what the dialog says; closed if it is
  // still open.
  auto save = [&](bool fault) {
    QString said;
    bool closedBySave = false;
    test::whenModal<gui::ModelExportDialog>([&](gui::ModelExportDialog* d) {
      d->format()->setCurrentIndex(0);
      d->path()->setText(file);
      auto* buttons = d->findChild<QDialogButtonBox*>();
      {
        std::unique_ptr<Fault> f = fault ? std::make_unique<Fault>("fsync") : nullptr;
        buttons->button(QDialogButtonBox::Save)->click();
      }
      said = d->message()->text();
      closedBySave = !d->isVisible();
      if (!closedBySave) d->reject();
    });
    entry->trigger();
    return std::pair{said, closedBySave};
  };
  const auto [failure, closed] = save(true);
  QVERIFY(!closed);
  QVERIFY2(failure.contains(file) && failure.contains("Input/output error"), qPrintable(failure));
  QCOMPARE(test::readAll(file), former);
  QCOMPARE(filesIn(dir_->path()), QStringList{"HULL.stl"});

  const auto [none, saved] = save(false);
  QVERIFY2(saved && none.isEmpty(), qPrintable(none));
  const QByteArray stl = test::readAll(file);
  QVERIFY(stl != former && stl.size() > 84);
  QCOMPARE(filesIn(dir_->path()), QStringList{"HULL.stl"});
}

// The SVG of the plywood sheets, from the window of the Build menu.
void WriteFailureBoxesTest::sheetsSvg() {
  gui::BuildMenu& build = p_->board().constructionMenu();
  QAction* entry = build.action("fmenu_B_Sheets");
  QVERIFY(entry && entry->isEnabled());
  entry->trigger();
  auto* w = qobject_cast<gui::SheetsWindow*>(build.window("fmenu_B_Sheets"));
  QVERIFY(w);
  // On 3050 x 1525 sheets, where the default hull's widest deck fits.
  w->findChild<QComboBox*>("sheetSize")->setCurrentIndex(2);
  w->compute();
  QVERIFY2(!w->plan().sheets.empty(), qPrintable(w->message()->text()));
  QPushButton* svg = w->findChild<QPushButton*>("saveSvg");
  const QString file = dir_->filePath("SHEETS.svg");
  const QByteArray former("<svg>former</svg>\n");
  writeFile(file, former);
  {
    Fault fault("write");
    User user(file, "sheets-failed");
    svg->click();
    QVERIFY(user.box.shown);
    QVERIFY2(user.box.text.contains("No space left on device"), qPrintable(user.box.text));
  }
  QCOMPARE(test::readAll(file), former);
  QCOMPARE(filesIn(dir_->path()), QStringList{"SHEETS.svg"});

  User user(file);
  svg->click();
  QVERIFY2(!user.box.shown, qPrintable(user.box.text));
  QVERIFY(test::readAll(file).contains("<svg"));
  QVERIFY(test::readAll(file) != former);
  QCOMPARE(filesIn(dir_->path()), QStringList{"SHEETS.svg"});
  w->close();
}

QTEST_MAIN(WriteFailureBoxesTest)
#include "write_failure_boxes_test.moc"
