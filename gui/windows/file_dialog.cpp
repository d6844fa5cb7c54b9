#include "windows/file_dialog.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QStringList>

namespace tolmar::gui {

namespace {

QString qs(std::string_view s) {
  return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

// The patterns of one filter entry as Qt lists them, blank-separated.
QString qtPatterns(const QString& patterns) {
  QStringList out;
  for (QString p : patterns.split(';', Qt::SkipEmptyParts)) {
    p = p.trimmed();
    if (p.isEmpty()) continue;
    if (p == "*.*") p = "*";
    if (!out.contains(p)) out << p;
    const QString lower = p.toLower();
    if (!out.contains(lower)) out << lower;
  }
  return out.join(' ');
}

}  // namespace

QString qtFilter(std::string_view filter) {
  const QStringList parts = qs(filter).split('|');
  QStringList entries;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString label = parts[i].trimmed();
    const QString own = "(" + parts[i + 1].trimmed() + ")";
    if (label.endsWith(own)) label = label.left(label.size() - own.size()).trimmed();
    entries << label + " (" + qtPatterns(parts[i + 1]) + ")";
  }
  if (parts.size() % 2 == 1 && !parts.last().trimmed().isEmpty()) entries << parts.last().trimmed();
  return entries.join(";;");
}

void showMessage(QWidget* parent, std::string_view title, std::string_view text) {
  QMessageBox box(QMessageBox::NoIcon, qs(title), qs(text), QMessageBox::Ok, parent);
  box.exec();
}

CmDialog1::CmDialog1(QWidget* parent) : parent_(parent) {}

CmDialog1::~CmDialog1() {
  setBusy(false);
  delete dialog_.data();
}

QString CmDialog1::resolveFolder(const std::string& folder) {
  const QString f = QString::fromStdString(folder);
  return QDir::cleanPath(QFileInfo(f).isAbsolute() ? f : QDir::home().filePath(f));
}

void CmDialog1::clearRecords() {
  asked_.clear();
  messages_.clear();
  answers_.clear();
}

std::optional<SaveChoice> CmDialog1::askSaveFile(const SaveRequest& request) {
  return ask(DialogKind::save, request);
}

std::optional<SaveChoice> CmDialog1::askOpenFile(const SaveRequest& request) {
  return ask(DialogKind::open, request);
}

std::optional<SaveChoice> CmDialog1::askSaveFileOnce(const SaveRequest& request) {
  const QString kept = title_;
  const auto choice = ask(DialogKind::save, request);
  title_ = kept;
  return choice;
}

std::optional<SaveChoice> CmDialog1::ask(DialogKind kind, const SaveRequest& request) {
  if (request.title) title_ = qs(*request.title);
  if (request.initialFolder) {
    // A folder that is not there leaves the dialog where it was.
    const QString f = resolveFolder(*request.initialFolder);
    if (QFileInfo(f).isDir()) folder_ = f;
  }
  if (folder_.isEmpty() || !QFileInfo(folder_).isDir()) folder_ = QDir::homePath();
  const AskedDialog asked{kind, title_, qtFilter(request.filter), qs(request.defaultName), folder_};
  asked_.push_back(asked);

  // The pointer is normal while the user chooses.
  const bool wasBusy = busy_;
  setBusy(false);
  std::optional<QString> chosen;
  if (unattended_) {
    if (!answers_.empty()) {
      const std::optional<std::string> answer = answers_.front();
      answers_.pop_front();
      if (answer) {
        QString p = QString::fromStdString(*answer);
        if (QFileInfo(p).isRelative()) p = QDir(folder_).filePath(p);
        chosen = p;
      }
    }
  } else {
    // Until a title is given, the dialog keeps the platform's own; a dialog
    // that showed another one is made anew to get it back.
    if (dialog_ && title_.isEmpty() && !platformTitle_) delete dialog_.data();
    if (!dialog_) {
      dialog_ = new QFileDialog(parent_);
      platformTitle_ = true;
    }
    QFileDialog& d = *dialog_;
    if (!title_.isEmpty()) {
      d.setWindowTitle(title_);
      platformTitle_ = false;
    }
    d.setAcceptMode(kind == DialogKind::save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    d.setFileMode(kind == DialogKind::save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    d.setOption(QFileDialog::DontConfirmOverwrite, true);
    d.setNameFilter(asked.filter);
    d.setDirectory(folder_);
    d.selectFile(asked.name);
    if (d.exec() == QDialog::Accepted && !d.selectedFiles().isEmpty())
      chosen = d.selectedFiles().first();
  }
  if (wasBusy) setBusy(true);
  if (!chosen || chosen->isEmpty()) return std::nullopt;

  const QFileInfo info(*chosen);
  folder_ = info.absolutePath();
  return SaveChoice{info.absoluteFilePath().toStdString(), info.fileName().toStdString()};
}

void CmDialog1::message(std::string_view title, std::string_view text) {
  messages_.push_back({std::string(title), std::string(text)});
  if (unattended_) return;
  const bool wasBusy = busy_;
  setBusy(false);
  showMessage(parent_, title, text);
  if (wasBusy) setBusy(true);
}

void CmDialog1::showError(std::string_view title, std::string_view message) {
  this->message(title, message);
}

void CmDialog1::setBusy(bool busy) {
  // The pointer brackets do not nest: one call gives it back.
  if (busy == busy_) return;
  busy_ = busy;
  if (!qApp) return;
  if (busy) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

void CmDialog1::showHullName(std::string_view name) {
  if (onHullName) onHullName(name);
}

void CmDialog1::focusCancel() {
  if (onFocusCancel) onFocusCancel();
}

}  // namespace tolmar::gui
