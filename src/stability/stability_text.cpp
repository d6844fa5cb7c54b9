#include "stability/stability_text.h"

namespace tolmar::stability {

namespace {

struct Pair {
  std::string_view fr, en;
};

Pair pair(Text t) {
  switch (t) {
    case Text::windowTitle:
      return {"Stabilité", "Stability"};
    case Text::menuEntry:
      return {"Stabilité…", "Stability…"};
    case Text::printEntry:
      return {"Stabilité", "Stability"};
    case Text::displacement:
      return {"Déplacement et centre de gravité", "Displacement and centre of gravity"};
    case Text::fromBudget:
      return {"du budget de masse", "from the mass budget"};
    case Text::typed:
      return {"entré", "typed"};
    case Text::volume:
      return {"Déplacement (m3)", "Displacement (m3)"};
    case Text::density:
      return {"Eau (t/m3)", "Water (t/m3)"};
    case Text::freshWater:
      return {"douce 1,000", "fresh 1.000"};
    case Text::seaWater:
      return {"de mer 1,025", "sea 1.025"};
    case Text::lcg:
      return {"LCG, X du centre de gravité (m)", "LCG, X of the centre of gravity (m)"};
    case Text::kg:
      return {"KG, au-dessus de la quille (m)", "KG, above the keel (m)"};
    case Text::equipHeights:
      return {"Hauteur des équipements au-dessus de la quille (m)",
              "Height of the equipment above the keel (m)"};
    case Text::onKeel:
      return {"vide : sur la quille à son X", "empty: on the keel at its X"};
    case Text::angles:
      return {"Gîte de / à / pas (deg)", "Heel from / to / step (deg)"};
    case Text::crewMass:
      return {"Équipage sur le côté (kg)", "Crew on the side (kg)"};
    case Text::crewY:
      return {"à Y du plan axial (m, vide : livet)",
              "at Y from the centre plane (m, empty: sheer)"};
    case Text::curveStep:
      return {"Pas des courbes hydrostatiques (m)", "Step of the hydrostatic curves (m)"};
    case Text::compute:
      return {"Calculer", "Compute"};
    case Text::close:
      return {"Fermer", "Close"};
    case Text::print:
      return {"Imprimer", "Print"};
    case Text::gzTitle:
      return {"Bras de levier de redressement GZ", "Righting arm GZ"};
    case Text::curvesTitle:
      return {"Courbes hydrostatiques, coque droite", "Hydrostatic curves, upright"};
    case Text::heelAxis:
      return {"Gîte (deg)", "Heel (deg)"};
    case Text::gzAxis:
      return {"GZ (m)", "GZ (m)"};
    case Text::draftAxis:
      return {"Tirant d'eau (m)", "Draft (m)"};
    case Text::gmLine:
      return {"GM à 57,3 deg", "GM at 57.3 deg"};
    case Text::maxGz:
      return {"GZ maximal", "Largest GZ"};
    case Text::vanishing:
      return {"Angle de chavirement", "Angle of vanishing stability"};
    case Text::deckEdge:
      return {"Livet immergé à", "Deck edge immersed at"};
    case Text::area30:
      return {"Aire sous GZ jusqu'à 30 deg", "Area under GZ to 30 deg"};
    case Text::area40:
      return {"Aire sous GZ jusqu'à 40 deg", "Area under GZ to 40 deg"};
    case Text::crewHeel:
      return {"Gîte avec l'équipage sur le côté", "Heel with the crew on the side"};
    case Text::crewFreeboard:
      return {"Franc-bord minimal à cette gîte", "Lowest freeboard at that heel"};
    case Text::cannotFloat:
      return {"ne flotte pas", "cannot float"};
    case Text::capsizes:
      return {"chavire", "capsizes"};
    case Text::none:
      return {"non atteint", "not reached"};
    case Text::heightsNote:
      return {"Hauteurs au-dessus du point le plus bas de la coque (quille).",
              "Heights above the lowest point of the hull (keel)."};
    case Text::gzTable:
      return {"Courbe GZ, assiette libre", "GZ curve, free trim"};
    case Text::curvesTable:
      return {"Courbes hydrostatiques", "Hydrostatic curves"};
    case Text::curvesUnits:
      return {
          "T, KB, KMt, KMl : m au-dessus de la quille ; LCB, LCF : X en m ; V m3 ; Dépl. t ; Aw, "
          "Mouil. m2 ; TPC t/cm ; MCT t m/cm",
          "T, KB, KMt, KMl: m above the keel; LCB, LCF: X in m; V m3; Disp. t; Aw, Wet m2; TPC "
          "t/cm; MCT t m/cm"};
    case Text::gm:
      return {"GM", "GM"};
    case Text::loading:
      return {"Chargement", "Loading"};
  }
  return {"", ""};
}

}  // namespace

std::string_view text(Text t, int langue) {
  const Pair p = pair(t);
  return langue == 0 ? p.fr : p.en;
}

}  // namespace tolmar::stability
