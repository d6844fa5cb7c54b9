// CmDialog1, the program's one file dialog, with the message boxes and the
// busy pointer of the file and export commands.  Every open and save dialog
// of the program is this one object, so a title or a folder that an
// operation does not set is the one the last dialog left.  A cancel ends
// the operation silently.  Tests answer it from a queue instead of showing
// it, and read the messages instead of seeing them.
#pragma once

#include <QFileDialog>
#include <QPointer>
#include <QString>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "export/export_host.h"

class QWidget;

namespace tolmar::gui {

// "Data Tolmar2000|*.D50|All files|*.*" in Qt's form, one filter a line of
// ";;": "Data Tolmar2000 (*.D50 *.d50);;All files (*)".  A label that ends
// with its own pattern in brackets keeps it once; a pattern of letters
// gets its lower-case twin (file names differ by case here); "*.*" is
// every file.
QString qtFilter(std::string_view filter);

// A message box under `title`: the program's one way of saying what went
// wrong (the system's text of the error) or what was done.
void showMessage(QWidget* parent, std::string_view title, std::string_view text);

enum class DialogKind { open, save };

// A dialog as it was put before the user, after the title and folder left
// by the last one were applied.
struct AskedDialog {
  DialogKind kind = DialogKind::save;
  QString title;
  QString filter;  // Qt's form
  QString name;    // proposed file name
  QString folder;  // absolute, where the dialog opened
};

struct ShownMessage {
  std::string title;
  std::string text;
};

class CmDialog1 : public ExportHost {
 public:
  explicit CmDialog1(QWidget* parent);
  ~CmDialog1() override;
  CmDialog1(const CmDialog1&) = delete;
  CmDialog1& operator=(const CmDialog1&) = delete;

  // The export interface: a save dialog that does not ask before replacing
  // a file; no answer means cancelled.
  std::optional<SaveChoice> askSaveFile(const SaveRequest& request) override;
  std::optional<SaveChoice> askOpenFile(const SaveRequest& request);
  // A save dialog whose title holds for itself alone (the PDF file of a
  // print): the next dialog has the title that the one before it left.
  std::optional<SaveChoice> askSaveFileOnce(const SaveRequest& request);
  void showError(std::string_view title, std::string_view message) override;
  void setBusy(bool busy) override;
  void showHullName(std::string_view name) override;
  void focusCancel() override;

  // A message box with this dialog's parent, or kept when unattended.
  void message(std::string_view title, std::string_view text);

  // The board's Text2 and the focus on its Cancel.
  std::function<void(std::string_view name)> onHullName;
  std::function<void()> onFocusCancel;

  // Unattended: nothing is shown.  Each dialog takes the next scripted
  // answer (a path, or none for a cancel), an empty queue cancels, and
  // messages are only kept.  A relative answer lies in the dialog's folder.
  void setUnattended(bool on) { unattended_ = on; }
  void answerWith(std::optional<std::string> path) { answers_.push_back(std::move(path)); }
  const std::vector<AskedDialog>& asked() const { return asked_; }
  const std::vector<ShownMessage>& messages() const { return messages_; }
  std::size_t answersLeft() const { return answers_.size(); }
  void clearRecords();  // the dialogs asked, the messages and the answers left

  // The folder an initial folder given by name stands for: a relative name
  // lies in the home folder.  Exposed for tests.
  static QString resolveFolder(const std::string& folder);

 private:
  std::optional<SaveChoice> ask(DialogKind kind, const SaveRequest& request);

  QWidget* parent_;
  QPointer<QFileDialog> dialog_;  // made at first use, kept for the program's life
  QString title_;
  bool platformTitle_ = true;  // dialog_ shows the platform's own title
  QString folder_;
  bool busy_ = false;
  bool unattended_ = false;
  std::deque<std::optional<std::string>> answers_;
  std::vector<AskedDialog> asked_;
  std::vector<ShownMessage> messages_;
};

}  // namespace tolmar::gui
