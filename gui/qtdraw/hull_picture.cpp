#include "qtdraw/hull_picture.h"

#include <QImageWriter>
#include <QString>

#include "board/board_model.h"
#include "board/plate_drawing.h"
#include "board/station_drawing.h"
#include "board/views.h"
#include "board/water_line.h"
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
  const QString file = QString::fromStdString(path);
  const QString lower = file.toLower();
  if (options.dots.width() < 1 || options.dots.height() < 1 || options.dots.width() > 20000 ||
      options.dots.height() > 20000)
    return "picture size out of 1..20000 dots";
  if (lower.endsWith(".png")) {
    ImageSurface s(options.dots);
    drawHull(s, h, options);
    QImageWriter writer(file, "png");
    if (!writer.write(s.picture())) return writer.errorString().toStdString();
    return {};
  }
  if (lower.endsWith(".svg")) {
    SvgSurface s(file, options.dots, QString::fromStdString(h.hullName));
    drawHull(s, h, options);
    if (!s.finish()) return "cannot write " + path;
    return {};
  }
  return "the picture must end in .png or .svg: " + path;
}

}  // namespace tolmar::qtdraw
