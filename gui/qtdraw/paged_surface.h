// The printer side of the DrawingSurface: any paged device (QPrinter,
// QPdfWriter), Arial, black.  A page is laid out inside the printable area,
// from its top left corner, at 568 twips to the centimetre; nothing is drawn
// outside it.  Each page carries the calibration bars of 200 mm.  NewPage
// starts a sheet; EndDoc ends the document, after which the surface draws
// nothing more.
#pragma once

#include <QPagedPaintDevice>
#include <QPainter>
#include <optional>

#include "printing/paper_setup.h"
#include "qtdraw/painter_surface.h"

namespace tolmar::qtdraw {

struct PaperOptions {
  // The margin on every side; none: the device's own, at least what the
  // printer can reach.
  std::optional<double> marginMm;
  PrintCalibration calibration;
  bool calibrationBars = true;
  int langue = 1;  // of the bars' captions
};

class PagedSurface : public PainterSurface {
 public:
  explicit PagedSurface(QPagedPaintDevice& device, const PaperOptions& options = {});
  ~PagedSurface() override;
  PagedSurface(const PagedSurface&) = delete;
  PagedSurface& operator=(const PagedSurface&) = delete;

  bool active() const { return painter_.isActive(); }

  // The printable area of the sheet and the part of it left to the page,
  // in dots of the device, from the printable area's top left corner.
  QRectF printable() const { return printable_; }
  QRectF drawArea() const { return area_; }

 protected:
  void newPage() override;
  void endDoc() override;
  bool fitText(QPointF topLeft, QString& text, const QFontMetricsF& fm) const override;

 private:
  void startPage();
  void drawCalibrationBars();

  QPagedPaintDevice& device_;
  PaperOptions options_;
  QPainter painter_;
  QRectF printable_, area_;
  CalibrationLayout bars_;
};

}  // namespace tolmar::qtdraw
