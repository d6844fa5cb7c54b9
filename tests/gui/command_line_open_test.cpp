// `tolmar HULL.D50`: the hull named on the command line comes up as the
// board's Open brings it (same hull, same board, bouchain1 on top), and a
// file that is no hull leaves the start screen with a message that says why.
#include <QAction>
#include <QFile>
#include <QTemporaryDir>
#include <cerrno>
#include <cstring>

#include "board/board_control.h"
#include "board_session_util.h"
#include "hull/default_hull.h"
#include "hull/hull_file.h"
#include "windows/board_commands.h"
#include "windows/command_steps.h"
#include "windows/file_dialog.h"

using namespace tolmar;
using C = board::BoardControl;
using test::Started;

namespace {

struct Said {
  std::string title, text;
};

// A started program whose message boxes are kept instead of shown.
struct Quiet : Started {
  std::vector<Said> said;
  Quiet() {
    s->message = [this](std::string_view t, std::string_view x) {
      said.push_back({std::string(t), std::string(x)});
    };
  }
};

}  // namespace

class CommandLineOpenTest : public QObject {
  Q_OBJECT

 private:
  QTemporaryDir dir_;

  // A hull of six lines that differs from the default one in every block.
  std::string writeHull(const QString& name) {
    auto h = std::make_unique<HullStore>();
    initDefaultHull(*h);
    h->xFwd(0) = 7.25;
    h->yMax(1) = 1.1;
    h->zFwd(3) = 0.8;
    h->powerAft = 1.9;
    const std::string path = dir_.filePath(name).toStdString();
    const FileResult r = saveHullFile(path, *h);
    if (!r.ok) qFatal("cannot write %s: %s", path.c_str(), r.message.c_str());
    return path;
  }

  static void sameHull(const HullStore& a, const HullStore& b) {
    QCOMPARE(a.hullName, b.hullName);
    QCOMPARE(a.nChines, b.nChines);
    QCOMPARE(a.powerFwd, b.powerFwd);
    QCOMPARE(a.powerAft, b.powerAft);
    QCOMPARE(a.stemShape, b.stemShape);
    for (int n = 0; n <= a.nChines; ++n) {
      QCOMPARE(a.plankAngle(n), b.plankAngle(n));
      QCOMPARE(a.xFwd(n), b.xFwd(n));
      QCOMPARE(a.yMax(n), b.yMax(n));
      QCOMPARE(a.zAft(n), b.zAft(n));
      QCOMPARE(a.planeC(n), b.planeC(n));
      QCOMPARE(a.bowTurn(n), b.bowTurn(n));
      for (int i = 0; i <= 82; ++i) {
        QCOMPARE(a.lineY(n, i), b.lineY(n, i));
        QCOMPARE(a.lineZ(n, i), b.lineZ(n, i));
      }
    }
  }

  static void sameBoard(gui::DessinWindow& a, gui::DessinWindow& b) {
    QCOMPARE(a.state().title, b.state().title);
    QCOMPARE(a.state().text2, b.state().text2);
    QCOMPARE(a.state().stepIndex, b.state().stepIndex);
    QCOMPARE(a.windowTitle(), b.windowTitle());
    for (std::size_t i = 0; i < board::kBoardControlCount; ++i) {
      const auto c = static_cast<C>(i);
      if (a.state().isEnabled(c) != b.state().isEnabled(c))
        QFAIL(qPrintable(QString("%1 enabled differently").arg(board::controlName(c).data())));
    }
  }

 private slots:
  void initTestCase() {
    test::quietOffscreen();
    QVERIFY(dir_.isValid());
  }

