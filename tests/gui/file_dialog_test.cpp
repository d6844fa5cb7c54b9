// CmDialog1 and CmDialog2: filters in Qt's form, the one dialog object that
// keeps a title and a folder an operation does not set, the bare name
// given back, a cancel, the real QFileDialog as the user meets it, and
// printing to PDF with its error paths.
#include "windows/file_dialog.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>
#include <stdexcept>

#include "hull/hull_store.h"
#include "windows/printer_dialog.h"
#include "windows_test_util.h"

using namespace tolmar;
using namespace tolmar::gui;

class FileDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void filters_data();
  void filters();
  void titleAndFolderStayFromTheLastDialog();
  void answersGiveThePathAndTheBareName();
  void emptyQueueCancels();
  void messagesAreKeptUnattended();
  void realDialogShowsTheRequest();
  void realDialogCancel();
  void pdfIsWrittenWhole();
  void pdfTitleDoesNotStayForTheHullFile();
  void realDialogAfterPdfHasTheHullFileTitle();
  void pdfCancelledPrintsNothing();
  void pdfInAFolderWithoutWritePermission();
  void pdfDrawingThatFailsKeepsTheFormerFile();
};

void FileDialogTest::filters_data() {
  QTest::addColumn<QString>("filter");
  QTest::addColumn<QString>("qt");
  QTest::newRow("open") << "Data Tolmar2000|*.D50|Old Data (*.D51)|*.D51"
                        << "Data Tolmar2000 (*.D50 *.d50);;Old Data (*.D51 *.d51)";
  QTest::newRow("save") << "Data Tolmar2000|*.D50|All files|*.*"
                        << "Data Tolmar2000 (*.D50 *.d50);;All files (*)";
  QTest::newRow("lines") << "Lines (*.DXF)|*.DXF"
                         << "Lines (*.DXF *.dxf)";
  QTest::newRow("plank label differs") << "Plank (*_PLANK.DXF)|*.DXF"
                                       << "Plank (*_PLANK.DXF) (*.DXF *.dxf)";
  QTest::newRow("two patterns") << "Tables|*.XYZ;*.TXT"
                                << "Tables (*.XYZ *.xyz *.TXT *.txt)";
  QTest::newRow("empty") << ""
                         << "";
}

void FileDialogTest::filters() {
  QFETCH(QString, filter);
  QFETCH(QString, qt);
  QCOMPARE(qtFilter(filter.toStdString()), qt);
}

void FileDialogTest::titleAndFolderStayFromTheLastDialog() {
  QTemporaryDir dir;
  QVERIFY(dir.isValid());
  QDir(dir.path()).mkdir("exports");
  const std::string exports = dir.filePath("exports").toStdString();
  CmDialog1 d(nullptr);
  d.setUnattended(true);

  d.answerWith("a.DXF");
  QVERIFY(d.askSaveFile({"Export title", "Lines (*.DXF)|*.DXF", "A.DXF", exports}).has_value());
  // The hull file sets neither title nor an existing folder.
  d.answerWith(std::nullopt);
  QVERIFY(!d.askOpenFile({std::nullopt, "Data|*.D50", "Tolmar.D50", "no-such-folder-here"})
               .has_value());

  QCOMPARE(d.asked().size(), std::size_t{2});
  QCOMPARE(d.asked()[1].title, QString("Export title"));
  QCOMPARE(d.asked()[1].folder, dir.filePath("exports"));
  QCOMPARE(d.asked()[1].kind, DialogKind::open);
  QCOMPARE(d.asked()[1].name, QString("Tolmar.D50"));
  QCOMPARE(d.asked()[0].filter, QString("Lines (*.DXF *.dxf)"));
}

void FileDialogTest::answersGiveThePathAndTheBareName() {
  QTemporaryDir dir;
  CmDialog1 d(nullptr);
  d.setUnattended(true);
  d.answerWith(dir.filePath("BOAT.V2.DXF").toStdString());
  const auto a = d.askSaveFile({std::nullopt, "Lines (*.DXF)|*.DXF", "X.DXF", std::nullopt});
  QVERIFY(a.has_value());
  QCOMPARE(QString::fromStdString(a->path), dir.filePath("BOAT.V2.DXF"));
  QCOMPARE(a->name, std::string("BOAT.V2.DXF"));
  // The folder of a chosen file is where the next dialog opens.
  d.answerWith("next.DXF");
  const auto b = d.askSaveFile({std::nullopt, "Lines (*.DXF)|*.DXF", "X.DXF", std::nullopt});
  QCOMPARE(QString::fromStdString(b->path), dir.filePath("next.DXF"));
}

