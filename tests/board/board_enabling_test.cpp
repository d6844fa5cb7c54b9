// The enabling of the board's buttons and menu entries, event by event: each
// event must set exactly the controls of its row and leave all others, from
// a board with everything enabled and from one with everything disabled.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "board/board_model.h"
#include "hull/default_hull.h"

namespace tolmar::board {
namespace {

using C = BoardControl;

struct Row {
  std::vector<C> disabled;
  std::vector<C> enabled;
};

BoardState apply(BoardState b, const Row& r) {
  for (C c : r.disabled) b.enable(c, false);
  for (C c : r.enabled) b.enable(c, true);
  return b;
}

const std::vector<C> kSevenEntries{C::fmenu_P_Tout,  C::fmenu_P_Develop, C::fmenu_S_XYZ,
                                   C::fmenu_S_DXF2D, C::fmenu_S_DXF3D,   C::fmenu_Station_DXF,
                                   C::fmenu_S_VRML};

std::vector<C> plus(std::vector<C> a, std::initializer_list<C> more) {
  a.insert(a.end(), more);
  return a;
}

const Row kCreate{{C::Command1_1, C::Command1_2, C::fmenu_P_Tout, C::fmenu_P_Develop,
                   C::fmenu_S_XYZ, C::fmenu_S_DXF2D, C::fmenu_S_DXF3D, C::fmenu_SD_XYZ,
                   C::fmenu_SD_DXF, C::fmenu_S_VRML, C::fmenu_Station_DXF},
                  {C::Command1_0}};
const Row kNew{plus(kSevenEntries, {C::Command1_1, C::dessine}), {C::Command1_0}};
const Row kPress{kSevenEntries, {C::dessine}};
const Row kAfter0{{C::DessCouple, C::Developer}, {}};
const Row kAfter12{{}, {C::Hmenu, C::fmenu_S_VRML}};
const Row kEnd1Few{{}, {C::Command1_0, C::Command1_1, C::Command1_2, C::dessine}};
const Row kEnd1Many{{C::Command1_1}, {C::Command1_0, C::Command1_2, C::dessine}};
const Row kEnd2{{}, {C::Command1_0, C::Command1_1, C::dessine}};
const Row kEnd3Few{{}, {C::Command1_0, C::Command1_1, C::dessine}};
const Row kEnd3Many{{C::Command1_1}, {C::Command1_0, C::dessine}};
const std::vector<C> kRedraw0Off{C::DessCouple,        C::fmenu_S_XYZ,  C::fmenu_S_DXF2D,
                                 C::fmenu_S_DXF3D,     C::fmenu_SD_XYZ, C::fmenu_SD_DXF,
                                 C::fmenu_Station_DXF, C::fmenu_S_VRML};
const Row kRedraw0Few{kRedraw0Off,
                      {C::Developer, C::Command1_1, C::fmenu_P_Tout, C::fmenu_P_Develop}};
const Row kRedraw0Many{plus(kRedraw0Off, {C::Command1_1}),
                       {C::Developer, C::fmenu_P_Tout, C::fmenu_P_Develop}};
const Row kRedraw1{
    {},
    {C::Developer, C::DessCouple, C::fmenu_P_Tout, C::fmenu_P_Develop, C::fmenu_S_XYZ,
     C::fmenu_S_DXF2D, C::fmenu_S_DXF3D, C::fmenu_SD_XYZ, C::fmenu_SD_DXF, C::fmenu_S_VRML}};
const Row kDrawStation{{}, {C::fmenu_Station_DXF}};
const Row kOpenBefore{{C::Command1_1, C::Command1_2, C::DessCouple, C::Developer}, {C::Command1_0}};
const Row kOpenAfter{{C::fmenu_Station_DXF},
                     {C::dessine, C::fmenu_P_Tout, C::fmenu_P_Develop, C::fmenu_S_XYZ,
                      C::fmenu_S_DXF2D, C::fmenu_S_DXF3D}};

struct Case {
  std::string name;
  std::function<void(BoardState&, HullStore&)> event;
  std::vector<Row> rows;  // applied in order
  int nChines = 5;
  int stepIndex = 0;
};

void PrintTo(const Case& c, std::ostream* os) { *os << c.name; }

class EnablingRow : public ::testing::TestWithParam<Case> {};

TEST_P(EnablingRow, SetsItsControlsAndLeavesTheOthers) {
  const Case& c = GetParam();
  for (bool start : {true, false}) {
    HullStore h;
    initDefaultHull(h);
    h.nChines = static_cast<i16>(c.nChines);
    BoardState b;
    b.enabled.fill(start);
    b.stepIndex = static_cast<i16>(c.stepIndex);
    BoardState want = b;
    for (const Row& r : c.rows) want = apply(want, r);
    c.event(b, h);
    for (std::size_t k = 0; k < kBoardControlCount; ++k)
      EXPECT_EQ(b.enabled[k], want.enabled[k])
          << controlName(static_cast<C>(k)) << " starting " << (start ? "enabled" : "disabled");
  }
}

INSTANTIATE_TEST_SUITE_P(
    Board, EnablingRow,
    ::testing::Values(
        Case{"Create", [](BoardState& b, HullStore& h) { boardOnCreate(b, h); }, {kCreate}},
        Case{"fmenuNewThenCommand1_0",
             [](BoardState& b, HullStore& h) { fmenuNew(b, h); },
             {kNew, kPress}},
        Case{"Command1_0", [](BoardState& b, HullStore&) { command1Press(b, 0); }, {kPress}},
        Case{"Command1_1", [](BoardState& b, HullStore&) { command1Press(b, 1); }, {kPress}},
        Case{"Command1_2", [](BoardState& b, HullStore&) { command1Press(b, 2); }, {kPress}},
        Case{"AfterModal0",
             [](BoardState& b, HullStore&) { afterModal(b, C::Command1_0); },
             {kAfter0}},
        Case{"AfterModal1",
             [](BoardState& b, HullStore&) { afterModal(b, C::Command1_1); },
             {kAfter12}},
        Case{"AfterModal2",
             [](BoardState& b, HullStore&) { afterModal(b, C::Command1_2); },
             {kAfter12}},
        Case{"EndBouchain1Six",
             [](BoardState& b, HullStore& h) { endOfBouchain1(b, h); },
             {kEnd1Few},
             6},
        Case{"EndBouchain1Seven",
             [](BoardState& b, HullStore& h) { endOfBouchain1(b, h); },
             {kEnd1Many},
             7},
        Case{"EndBouchain2", [](BoardState& b, HullStore&) { endOfBouchain2(b); }, {kEnd2}},
        Case{"EndBouchain3Six",
             [](BoardState& b, HullStore& h) { endOfBouchain3(b, h); },
             {kEnd3Few},
             6},
        Case{"EndBouchain3Seven",
             [](BoardState& b, HullStore& h) { endOfBouchain3(b, h); },
             {kEnd3Many},
             7},
        Case{"Redraw0Six",
             [](BoardState& b, HullStore& h) { afterRedraw(b, h); },
             {kRedraw0Few},
             6,
             0},
        Case{"Redraw0Seven",
             [](BoardState& b, HullStore& h) { afterRedraw(b, h); },
             {kRedraw0Many},
             7,
             0},
        Case{"Redraw1", [](BoardState& b, HullStore& h) { afterRedraw(b, h); }, {kRedraw1}, 5, 1},
        Case{"Redraw2Many",
             [](BoardState& b, HullStore& h) { afterRedraw(b, h); },
             {kRedraw1},
             21,
             2},
        Case{"DrawStation",
             [](BoardState& b, HullStore& h) { drawStationState(b, h); },
             {kDrawStation}},
        Case{"DrawingStarted",
             [](BoardState& b, HullStore&) { drawingStarted(b); },
             {Row{{C::dessine}, {}}}},
        Case{"DrawingEnded",
             [](BoardState& b, HullStore&) { drawingEnded(b); },
             {Row{{}, {C::dessine}}}},
        Case{"OpenBeforeRebuild",
             [](BoardState& b, HullStore&) { openBeforeRebuild(b); },
             {kOpenBefore}},
        Case{"OpenAfterRebuild",
             [](BoardState& b, HullStore&) { openAfterRebuild(b); },
             {kOpenAfter, kPress}}),
    [](const auto& info) { return info.param.name; });

TEST(BoardEnabling, LoadDisablesFiveAndLeavesTheRestEnabled) {
  HullStore h;
  const BoardState b = loadBoard(h);
  for (std::size_t k = 0; k < kBoardControlCount; ++k) {
    const C c = static_cast<C>(k);
    // The development check's print entry follows Developer.
    const bool off = c == C::DessCouple || c == C::Command1_1 || c == C::Developer ||
                     c == C::dessine || c == C::Hmenu || c == C::fmenu_P_Check;
    EXPECT_EQ(b.isEnabled(c), !off) << controlName(c);
  }
  EXPECT_EQ(b.stepIndex, 0);
}

TEST(BoardEnabling, FocusAfterRedrawFollowsStepAndLineCount) {
  HullStore h;
  BoardState b;
  h.nChines = 6;
  EXPECT_EQ(afterRedraw(b, h), onControl(Do::Focus, C::Command1_1));
  h.nChines = 7;
  EXPECT_EQ(afterRedraw(b, h), onControl(Do::Focus, C::Command1_2));
  b.stepIndex = 1;
  EXPECT_EQ(afterRedraw(b, h), onControl(Do::Focus, C::Developer));
}

TEST(BoardEnabling, Command1SetsStepIndexAndOpensItsScreenModal) {
  const ScreenId screens[] = {ScreenId::bouchain1, ScreenId::bouchain2, ScreenId::bouchain3};
  for (int i = 0; i < 3; ++i) {
    BoardState b;
    b.stepIndex = 2;
    const Actions a = command1Press(b, i);
    EXPECT_EQ(b.stepIndex, i);
    ASSERT_EQ(a.size(), 2u);
    EXPECT_EQ(a[0], onScreen(Do::ShowModal, screens[i]));
    EXPECT_EQ(a[1], onControl(Do::AfterModal, command1(i)));
  }
}

TEST(BoardEnabling, EndOfEachHullScreenRedrawsThroughTheFocusOfDessine) {
  HullStore h;
  h.nChines = 5;
  BoardState b;
  const Actions a1 = endOfBouchain1(b, h);
  const Actions a2 = endOfBouchain2(b);
  const Actions a3 = endOfBouchain3(b, h);
  EXPECT_EQ(a1.front(), onScreen(Do::Hide, ScreenId::bouchain1));
  EXPECT_EQ(a2.front(), onScreen(Do::Hide, ScreenId::bouchain2));
  EXPECT_EQ(a3.front(), onScreen(Do::Hide, ScreenId::bouchain3));
  for (const Actions* a : {&a1, &a2, &a3}) EXPECT_EQ((*a)[1], onControl(Do::Focus, C::dessine));
  EXPECT_EQ(a2.back(), onControl(Do::Focus, C::Command1_1));
  EXPECT_EQ(a3.back(), onControl(Do::Focus, C::Command1_2));
}

// A whole session: the entries that are open at all times stay open, and
// fmenu_Station_DXF waits for a drawn station although the other exports open.
TEST(BoardEnabling, SessionKeepsTheAlwaysOpenEntriesAndGatesTheStationExport) {
  HullStore h;
  initDefaultHull(h);
  BoardState b = loadBoard(h);
  boardOnCreate(b, h);
  endOfBouchain1(b, h);
  afterRedraw(b, h);
  EXPECT_FALSE(b.isEnabled(C::fmenu_S_DXF2D));
  EXPECT_TRUE(b.isEnabled(C::fmenu_P_Tout));
  EXPECT_TRUE(b.isEnabled(C::Developer));
  for (const Action& a : command1Press(b, 1))
    if (a.what == Do::AfterModal) afterModal(b, a.control);
  endOfBouchain2(b);
  afterRedraw(b, h);
  EXPECT_TRUE(b.isEnabled(C::fmenu_S_DXF2D));
  EXPECT_TRUE(b.isEnabled(C::fmenu_SD_DXF));
  EXPECT_TRUE(b.isEnabled(C::Hmenu));
  EXPECT_FALSE(b.isEnabled(C::fmenu_Station_DXF));
  drawStationState(b, h);
  EXPECT_TRUE(b.isEnabled(C::fmenu_Station_DXF));
  fmenuNew(b, h);
  // fmenu_New and Command1 leave the two development exports as the redraw set them.
  EXPECT_TRUE(b.isEnabled(C::fmenu_SD_XYZ));
  EXPECT_TRUE(b.isEnabled(C::fmenu_SD_DXF));
  for (C c : {C::fmenu_New, C::fmenu_Open, C::fmenu_S_Data, C::fmenu_P_Data, C::fmenu_P_Dessin,
              C::fmenu_P_Station, C::fmenu_PSetup, C::fmenu_Quit, C::Cancel, C::Text1, C::Text2})
    EXPECT_TRUE(b.isEnabled(c)) << controlName(c);
}

TEST(BoardEnabling, DisabledControlDoesNothingWhenPressed) {
  HullStore h;
  initDefaultHull(h);
  BoardState b = loadBoard(h);
  const HullStore before = h;
  EXPECT_TRUE(press(b, h, C::Developer).empty());
  EXPECT_TRUE(press(b, h, C::Hmenu).empty());
  EXPECT_TRUE(h == before);
  b.enable(C::Hmenu);
  EXPECT_EQ(press(b, h, C::Hmenu),
            (Actions{onScreen(Do::Show, ScreenId::hydro1), onScreen(Do::Show, ScreenId::mass1)}));
}

TEST(BoardEnabling, WaysBackToTheStartScreen) {
  HullStore h;
  initDefaultHull(h);
  BoardState b = loadBoard(h);
  const HullStore before = h;
  EXPECT_EQ(press(b, h, C::fmenu_Quit), (Actions{onScreen(Do::Show, ScreenId::menu2)}));
  EXPECT_EQ(closeBoard(),
            (Actions{onScreen(Do::Unload, ScreenId::dessin), onScreen(Do::Show, ScreenId::menu2)}));
  const Actions cancel = press(b, h, C::Cancel);
  ASSERT_EQ(cancel.size(), 6u);
  EXPECT_EQ(cancel.front(), onScreen(Do::SaveHullFile, ScreenId::dessin));
  EXPECT_EQ(cancel.back(), onScreen(Do::Show, ScreenId::menu2));
  EXPECT_TRUE(h == before);
}

}  // namespace
}  // namespace tolmar::board