  void opensTheHullAsTheBoardsOpenDoes() {
    const std::string path = writeHull("BOAT.D50");

    Quiet cmd;
    cmd.s->openAtStart(path);
    QVERIFY2(cmd.said.empty(), cmd.said.empty() ? "" : cmd.said[0].text.c_str());
    QVERIFY(!cmd.s->menu2().isVisible());
    QVERIFY(cmd.board().isVisible());
    QVERIFY(cmd.s->bouchain1().isVisible());
    QCOMPARE(cmd.s->bouchain1().windowModality(), Qt::ApplicationModal);
    QCOMPARE(cmd.board().windowTitle(), QString("Tolmar2008 - File Open : BOAT"));
    QCOMPARE(cmd.h().xFwd(0), 7.25);
    QCOMPARE(cmd.h().yMax(1), 1.1);
    QCOMPARE(QApplication::overrideCursor(), nullptr);

    // The user's way: Create, the default bottom validated, then Open.
    Started menu;
    menu.createAndValidate();
    gui::CmDialog1& files = gui::BoardWindows::of(&menu.board(), menu.h()).files();
    files.setUnattended(true);
    files.answerWith(path);
    menu.board().action(C::fmenu_Open)->trigger();
    QVERIFY(files.messages().empty());
    QVERIFY(menu.s->bouchain1().isVisible());

    sameHull(cmd.h(), menu.h());
    sameBoard(cmd.board(), menu.board());

    // Both validate their bottom alike: a field held to its range keeps the
    // screen up once, the next validation passes.
    for (int i = 0; i < 3 && cmd.s->bouchain1().isVisible(); ++i) {
      cmd.s->bouchain1().valider();
      menu.s->bouchain1().valider();
    }
    QVERIFY(!cmd.s->bouchain1().isVisible());
    QVERIFY(!menu.s->bouchain1().isVisible());
    sameHull(cmd.h(), menu.h());
    sameBoard(cmd.board(), menu.board());
  }

  void refusesWhatIsNoHull_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("why");
    QTest::newRow("missing") << "NONE.D50" << QByteArray() << QString(std::strerror(ENOENT));
    QTest::newRow("a folder") << "FOLDER.D50" << QByteArray() << QString(std::strerror(EISDIR));
    QTest::newRow("empty") << "EMPTY.D50" << QByteArray("") << QString(gui::kNotAHull);
    QTest::newRow("binary") << "PICTURE.D50" << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16)
                            << QString(gui::kNotAHull);
    QTest::newRow("count above 25")
        << "MANY.D50" << QByteArray("X - Tolmar2008\r\n&C30\r\n1\r\n1\r\n0\r\n0\r\n0\r\n0\r\n0\r\n")
        << QString();
  }

  void refusesWhatIsNoHull() {
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QString, why);
    const QString path = dir_.filePath(name);
    if (name == "FOLDER.D50") {
      QVERIFY(QDir(dir_.path()).mkpath(name));
    } else if (name != "NONE.D50") {
      QFile f(path);
      QVERIFY(f.open(QIODevice::WriteOnly));
      f.write(content);
    }

    Quiet p;
    const HullStore before = p.h();
    p.s->openAtStart(path.toStdString());
    QCOMPARE(p.said.size(), std::size_t{1});
    QCOMPARE(p.said[0].title, std::string(gui::kOpenErrorTitle));
    const QString text = QString::fromStdString(p.said[0].text);
    QVERIFY2(text.startsWith(path + ": "), qPrintable(text));
    QVERIFY2(text.size() > path.size() + 2, qPrintable(text));
    if (!why.isEmpty()) QVERIFY2(text.endsWith(why), qPrintable(text));

    QVERIFY(p.s->menu2().isVisible());
    QVERIFY(!p.board().isVisible());
    QVERIFY(!p.s->bouchain1().isVisible());
    QCOMPARE(p.h().hullName, before.hullName);
    QCOMPARE(p.h().nChines, before.nChines);
    QCOMPARE(p.h().xFwd(0), before.xFwd(0));
    QCOMPARE(QApplication::overrideCursor(), nullptr);

    // The start screen goes on as before: Create brings the default hull.
    p.s->menu2().createButton()->click();
    QVERIFY(p.s->bouchain1().isVisible());
    QCOMPARE(QString::fromStdString(p.h().hullName), QString("TOLMAR2005"));
  }
};

QTEST_MAIN(CommandLineOpenTest)
#include "command_line_open_test.moc"