void FileDialogTest::emptyQueueCancels() {
  CmDialog1 d(nullptr);
  d.setUnattended(true);
  QVERIFY(!d.askSaveFile({"T", "A|*.A", "a.A", std::nullopt}).has_value());
  QCOMPARE(d.asked().size(), std::size_t{1});
}

void FileDialogTest::messagesAreKeptUnattended() {
  CmDialog1 d(nullptr);
  d.setUnattended(true);
  d.showError("Tolmar2008 Saving Data", "Permission denied");
  QCOMPARE(d.messages().size(), std::size_t{1});
  QCOMPARE(d.messages()[0].title, std::string("Tolmar2008 Saving Data"));
  QCOMPARE(d.messages()[0].text, std::string("Permission denied"));
}

void FileDialogTest::realDialogShowsTheRequest() {
  QTemporaryDir dir;
  CmDialog1 d(nullptr);
  QString title, folder;
  QStringList filters;
  const QString target = dir.filePath("HULL.DXF");
  test::whenModal<QFileDialog>([&](QFileDialog* fd) {
    title = fd->windowTitle();
    folder = fd->directory().absolutePath();
    filters = fd->nameFilters();
    QVERIFY(fd->testOption(QFileDialog::DontConfirmOverwrite));
    fd->selectFile(target);
    static_cast<QDialog*>(fd)->accept();
  });
  const auto a = d.askSaveFile({"Tolmar2008 - Save hull lines as 2D DXF file",
                                "Lines (*.DXF)|*.DXF", "HULL.DXF", dir.path().toStdString()});
  QVERIFY(a.has_value());
  QCOMPARE(title, QString("Tolmar2008 - Save hull lines as 2D DXF file"));
  QCOMPARE(QDir(folder), QDir(dir.path()));
  QCOMPARE(filters, QStringList{"Lines (*.DXF *.dxf)"});
  QCOMPARE(QString::fromStdString(a->path), target);
  QCOMPARE(a->name, std::string("HULL.DXF"));
}

void FileDialogTest::realDialogCancel() {
  CmDialog1 d(nullptr);
  test::whenModal<QFileDialog>([](QFileDialog* fd) { fd->reject(); });
  QVERIFY(!d.askOpenFile({std::nullopt, "Data|*.D50", "Tolmar.D50", std::nullopt}).has_value());
}

namespace {

void twoPages(DrawingSurface& s) {
  s.Line(1000, 1000, 5000, 5000);
  s.NewPage();
  s.CurrentX = 1000;
  s.CurrentY = 1000;
  s.Print("page 2");
  s.EndDoc();
}

}  // namespace

void FileDialogTest::pdfIsWrittenWhole() {
  QTemporaryDir dir;
  HullStore h;
  h.hullName = "DORY";
  CmDialog1 files(nullptr);
  files.setUnattended(true);
  CmDialog2 printers(nullptr);
  printers.pdfOnly = true;
  files.answerWith(dir.filePath("out.PDF").toStdString());
  QCOMPARE(printDocument(files, printers, h, twoPages), PrintOutcome::printed);
  QCOMPARE(files.asked().back().name, QString("DORY.PDF"));
  QCOMPARE(files.asked().back().title, QString(kPdfTitle));
  const QByteArray pdf = test::readAll(dir.filePath("out.PDF"));
  QVERIFY(pdf.startsWith("%PDF"));
  QVERIFY(pdf.contains("%%EOF"));
  QCOMPARE(pdf.count("/Type /Page\n") + pdf.count("/Type /Page\r") + pdf.count("/Type /Page "), 2);
  QVERIFY(files.messages().empty());
}

