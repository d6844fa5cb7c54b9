#include "analysis/hydro_screen.h"

#include <cmath>

#include "analysis/field_read.h"
#include "hull/angle_constants.h"
#include "text/data_line.h"
#include "text/number_format.h"

namespace tolmar::analysis {

namespace {

const char* pick(const HullStore& h, const char* french, const char* english) {
  return h.langue == 1 ? english : french;
}

std::string threeDecimals(double v) { return formatNumber(v, "0.000"); }

}  // namespace

Hydro1::Hydro1() {
  Text1(0).backColor = Text1(1).backColor = Text3(0).backColor = kPaleCyan;
  Label2(0).backColor = kPaleCyan;
  Option1(0).value = true;
}

void loadHydro(Hydro1& s) {
  s.Label2(0).caption = "  ";
  s.Label2(1).caption = "  ";
}

void setHydroTexts(Hydro1& s, const HullStore& h) {
  s.title.caption = pick(h, "  Calcul hydrostatique", "  Hydrostatic computation");
  s.Label3(0).caption = pick(h, "Angle de tanguage (deg)", "Pitch angle (deg)");
  s.Option1(0).caption = pick(h, "Déplacement (m3)", "Displacement (m3)");
  s.Option1(1).caption = pick(h, "Z ligne flottaison (m)", "Z Waterline (m)");
  s.Calcul1.caption = pick(h, "Calcul", "Compute");
  s.cdQuit.caption = pick(h, "Terminé", "Quit");
  if (h.langue != 1) {
    s.Label1(0).caption =
        "Utilisez le tableau de calcul du budget de masse ou entrez directement la valeur du "
        "déplacement pour calculer la hauteur de la ligne de flottaison,\n"
        "puis cliquez le bouton 'Déplacement'";
    s.Label1(1).caption =
        "Entrez la hauteur de la ligne de flottaison pour calculer le déplacement,\n"
        "puis cliquez le bouton 'Z ligne flottaison'";
    s.Label1(2).caption =
        "Cliquez 'Calcul' pour effectuer le calcul désiré, surveillez les commentaires çi-dessous\n"
        "Les unités de mesure du niveau de la flottaison et du déplacement sont les mêmes que pour "
        "les dimensions de la coque du bateau (m et m³).";
  } else {
    s.Label1(0).caption =
        "Use the mass budget screen or enter directly the displacement value to compute the water "
        "level,\n"
        "then click on 'Displacement' button";
    s.Label1(1).caption =
        "Enter the height of the waterline to compute the displacement\n"
        "then click 'Z Waterline' button.";
    s.Label1(2).caption =
        "Click on 'Compute' to execute the desired computation, watch comments herebelow\n"
        "Units of mesure for waterline height and displacement are the same as for the "
        "dimensions of the hull (m and m³).";
  }
}

void hydroComments(Hydro1& s, const HullStore& h, const HydroOutcome& o) {
  if (o.immersion.allImmersed) s.immersedChine = h.nChines;
  const int n = s.immersedChine;
  if (n == -1) {
    // Water under the keel everywhere: no plank to name and no waterplane.
    s.Label2(0).backColor = kPaleCyan;
    s.Label2(0).caption = pick(h, "La quille est hors de l'eau", "The keel is out of the water");
  } else if (n == 0) {
    s.Label2(0).backColor = kPaleCyan;
    s.Label2(0).caption = pick(h, "La quille est dans l'eau, le bouchain 1 est émergé",
                               "The keel is in water, chine 1 is emerged");
  } else if (n < h.nChines) {
    s.Label2(0).backColor = kPaleCyan;
    s.Label2(0).caption = h.langue == 1 ? "Chine " + std::to_string(n) + "  is immersed"
                                        : "Le bouchain " + std::to_string(n) + " est immergé";
  } else {
    s.Label2(0).backColor = kDeckWarning;
    s.Label2(0).caption = pick(h, "ATTENTION : le pont est immergé, le bateau coule !",
                               "WARNING : the deck is immersed, the boat is sinking !");
  }
  if (n >= 0 && n <= h.nChines) {
    s.Label2(1).caption =
        std::string(pick(h, "Surface du plan de flottaison  = ", "Waterline plane area  = ")) +
        threeDecimals(o.sums.Aw) + " m2\n" +
        pick(h, "Centre de déplacement :", "Centre of displacement :") + "\n" +
        "X= " + threeDecimals(h.xDisp) + " m\n" + "Y= " + threeDecimals(h.yDisp) + " m\n" +
        "Z= " + threeDecimals(h.zDisp) + " m";
  }
}

void calcHydro(Hydro1& s, HullStore& h) {
  h.pitch = readField(s.Text3(0).text) * kPi / 180;
  s.immersedChine = -1;
  cleanNumber(s.Text1(0).text);
  cleanNumber(s.Text1(1).text);
  h.dispTarget = std::fabs(readField(s.Text1(0).text));
  const double zStart = readField(s.Text1(1).text);

  if (s.busyPointer) s.busyPointer(true);
  s.Label2(0).caption = "  ";
  s.Label2(1).caption = "  ";

  if (s.mode == 0) {
    s.last = floatAtDisplacement(h, zStart, [&](double zWL) {
      s.Text1(1).text = threeDecimals(zWL);
      if (s.repaint) s.repaint();
    });
  } else {
    s.last = floatAtWaterline(h, zStart);
  }
  s.immersedChine = s.last.immersion.immersedChine;
  storeCentres(h, s.last.sums);

  s.Text1(0).text = threeDecimals(s.last.sums.V);
  h.totalMass = s.last.sums.V * 1000;
  s.Text1(1).text = threeDecimals(s.last.zWL);
  s.Text3(0).text = formatNumber(h.pitch * 180 / kPi, "0.0");

  if (s.busyPointer) s.busyPointer(false);
  hydroComments(s, h, s.last);
  if (s.repaint) s.repaint();
}

void clickHydroOption(Hydro1& s, HullStore& h, int n) {
  if (n < 0 || n > 1) return;
  s.Option1(n).value = true;
  s.Option1(1 - n).value = false;
  s.mode = static_cast<i16>(n);
  calcHydro(s, h);
}

void selectHydroOption(Hydro1& s, HullStore& h, int n) {
  if (n < 0 || n > 1 || s.Option1(n).value) return;
  clickHydroOption(s, h, n);
}

void hydroKeyPress(Hydro1& s, HullStore& h, int n, int key) {
  if (key != kEnterKey || n < 0 || n > 1) return;
  selectHydroOption(s, h, n);
  calcHydro(s, h);
}

void hydroActivated(Hydro1& s, HullStore& h) {
  setHydroTexts(s, h);
  if (h.totalMass <= 0) {
    s.Text1(1).text = threeDecimals(h.xFwd(0) / 100);
    selectHydroOption(s, h, 1);
  }
  s.Text3(0).text = formatNumber(h.pitch * 180 / kPi, "0.0");
  calcHydro(s, h);
}

void hydroDeactivated(Hydro1& s, HullStore& h) { calcHydro(s, h); }

}  // namespace tolmar::analysis
