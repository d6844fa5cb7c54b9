// A validated hull drawn as the board draws it and written as a PNG or an
// SVG picture: the CLI's `draw` and anything else that wants the board's
// picture without a window.  Needs a QGuiApplication (the offscreen
// platform will do) for the fonts.
#pragma once

#include <QSize>
#include <optional>
#include <string>

#include "hull/hull_store.h"

namespace tolmar::qtdraw {

struct PictureOptions {
  QSize dots{1600, 1000};
  int stepIndex = 1;                   // 0 the bottom alone, 1 or 2 the planks too
  std::optional<std::string> station;  // the text of the board's Text1: a station X to draw
  bool develop = false;    // the plates over the views, as the Developer button draws them
  bool waterline = false;  // the store's water line and centres, as hydro1 leaves them
};

// Runs the full redraw on a picture of options.dots (which rewrites the
// store's view scalars and stations, as the board does), draws the station
// if one is asked for, and writes `path`; the format follows its extension,
// ".png" or ".svg", in any case.  Returns an empty text on success, else
// what went wrong.
std::string writeHullPicture(HullStore& h, const std::string& path, const PictureOptions& options);

}  // namespace tolmar::qtdraw
