// The one runner of the board's steps, with a host that writes down what it
// is asked: the order of the steps around a hull screen's modal show, the
// redraw and its enabling, and the steps that only a window can do.
#include "board/step_runner.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "board/recording_surface.h"
#include "development/hull_fixture.h"

namespace tolmar::board {
namespace {

using C = BoardControl;

std::string name(ScreenId s) { return std::string(screenName(s)); }
std::string name(C c) { return std::string(controlName(c)); }

class LogHost : public StepHost {
 public:
  explicit LogHost(const HullStore& h) : state(loadBoard(h)), surface(27448, 12904) {}

  BoardState& board() override { return state; }
  DrawingSurface& picture() override { return surface; }
  void load(ScreenId s) override { log.push_back("load " + name(s)); }
  void show(ScreenId s) override { log.push_back("show " + name(s)); }
  void showModal(ScreenId s) override {
    log.push_back("modal " + name(s));
    if (onModal) onModal(s);
  }
  void hide(ScreenId s) override { log.push_back("hide " + name(s)); }
  void unload(ScreenId s) override { log.push_back("unload " + name(s)); }
  void focus(C c) override { log.push_back("focus " + name(c)); }
  void refresh(ScreenId s) override { log.push_back("refresh " + name(s)); }
  void pictureChanged() override { log.push_back("picture"); }
  void bell() override { log.push_back("bell"); }
  void command(C c) override { log.push_back("command " + name(c)); }
  void endProgram() override { log.push_back("end"); }
  void busy(bool on) override { log.push_back(on ? "busy" : "idle"); }
  void stepsDone() override { log.push_back("done"); }

