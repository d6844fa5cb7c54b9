// Helpers of the window tests: answering a modal window as a user would,
// reading files back, and a folder that the test process cannot write to
// (as root too: the effective user is dropped for the time of the write).
#pragma once

#include <sys/stat.h>
#include <unistd.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <functional>

namespace tolmar::test {

// Calls `answer` once a visible top-level window of type W shows, from
// inside the event loop that the window's exec() runs; gives up after
// `timeoutMs`.
template <typename W>
void whenModal(std::function<void(W*)> answer, int timeoutMs = 10000) {
  auto* timer = new QTimer;
  auto* clock = new QElapsedTimer;
  clock->start();
  QObject::connect(timer, &QTimer::timeout, [timer, clock, answer, timeoutMs] {
    for (QWidget* w : QApplication::topLevelWidgets()) {
      if (auto* target = qobject_cast<W*>(w); target && target->isVisible()) {
        timer->stop();
        timer->deleteLater();
        delete clock;
        answer(target);
        return;
      }
    }
    if (clock->elapsed() > timeoutMs) {
      timer->stop();
      timer->deleteLater();
      delete clock;
    }
  });
  timer->start(5);
}

inline QByteArray readAll(const QString& path) {
  QFile f(path);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// A folder "locked" in dir, readable by anyone and writable by no one but
// root; dir itself opened to everyone so that the folder can be reached.
inline QString lockedFolder(const QTemporaryDir& dir) {
  const QString locked = dir.filePath("locked");
  ::mkdir(locked.toLocal8Bit().constData(), 0755);
  ::chmod(locked.toLocal8Bit().constData(), 0555);
  ::chmod(dir.path().toLocal8Bit().constData(), 0755);
  return locked;
}

// For the life of the object the process writes as an ordinary user, so
// that the permissions of lockedFolder apply even when the tests run as
// root.
class WithoutPrivilege {
 public:
  WithoutPrivilege() {
    if (::geteuid() == 0) dropped_ = ::seteuid(65534) == 0;
  }
  ~WithoutPrivilege() {
    if (dropped_) (void)::seteuid(0);
  }
  WithoutPrivilege(const WithoutPrivilege&) = delete;
  WithoutPrivilege& operator=(const WithoutPrivilege&) = delete;

 private:
  bool dropped_ = false;
};

}  // namespace tolmar::test
