#include "qtdraw/hull_picture.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageWriter>
#include <QString>

#include "board/board_model.h"
#include "board/plate_drawing.h"
#include "board/station_drawing.h"
#include "board/views.h"
#include "board/water_line.h"
#include "io/safe_write.h"
#include "qtdraw/image_surface.h"
#include "qtdraw/svg_surface.h"

namespace tolmar::qtdraw {

namespace {

void drawHull(DrawingSurface& s, HullStore& h, const PictureOptions& o) {
  dessine(s, h, o.stepIndex);
  if (o.station) {
    board::BoardState b;
    b.text1 = *o.station;
    board::drawStationState(b, h);
    drawStation(s, h);
  }
  if (o.develop) developerDisplay(s, h, o.stepIndex);
  if (o.waterline) drawWaterline(s, h);
}

}  // namespace

std::string writeHullPicture(HullStore& h, const std::string& path, const PictureOptions& options) {
  const QString lower = QString::fromStdString(path).toLower();
  if (options.dots.width() < 1 || options.dots.height() < 1 || options.dots.width() > 20000 ||
      options.dots.height() > 20000)
    return "picture size out of 1..20000 dots";
  const bool png = lower.endsWith(".png");
  if (!png && !lower.endsWith(".svg")) return "the picture must end in .png or .svg: " + path;

  // The target is checked first; the picture is made in memory and
  // replaces the file only once complete.
  io::SafeFile file(path);
  if (file.error() != 0) return "cannot write " + path + ": " + file.errorText();
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (png) {
    ImageSurface s(options.dots);
    drawHull(s, h, options);
    QImageWriter writer(&buffer, "png");
    if (!writer.write(s.picture())) return writer.errorString().toStdString();
  } else {
    SvgSurface s(&buffer, options.dots, QString::fromStdString(h.hullName));
    drawHull(s, h, options);
    if (!s.finish()) return "The SVG picture cannot be made";
  }
  file.write(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
  const io::WriteResult w = file.commit();
  return w.ok() ? std::string() : "cannot write " + path + ": " + w.message;
}

}  // namespace tolmar::qtdraw