  BoardState state;
  RecordingSurface surface;
  std::function<void(ScreenId)> onModal;
  std::vector<std::string> log;
};

struct Runner {
  std::unique_ptr<HullStore> h = fixture::defaultHull();
  LogHost host{*h};
  StepRunner run{host, *h};
};

using Log = std::vector<std::string>;

TEST(StepRunner, HullScreenKeepsTheStepsAfterItUntilItHides) {
  Runner r;
  r.host.state.enable(C::DessCouple);
  r.run.perform({onScreen(Do::Show, ScreenId::menu2), onScreen(Do::ShowModal, ScreenId::bouchain1),
                 onControl(Do::AfterModal, C::Command1_0), onScreen(Do::Show, ScreenId::dessin)});
  EXPECT_EQ(r.host.log, (Log{"show menu2", "modal bouchain1", "done"}));
  EXPECT_TRUE(r.run.waitsFor(ScreenId::bouchain1));
  EXPECT_TRUE(r.host.state.isEnabled(C::DessCouple));  // AfterModal has not run

  r.host.log.clear();
  // The event that hides the screen runs to its end before the kept steps,
  // which then run as an event of their own.
  r.run.perform({onScreen(Do::Hide, ScreenId::bouchain1), onScreen(Do::Refresh, ScreenId::dessin)});
  EXPECT_EQ(r.host.log, (Log{"hide bouchain1", "refresh dessin", "show dessin", "done", "done"}));
  EXPECT_FALSE(r.host.state.isEnabled(C::DessCouple));  // Command1(0)'s row after its screen
  EXPECT_FALSE(r.run.waitsFor(ScreenId::bouchain1));
}

TEST(StepRunner, OtherModalScreensAndOtherHidesDoNotHoldTheSteps) {
  Runner r;
  r.run.perform({onScreen(Do::ShowModal, ScreenId::overlap1), onControl(Do::Run, C::fmenu_SD_DXF),
                 onScreen(Do::Hide, ScreenId::bouchain2)});
  EXPECT_EQ(r.host.log, (Log{"modal overlap1", "command fmenu_SD_DXF", "hide bouchain2", "done"}));
}

TEST(StepRunner, ScreenPassedAtOnceStillRunsTheKeptStepsLast) {
  // A host without windows passes the hull screen inside its modal show,
  // as tolmar-cli does: the screen's end hides it from a nested event.
  Runner r;
  r.host.onModal = [&](ScreenId s) {
    r.run.perform({onScreen(Do::Hide, s), onScreen(Do::Refresh, ScreenId::dessin),
                   onScreen(Do::Show, ScreenId::dessin)});
  };
  r.run.perform(command1Press(r.host.state, 1));
  EXPECT_EQ(r.host.log, (Log{"modal bouchain2", "hide bouchain2", "refresh dessin", "show dessin",
                             "done", "done"}));
  EXPECT_TRUE(r.host.state.isEnabled(C::Hmenu));  // AfterModal(Command1(1)) ran after
}

TEST(StepRunner, ScreenThatNeverPassesKeepsItsStepsForever) {
  Runner r;
  r.run.perform(command1Press(r.host.state, 0));
  r.run.perform({onScreen(Do::Refresh, ScreenId::dessin)});
  EXPECT_TRUE(r.run.waitsFor(ScreenId::bouchain1));
  EXPECT_EQ(r.host.log, (Log{"modal bouchain1", "done", "refresh dessin", "done"}));
}

TEST(StepRunner, FocusOnADisabledDessineDoesNotRedraw) {
  Runner r;
  ASSERT_FALSE(r.host.state.isEnabled(C::dessine));  // as the board loads
  r.run.perform({onControl(Do::Focus, C::dessine)});
  EXPECT_TRUE(r.host.surface.calls().empty());
  EXPECT_EQ(r.host.log, (Log{"done"}));
}

TEST(StepRunner, FocusOnDessineRedrawsThenEnablesAndMovesTheFocus) {
  Runner r;
  r.host.state.stepIndex = 1;
  r.host.state.enable(C::dessine);
  r.host.state.enable(C::Developer, false);
  r.run.perform({onControl(Do::Focus, C::dessine)});
  // The views drawn from a cleared picture, the focus where a redraw of the
  // planks leaves it, the busy pointer around it all.
  ASSERT_FALSE(r.host.surface.calls().empty());
  EXPECT_EQ(r.host.surface.calls().front().op, DrawOp::Cls);
  EXPECT_GT(r.host.surface.calls().size(), 100U);
  EXPECT_EQ(r.host.log, (Log{"busy", "picture", "focus Developer", "idle", "done"}));
  EXPECT_TRUE(r.host.state.isEnabled(C::Developer));
  EXPECT_TRUE(r.host.state.isEnabled(C::dessine));
  // The stations the views were drawn with stand in the store.
  EXPECT_NE(r.h->stationX(41, 0), 0);
}

TEST(StepRunner, RedrawDisablesDessineWhileItDraws) {
  Runner r;
  r.host.state.enable(C::dessine);
  bool enabledWhileDrawing = true;
  r.run.redraw([&] { enabledWhileDrawing = r.host.state.isEnabled(C::dessine); });
  EXPECT_FALSE(enabledWhileDrawing);
  EXPECT_TRUE(r.host.state.isEnabled(C::dessine));
  EXPECT_TRUE(r.host.surface.calls().empty());  // the given drawing in place of the views
  // A bottom alone: the focus on the planks' button of a hull of few lines.
  EXPECT_EQ(r.host.log, (Log{"busy", "picture", "focus Command1(1)", "done", "idle"}));
}

TEST(StepRunner, StepsOnlyAWindowCanDoGoToTheHost) {
  Runner r;
  r.run.perform({onScreen(Do::Load, ScreenId::bouchain2),
                 onScreen(Do::SaveHullFile, ScreenId::dessin),
                 onScreen(Do::OpenHullFile, ScreenId::dessin), onControl(Do::Run, C::Developer),
                 onScreen(Do::ClearPicture, ScreenId::dessin), onScreen(Do::Beep, ScreenId::dessin),
                 onControl(Do::Focus, C::Cancel), onScreen(Do::Unload, ScreenId::dessin),
                 onScreen(Do::EndProgram, ScreenId::menu2)});
  EXPECT_EQ(r.host.log, (Log{"load bouchain2", "command fmenu_S_Data", "command fmenu_Open",
                             "command Developer", "picture", "bell", "focus Cancel",
                             "unload dessin", "end", "done"}));
  ASSERT_EQ(r.host.surface.calls().size(), 1U);
  EXPECT_EQ(r.host.surface.calls().front().op, DrawOp::Cls);
}

TEST(StepRunner, RunOfDessineRedrawsAsTheButtonDoes) {
  Runner r;
  r.host.state.enable(C::dessine);
  r.run.perform(press(r.host.state, *r.h, C::dessine));
  EXPECT_FALSE(r.host.surface.calls().empty());
  EXPECT_EQ(r.host.log, (Log{"busy", "picture", "focus Command1(1)", "idle", "done"}));
}

}  // namespace
}  // namespace tolmar::board
