// The hydrostatics screen: what it reads from its fields, what it writes
// back, and the comment line with its colour.
#include "analysis/hydro_screen.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "default_hull.h"
#include "hull/angle_constants.h"
#include "shape_hulls.h"

namespace tolmar::analysis {
namespace {

struct HydroAt {
  std::unique_ptr<HullStore> h;
  Hydro1 s;
};

// Mode 1 on the box 4 x 1 x 1 at the waterline text z.
HydroAt boxAtWaterline(const std::string& z, int langue = 1) {
  HydroAt a{shapes::boxHull(4, 0.5, 1), {}};
  a.h->langue = static_cast<i16>(langue);
  loadHydro(a.s);
  a.s.mode = 1;
  a.s.Text1(1).text = z;
  calcHydro(a.s, *a.h);
  return a;
}

TEST(Hydro1, WritesVolumeHeightAndPitchBack) {
  HydroAt a = boxAtWaterline("0,25");  // a decimal comma is cleaned first
  EXPECT_EQ(a.s.Text1(1).text, "0.250");
  EXPECT_EQ(a.s.Text1(0).text, "1.000");
  EXPECT_EQ(a.s.Text3(0).text, "0.0");
  EXPECT_DOUBLE_EQ(a.h->totalMass, 1000);
  EXPECT_EQ(a.s.Label2(1).caption,
            "Waterline plane area  = 4.000 m2\nCentre of displacement :\nX= 2.000 m\nY= 0.000 m\n"
            "Z= 0.125 m");
}

// The pitch is read in degrees and shown to a tenth, which the next
// calculation starts from.
TEST(Hydro1, PitchRoundedToATenth) {
  HydroAt a{shapes::boxHull(4, 0.5, 1), {}};
  a.s.mode = 1;
  a.s.Text1(1).text = "0.2";
  a.s.Text3(0).text = "1.26";
  calcHydro(a.s, *a.h);
  EXPECT_DOUBLE_EQ(a.h->pitch, 1.26 * kPi / 180);
  EXPECT_EQ(a.s.Text3(0).text, "1.3");
}

TEST(Hydro1, NonNumbersReadAsZero) {
  HydroAt a = boxAtWaterline("abc");
  EXPECT_EQ(a.s.Text1(1).text, "0.000");
  EXPECT_EQ(a.s.Text1(0).text, "0.000");
  a.s.mode = 0;
  a.s.Text1(0).text = "lots";
  a.s.Text3(0).text = "x";
  calcHydro(a.s, *a.h);
  EXPECT_EQ(a.h->dispTarget, 0);
  EXPECT_EQ(a.h->pitch, 0);
}

struct Comment {
  std::string z;
  int langue;
  std::string text;
  std::int32_t colour;
  bool areaLines;
};

TEST(Hydro1, CommentLine) {
  const Comment table[] = {
      {"0.25", 0, "Le bouchain 1 est immergé", kPaleCyan, true},
      {"0.25", 1, "Chine 1  is immersed", kPaleCyan, true},
      {"1", 1, "WARNING : the deck is immersed, the boat is sinking !", kDeckWarning, true},
      {"1.5", 0, "ATTENTION : le pont est immergé, le bateau coule !", kDeckWarning, true},
      {"-0.5", 1, "The keel is out of the water", kPaleCyan, false},
      {"-0.5", 0, "La quille est hors de l'eau", kPaleCyan, false},
  };
  for (const Comment& c : table) {
    HydroAt a = boxAtWaterline(c.z, c.langue);
    EXPECT_EQ(a.s.Label2(0).caption, c.text) << c.z;
    EXPECT_EQ(a.s.Label2(0).backColor, c.colour) << c.z;
    EXPECT_EQ(a.s.Label2(1).caption != "  ", c.areaLines) << c.z;
  }
}

// The wedge's keel alone under water; then the red warning goes back to
// pale cyan when the water falls again.
TEST(Hydro1, KeelInWaterAndWarningCleared) {
  HydroAt a{shapes::wedgeHull(4, 0.5, 0.2, 1), {}};
  a.s.mode = 1;
  a.s.Text1(1).text = "2";
  calcHydro(a.s, *a.h);
  EXPECT_EQ(a.s.Label2(0).backColor, kDeckWarning);
  a.s.Text1(1).text = "0.1";
  calcHydro(a.s, *a.h);
  EXPECT_EQ(a.s.Label2(0).caption, "La quille est dans l'eau, le bouchain 1 est émergé");
  EXPECT_EQ(a.s.Label2(0).backColor, kPaleCyan);
}

// The deck under water at some sections only: pitched bow down.
TEST(Hydro1, DeckUnderWaterForwardOnly) {
  HydroAt a{shapes::boxHull(4, 0.5, 1), {}};
  a.s.mode = 1;
  a.s.Text1(1).text = "0.5";
  a.s.Text3(0).text = "10";  // 4 m x tan 10 deg = 0.7 m higher forward
  calcHydro(a.s, *a.h);
  EXPECT_EQ(a.s.Label2(0).backColor, kDeckWarning);
  EXPECT_EQ(a.h->wlY(kLastPoint), 0);
  EXPECT_GT(a.h->wlY(1), 0);
  EXPECT_NE(a.s.Label2(1).caption, "  ");
}

// Enter in a field chooses its mode; the solver shows each height it tries
// and repaints.
TEST(Hydro1, EnterChoosesTheModeAndTheSolverRepaints) {
  HydroAt a{shapes::boxHull(4, 0.5, 1), {}};
  int repaints = 0;
  std::string shownDuringPasses;
  a.s.repaint = [&] {
    ++repaints;
    shownDuringPasses = a.s.Text1(1).text;
  };
  a.s.Text1(1).text = "0.5";
  hydroKeyPress(a.s, *a.h, 1, kEnterKey);
  EXPECT_EQ(a.s.mode, 1);
  EXPECT_TRUE(a.s.Option1(1).value);
  EXPECT_FALSE(a.s.Option1(0).value);

  repaints = 0;
  a.s.Text1(0).text = "1";
  hydroKeyPress(a.s, *a.h, 0, kEnterKey);
  EXPECT_EQ(a.s.mode, 0);
  EXPECT_EQ(a.s.Text1(0).text, "1.000");
  EXPECT_EQ(a.s.Text1(1).text, "0.250");
  EXPECT_GT(repaints, 2);  // the passes and the end of each calculation

  hydroKeyPress(a.s, *a.h, 0, 'a');  // any other key does nothing
}

// Without a known mass the screen opens in mode 1 at a hundredth of the
// length.
TEST(Hydro1, ActivationWithoutAMass) {
  HydroAt a{shapes::boxHull(4, 0.5, 1), {}};
  a.h->langue = 0;
  loadHydro(a.s);
  hydroActivated(a.s, *a.h);
  EXPECT_EQ(a.s.mode, 1);
  EXPECT_EQ(a.s.Text1(1).text, "0.040");
  EXPECT_EQ(a.s.Text1(0).text, "0.160");
  EXPECT_EQ(a.s.title.caption, "  Calcul hydrostatique");
  EXPECT_EQ(a.s.Option1(0).caption, "Déplacement (m3)");
  EXPECT_EQ(a.s.cdQuit.caption, "Terminé");
}

TEST(Hydro1, EnglishTexts) {
  Hydro1 s;
  HullStore h;
  h.langue = 1;
  setHydroTexts(s, h);
  EXPECT_EQ(s.title.caption, "  Hydrostatic computation");
  EXPECT_EQ(s.Option1(1).caption, "Z Waterline (m)");
  EXPECT_EQ(s.Label3(0).caption, "Pitch angle (deg)");
  EXPECT_EQ(
      s.Label1(1).caption,
      "Enter the height of the waterline to compute the displacement\nthen click 'Z Waterline' "
      "button.");
  const std::string& units = s.Label1(2).caption;
  EXPECT_EQ(units.substr(units.size() - 12), "(m and m³).");
}

// The default hull, validated by its screens, floated at 0.3 m3 with its
// centre of mass 0.1 m aft of mid-length: within the tolerance, pitched,
// and in its planks.
TEST(Hydro1, DefaultHullFloats) {
  auto h = shapes::validatedDefaultHull();
  h->xMass = 2.7;
  Hydro1 s;
  s.Text1(0).text = "0.3";
  s.Text1(1).text = "0.06";
  calcHydro(s, *h);
  EXPECT_LT(std::fabs(s.last.sums.V - 0.3), kDispTolerance);
  EXPECT_TRUE(s.last.outerPasses == kSolverPasses || std::fabs(h->xDisp - 2.7) <= 6 * 0.002);
  EXPECT_GE(s.immersedChine, 0);
  EXPECT_LT(s.immersedChine, h->nChines);
}

}  // namespace
}  // namespace tolmar::analysis
