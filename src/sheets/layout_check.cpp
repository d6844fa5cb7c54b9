#include "sheets/layout_check.h"

#include <cmath>
#include <string>

#include "sheets/clipper_geometry.h"

namespace tolmar::sheets {

namespace {

std::string pieceName(const SheetPlan& plan, int i) {
  const Piece& p = plan.pieces[i];
  std::string s = plan.parts[p.part].name;
  if (plan.parts[p.part].side) s += plan.parts[p.part].side > 0 ? " starboard" : " port";
  return s + " " + std::to_string(p.piece) + "/" + std::to_string(p.of);
}

}  // namespace

std::vector<std::string> checkLayout(const SheetPlan& plan) {
  using namespace ClipperLib;
  std::vector<std::string> bad;
  const SheetOptions& o = plan.options;
  // A hundredth of a millimetre of rounding either way is allowed.
  const double tolMm = 0.02, tolArea = 1.0;
  std::vector<int> placed(plan.pieces.size(), 0);
  for (std::size_t s = 0; s < plan.sheets.size(); ++s) {
    const Sheet& sh = plan.sheets[s];
    const std::string where = " on sheet " + std::to_string(s + 1);
    const double m = o.marginMm - tolMm;
    const Path inner = toPath(
        {{m, m}, {sh.lengthMm - m, m}, {sh.lengthMm - m, sh.widthMm - m}, {m, sh.widthMm - m}});
    std::vector<Paths> halo;
    for (const PlacedPiece& pp : sh.pieces) {
      if (pp.piece < 0 || pp.piece >= static_cast<int>(plan.pieces.size())) {
        bad.push_back("a piece that is not in the plan" + where);
        halo.emplace_back();
        continue;
      }
      ++placed[pp.piece];
      const std::string name = pieceName(plan, pp.piece);
      const Piece& piece = plan.pieces[pp.piece];
      if (plan.parts[piece.part].thicknessMm != sh.thicknessMm)
        bad.push_back(name + where + " is not of the sheet's thickness");
      const double want = polygonArea(piece.outline), got = polygonArea(pp.outline);
      if (std::abs(want - got) > tolArea + 1e-6 * want)
        bad.push_back(name + where + " does not have its own area");
      const Path path = toPath(pp.outline);
      Clipper c;
      c.AddPath(path, ptSubject, true);
      c.AddPath(inner, ptClip, true);
      Paths outside;
      c.Execute(ctDifference, outside, pftNonZero, pftNonZero);
      if (std::abs(pathsArea(outside)) > tolArea)
        bad.push_back(name + where + " is not inside the sheet less its margin");
      halo.push_back(grown(path, o.kerfMm / 2 - tolMm));
    }
    for (std::size_t a = 0; a < halo.size(); ++a)
      for (std::size_t b = a + 1; b < halo.size(); ++b)
        if (commonArea(halo[a], halo[b]) > tolArea)
          bad.push_back(pieceName(plan, sh.pieces[a].piece) + " and " +
                        pieceName(plan, sh.pieces[b].piece) + where + " are closer than the kerf");
  }
  for (std::size_t i = 0; i < placed.size(); ++i)
    if (placed[i] != 1)
      bad.push_back(pieceName(plan, static_cast<int>(i)) + " is placed " +
                    std::to_string(placed[i]) + " times");
  return bad;
}

}  // namespace tolmar::sheets
