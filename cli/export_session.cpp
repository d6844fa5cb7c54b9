#include "export_session.h"

#include <cstdio>
#include <cstdlib>

#include "board/board_model.h"
#include "cli_session_args.h"
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
  if (digits.empty() || digits.size() > 2 ||
      digits.find_first_not_of("0123456789") != std::string::npos)
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
    } else if (s == "--station") {
      if (!value(out.stationAt)) return false;
    } else if (s == "--overlap") {
      std::string v;
      if (!value(v)) return false;
      if (v == "strip")
        out.overlap = OverlapAnswer::strip;
      else if (v == "lap")
        out.overlap = OverlapAnswer::lap;
      else if (v == "cancel")
        out.overlap = OverlapAnswer::cancel;
      else {
        std::fprintf(stderr, "tolmar-cli: --overlap takes strip, lap or cancel, not '%s'\n",
                     v.c_str());
        return false;
      }
    } else if (s == "--set" || s.rfind("--set=", 0) == 0) {
      std::string v;
      if (s == "--set") {
        if (!value(v)) return false;
      } else {
        v = s.substr(6);
      }
      std::string error;
      SetValue set = parseSet(v, error);
      if (error.empty() && set.screen == "overlap1") {
        if (set.index < 0 || !set.hasValue) error = "overlap1 takes fields as Text1(0)=VALUE";
      }
      if (!error.empty()) {
        std::fprintf(stderr, "tolmar-cli: %s\n", error.c_str());
        return false;
      }
      (set.screen == "overlap1" ? out.overlapSets : out.screenSets).push_back(std::move(set));
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
  o.sets = a.screenSets;
  r = prepareHull(h, o);
  if (r.status != 0) {
    std::fprintf(stderr, "tolmar-cli: %s\n", r.error.c_str());
    return r.status;
  }
  h.langue = static_cast<i16>(a.langue);
  printFolds(r.board.folds, h.langue);
  return 0;
}

bool answerOverlap(HullStore& h, const ExportArgs& a) {
  Overlap1 s;
  s.load();
  s.activate(h);
  using G = Overlap1::Group;
  for (const SetValue& set : a.overlapSets) {
    const bool ok = (set.control == "Text1" && set.index >= 0 && set.index <= 1) ||
                    (set.control == "Text2" && set.index >= 0 && set.index <= 1) ||
                    (set.control == "Text3" && set.index >= 1 && set.index <= 2);
    if (!ok) {
      std::fprintf(stderr, "tolmar-cli: overlap1 has no field %s\n", set.arg.c_str());
      return false;
    }
    const G g = set.control == "Text1" ? G::text1 : set.control == "Text2" ? G::text2 : G::text3;
    s.typeText(h, g, set.index, set.value);
    s.leaveField(h, g, set.index);
  }
  s.clickCommand1(h, static_cast<int>(a.overlap));
  return true;
}

int chosenStation(HullStore& h, PipelineResult& r, const ExportArgs& a) {
  if (!a.stationAt.empty()) r.board.text1 = a.stationAt;
  board::drawStationState(r.board, h);
  return h.stationIndex;
}

const std::vector<std::string>& exportKinds() {
  static const std::vector<std::string> kinds = {
      "lines2d",     "lines3d",     "lines-xyz",  "vrml",        "plates-dxf", "decks-dxf",
      "station-dxf", "plank-xyz:N", "deck-xyz:N", "transom-xyz", "bow-xyz"};
  return kinds;
}

int runExportKind(ExportHost& host, HullStore& h, PipelineResult& r, const ExportArgs& a,
                  const std::string& kind) {
  int n = 0;
  if (kind == "lines2d") return outcome(saveLines2D(host, h));
  if (kind == "lines3d") return outcome(saveLines3D(host, h));
  if (kind == "lines-xyz") return outcome(saveLinesXyz(host, h));
  if (kind == "vrml") return outcome(saveVrml(host, h));
  if (kind == "plates-dxf" || kind == "decks-dxf") {
    if (!answerOverlap(h, a)) return 2;
    if (h.overlapMode != 1 && h.overlapMode != 2)
      return 0;  // cancelled: nothing written, nothing said
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
