#include "windows/printer_dialog.h"

#include <QBuffer>
#include <QByteArray>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <exception>

#include "io/safe_write.h"
#include "qtdraw/paged_surface.h"
#include "windows/file_dialog.h"
#include "windows/print_calibration.h"

namespace tolmar::gui {

namespace {

// Busy pointer for the life of a scope, through the one dialog object.
class Busy {
 public:
  explicit Busy(CmDialog1& files) : files_(files) { files_.setBusy(true); }
  ~Busy() { files_.setBusy(false); }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;

 private:
  CmDialog1& files_;
};

// Runs the pages; false with the reason when `draw` threw.
bool drawPages(DrawingSurface& s, const std::function<void(DrawingSurface&)>& draw,
               std::string& why) {
  try {
    draw(s);
    return true;
  } catch (const std::exception& e) {
    why = e.what();
  } catch (...) {
    why = "Unknown error";
  }
  return false;
}

PrintOutcome fail(CmDialog1& files, const std::string& why) {
  files.showError(kPrintErrorTitle, why);
  return PrintOutcome::failed;
}

PrintOutcome printToPdf(CmDialog1& files, QPrinter& printer, const QString& path,
                        const qtdraw::PaperOptions& paper,
                        const std::function<void(DrawingSurface&)>& draw) {
  std::string why;
  {
    Busy busy(files);
    // The target is checked before the pages are drawn; the document is
    // made in memory and replaces the file only once complete.
    io::SafeFile file(path.toStdString());
    if (file.error() != 0) return fail(files, file.errorText());
    QByteArray pdf;
    {
      QBuffer buffer(&pdf);
      buffer.open(QIODevice::WriteOnly);
      QPdfWriter writer(&buffer);
      writer.setCreator("Tolmar2008");
      writer.setPageLayout(printer.pageLayout());
      qtdraw::PagedSurface surface(writer, paper);
      if (!surface.active()) return fail(files, "The PDF file cannot be started");
      if (!drawPages(surface, draw, why)) return fail(files, why);
      if (surface.active()) surface.EndDoc();
    }
    file.write(std::string_view(pdf.constData(), static_cast<std::size_t>(pdf.size())));
    if (const io::WriteResult w = file.commit(); !w.ok()) return fail(files, w.message);
  }
  return PrintOutcome::printed;
}

PrintOutcome printToPrinter(CmDialog1& files, QPrinter& printer, const qtdraw::PaperOptions& paper,
                            const std::function<void(DrawingSurface&)>& draw) {
  std::string why;
  Busy busy(files);
  qtdraw::PagedSurface surface(printer, paper);
  if (!surface.active())
    return fail(files, "The printer " + printer.printerName().toStdString() + " is not ready");
  if (!drawPages(surface, draw, why)) return fail(files, why);
  if (surface.active()) surface.EndDoc();
  if (printer.printerState() == QPrinter::Error || printer.printerState() == QPrinter::Aborted)
    return fail(files, "The printer " + printer.printerName().toStdString() + " reported an error");
  return PrintOutcome::printed;
}

}  // namespace

CmDialog2::CmDialog2(QWidget* parent) : parent_(parent) {}

CmDialog2::~CmDialog2() = default;

QPrinter& CmDialog2::printer() {
  if (!printer_) printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  return *printer_;
}

bool CmDialog2::toPdf() const {
  if (pdfOnly || QPrinterInfo::availablePrinters().isEmpty()) return true;
  return printer_ && printer_->outputFormat() == QPrinter::PdfFormat;
}

bool CmDialog2::setup(int langue) {
  if (unattended_) return false;
  QPrintDialog dialog(&printer(), parent_);
  auto* tab = new CalibrationTab(langue);
  dialog.setOptionTabs({tab});
  if (dialog.exec() != QDialog::Accepted) return false;
  savePaperSettings(tab->value());
  return true;
}

PrintOutcome printDocument(CmDialog1& files, CmDialog2& printers, const HullStore& h,
                           const std::function<void(DrawingSurface&)>& draw) {
  QPrinter& printer = printers.printer();
  const PaperSettings settings = loadPaperSettings();
  const bool pdf = printers.toPdf();
  const qtdraw::PaperOptions paper = paperOptions(settings, pdf, h.langue);
  if (pdf) {
    const QSizeF mm = printer.pageLayout().fullRect(QPageLayout::Millimeter).size();
    const std::string why = marginError(settings.pdfMarginMm, mm.width(), mm.height(), h.langue);
    if (!why.empty()) return fail(files, why);
  }
  if (!pdf) return printToPrinter(files, printer, paper, draw);

  // A file named in the printer dialog is used as it is; otherwise asked.
  QString path;
  if (!printers.pdfOnly && printer.outputFormat() == QPrinter::PdfFormat)
    path = printer.outputFileName();
  if (path.isEmpty()) {
    const auto choice = files.askSaveFileOnce(
        {std::string(kPdfTitle), kPdfFilter, h.hullName + ".PDF", std::nullopt});
    if (!choice) return PrintOutcome::cancelled;
    path = QString::fromStdString(choice->path);
  }
  return printToPdf(files, printer, path, paper, draw);
}

}  // namespace tolmar::gui