// The PDF file's dialog has its own title for itself alone: the hull file's
// dialogs that follow show the title the last export left, or none.
void FileDialogTest::pdfTitleDoesNotStayForTheHullFile() {
  QTemporaryDir dir;
  HullStore h;
  h.hullName = "DORY";
  CmDialog1 files(nullptr);
  files.setUnattended(true);
  CmDialog2 printers(nullptr);
  printers.pdfOnly = true;
  files.answerWith(dir.filePath("a.PDF").toStdString());
  QCOMPARE(printDocument(files, printers, h, twoPages), PrintOutcome::printed);
  QVERIFY(!files.askSaveFile({std::nullopt, "Data|*.D50", "DORY.D50", std::nullopt}));
  QVERIFY(!files.askOpenFile({std::nullopt, "Data|*.D50", "Tolmar.D50", std::nullopt}));
  QCOMPARE(files.asked()[1].title, QString());
  QCOMPARE(files.asked()[2].title, QString());

  files.answerWith(dir.filePath("a.DXF").toStdString());
  QVERIFY(files.askSaveFile({"Export title", "Lines|*.DXF", "A.DXF", std::nullopt}));
  files.answerWith(dir.filePath("b.PDF").toStdString());
  QCOMPARE(printDocument(files, printers, h, twoPages), PrintOutcome::printed);
  QVERIFY(!files.askSaveFile({std::nullopt, "Data|*.D50", "DORY.D50", std::nullopt}));
  QCOMPARE(files.asked()[4].title, QString(kPdfTitle));
  QCOMPARE(files.asked()[5].title, QString("Export title"));
}

void FileDialogTest::realDialogAfterPdfHasTheHullFileTitle() {
  QTemporaryDir dir;
  HullStore h;
  h.hullName = "DORY";
  CmDialog1 files(nullptr);
  CmDialog2 printers(nullptr);
  printers.pdfOnly = true;
  QStringList titles;
  auto cancel = [&titles](QFileDialog* fd) {
    titles << fd->windowTitle();
    fd->reject();
  };
  test::whenModal<QFileDialog>(cancel);
  QVERIFY(!files.askSaveFile({std::nullopt, "Data|*.D50", "DORY.D50", std::nullopt}));
  test::whenModal<QFileDialog>(cancel);
  QCOMPARE(printDocument(files, printers, h, twoPages), PrintOutcome::cancelled);
  test::whenModal<QFileDialog>(cancel);
  QVERIFY(!files.askSaveFile({std::nullopt, "Data|*.D50", "DORY.D50", std::nullopt}));
  QCOMPARE(titles.size(), 3);
  QCOMPARE(titles[1], QString(kPdfTitle));
  QCOMPARE(titles[2], titles[0]);
}

void FileDialogTest::pdfCancelledPrintsNothing() {
  QTemporaryDir dir;
  HullStore h;
  CmDialog1 files(nullptr);
  files.setUnattended(true);
  CmDialog2 printers(nullptr);
  printers.pdfOnly = true;
  files.answerWith(std::nullopt);
  bool drawn = false;
  QCOMPARE(printDocument(files, printers, h, [&](DrawingSurface&) { drawn = true; }),
           PrintOutcome::cancelled);
  QVERIFY(!drawn);
  QVERIFY(files.messages().empty());
}

void FileDialogTest::pdfInAFolderWithoutWritePermission() {
  QTemporaryDir dir;
  const QString locked = test::lockedFolder(dir);
  HullStore h;
  CmDialog1 files(nullptr);
  files.setUnattended(true);
  CmDialog2 printers(nullptr);
  printers.pdfOnly = true;
  files.answerWith(QDir(locked).filePath("out.PDF").toStdString());
  PrintOutcome out;
  {
    test::WithoutPrivilege asUser;
    out = printDocument(files, printers, h, twoPages);
  }
  QCOMPARE(out, PrintOutcome::failed);
  QCOMPARE(files.messages().size(), std::size_t{1});
  QCOMPARE(files.messages()[0].title, std::string(kPrintErrorTitle));
  QVERIFY(!files.messages()[0].text.empty());
  QVERIFY(QDir(locked).entryList(QDir::Files | QDir::Hidden).isEmpty());
}

void FileDialogTest::pdfDrawingThatFailsKeepsTheFormerFile() {
  QTemporaryDir dir;
  const QString path = dir.filePath("keep.PDF");
  {
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write("former");
  }
  HullStore h;
  CmDialog1 files(nullptr);
  files.setUnattended(true);
  CmDialog2 printers(nullptr);
  printers.pdfOnly = true;
  files.answerWith(path.toStdString());
  const auto out = printDocument(files, printers, h, [](DrawingSurface& s) {
    s.Line(0, 0, 100, 100);
    throw std::runtime_error("Out of paper");
  });
  QCOMPARE(out, PrintOutcome::failed);
  QCOMPARE(files.messages().back().text, std::string("Out of paper"));
  QCOMPARE(test::readAll(path), QByteArray("former"));
  QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

QTEST_MAIN(FileDialogTest)
#include "file_dialog_test.moc"
