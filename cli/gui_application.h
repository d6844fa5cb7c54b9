// The Qt application the drawing commands need for their fonts, pictures,
// PDF and OpenGL, made only when none exists yet.
#pragma once

#ifdef TOLMAR_HAVE_QTDRAW

#include <QGuiApplication>
#include <memory>

namespace tolmar::cli {

enum class GuiPlatform {
  Offscreen,         // no display needed
  DisplayWhenThere,  // a display (Xvfb serves) when DISPLAY is set, for OpenGL
};

// Null when an application already exists. Qt's notes about its platform are
// no concern of the command's user; its errors still reach stderr.
std::unique_ptr<QGuiApplication> guiApplication(GuiPlatform platform = GuiPlatform::Offscreen);

}  // namespace tolmar::cli

#endif
