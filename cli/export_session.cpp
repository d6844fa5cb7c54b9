#include "export_session.h"

#include <cstdio>
#include <cstdlib>

#include "board/board_model.h"
#include "development/end_plates.h"
#include "export/end_plates_dxf.h"
#include "export/lines_dxf.h"
#include "export/plate_dxf.h"
#include "export/vrml_file.h"
#include "export/xyz_files.h"
#include "screens/overlap1.h"

namespace tolmar::cli {

namespace {

int outcome(ExportOutcome o) { return o == ExportOutcome::failed ? 1 : 0; }

bool plateNumber(const std::string& kind, const std::string& prefix, int& n) {
  if (kind.rfind(prefix, 0) != 0) return false;
  const std::string digits = kind.substr(prefix.size());
  if (digits.empty() || digits.size() > 2 || digits.find_first_not_of("0123456789") != std::string::npos)
    return false;
  n = std::atoi(digits.c_str());
  return true;
}

}  // namespace

bool parseExportArgs(const Args& args, ExportArgs& out) {
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& s = args[i];
    auto value = [&](std::string& v) {
      if (i + 1 >= args.size()) {
        std::fprintf(stderr, "tolmar-cli: %s needs a value\n", s.c_str());
        return false;
      }
      v = args[++i];
      return true;
    };
    if (s == "--lang") {
      std::string v;
      if (!value(v)) return false;
      if (v != "fr" && v != "en") {
        std::fprintf(stderr, "tolmar-cli: --lang takes fr or en, not '%s'\n", v.c_str());
        return false;
      }
      out.langue = v == "fr" ? 0 : 1;
    } else if (s == "--auto") {
      out.autoPlanking = true;
    } else if (s == "--at") {
      if (!value(out.stationAt)) return false;
    } else if (s == "--overlap") {
      std::string v;
      if (!value(v)) return false;
      int k = 0;
      std::size_t from = 0;
      while (k < 6) {
        const auto comma = v.find(',', from);
        out.overlap[k++] = v.substr(from, comma == std::string::npos ? std::string::npos : comma - from);
        if (comma == std::string::npos) break;
        from = comma + 1;
      }
      if (k != 6 || v.find(',', from) != std::string::npos) {
        std::fprintf(stderr, "tolmar-cli: --overlap takes six values in mm, B,LB,S,LS,T,W\n");
        return false;
      }
      out.lapStrake = true;
    } else if (s.rfind("--", 0) == 0) {
      std::fprintf(stderr, "tolmar-cli: unknown option '%s'\n", s.c_str());
      return false;
    } else {
      out.positional.push_back(s);
    }
  }
  return true;
}

int prepareForExport(HullStore& h, const ExportArgs& a, PipelineResult& r) {
  PipelineOptions o;
  o.hullFile = a.positional.at(0);
  o.autoPlanking = a.autoPlanking;
  r = prepareHull(h, o);
  if (r.status != 0) {
    std::fprintf(stderr, "tolmar-cli: %s\n", r.error.c_str());
    return r.status;
  }
  h.langue = static_cast<i16>(a.langue);
  return 0;
}

void answerOverlap(HullStore& h, const ExportArgs& a) {
  Overlap1 s;
  s.load();
  s.activate(h);
  if (!a.lapStrake) {
    s.clickCommand1(h, 1);
    return;
  }
  using G = Overlap1::Group;
  const struct {
    G g;
    int i;
  } fields[6] = {{G::text1, 0}, {G::text1, 1}, {G::text2, 0}, {G::text2, 1}, {G::text3, 1}, {G::text3, 2}};
  for (int k = 0; k < 6; ++k) {
    s.typeText(h, fields[k].g, fields[k].i, a.overlap[k]);
    s.leaveField(h, fields[k].g, fields[k].i);
  }
  s.clickCommand1(h, 2);
}

int chosenStation(HullStore& h, PipelineResult& r, const ExportArgs& a) {
  if (!a.stationAt.empty()) r.board.text1 = a.stationAt;
  board::drawStationState(r.board, h);
  return h.stationIndex;
}

const std::vector<std::string>& exportKinds() {
  static const std::vector<std::string> kinds = {
      "dxf2d", "dxf3d", "xyz", "vrml", "plates-dxf", "decks-dxf", "station-dxf",
      "plank-xyz:N", "deck-xyz:N", "transom-xyz", "bow-xyz"};
  return kinds;
}

int runExportKind(ExportHost& host, HullStore& h, PipelineResult& r, const ExportArgs& a,
                  const std::string& kind) {
  int n = 0;
  if (kind == "dxf2d") return outcome(saveLines2D(host, h));
  if (kind == "dxf3d") return outcome(saveLines3D(host, h));
  if (kind == "xyz") return outcome(saveLinesXyz(host, h));
  if (kind == "vrml") return outcome(saveVrml(host, h));
  if (kind == "plates-dxf" || kind == "decks-dxf") {
    answerOverlap(h, a);
    return outcome(kind == "plates-dxf" ? savePlateFile(host, h, r.board.stepIndex)
                                        : saveDeckFile(host, h, r.board.stepIndex));
  }
  if (kind == "station-dxf") return outcome(stationFileDXF(host, h, chosenStation(h, r, a)));
  if (plateNumber(kind, "plank-xyz:", n)) {
    if (n > h.nChines - 1) {
      std::fprintf(stderr, "tolmar-cli: the hull has planks 0..%d\n", h.nChines - 1);
      return 2;
    }
    return outcome(plankXYZ(host, h, n));
  }
  if (plateNumber(kind, "deck-xyz:", n)) {
    if (n < 1 || n > h.nChines) {
      std::fprintf(stderr, "tolmar-cli: the hull has decks 1..%d\n", static_cast<int>(h.nChines));
      return 2;
    }
    return outcome(deckXYZ(host, h, n));
  }
  if (kind == "transom-xyz") {
    calcTransomPlate(h);
    return outcome(transomXYZ(host, h));
  }
  if (kind == "bow-xyz") {
    calcBowPlate(h);
    return outcome(bowXYZ(host, h));
  }
  std::fprintf(stderr, "tolmar-cli: unknown export kind '%s'\n", kind.c_str());
  return 2;
}

}  // namespace tolmar::cli
