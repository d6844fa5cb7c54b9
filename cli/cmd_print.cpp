// tolmar-cli print: a hull file taken through its screens as `dump` takes
// it, then one entry of the print menu run on a PDF printer.
#ifdef TOLMAR_HAVE_QTDRAW

#include <QBuffer>
#include <QByteArray>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "board/board_model.h"
#include "board/step_host.h"
#include "board/step_runner.h"
#include "cli_session_args.h"
#include "command.h"
#include "development/developed_plate.h"
#include "development/panel_offsets.h"
#include "gui_application.h"
#include "hull/fold_check.h"
#include "io/safe_write.h"
#include "pipeline.h"
#include "printing/panel_offsets_report.h"
#include "printing/paper_setup.h"
#include "printing/pattern_pages.h"
#include "printing/print_menu.h"
#include "printing/stability_page.h"
#include "qtdraw/paged_surface.h"
#include "unseen_picture.h"

namespace tolmar::cli {
namespace {

using board::BoardControl;

constexpr const char* kUsage =
    "HULL.D50 data|drawing|develop|station|all|patterns|panels|check|stability OUT.pdf\n"
    "      [--paper A4|A3|Letter] [--landscape] [--margin-mm 5] [--calibrate X,Y]\n"
    "      [--station X] [--lang fr|en] [--overlap-mm 10] [--plates p01,p02,...]\n"
    "      [--step-mm 100] [--auto]\n"
    "      [--set SCREEN.CONTROL=VALUE]...";

struct PrintArgs {
  BoardControl entry = BoardControl::fmenu_P_Data;
  bool patterns = false;   // the full-size patterns, behind the same gate as the plates
  bool stability = false;  // the stability pages, behind the gate of all offsets
  double overlapMm = 10;
  double stepMm = 100;  // the panel offsets' stations
  std::vector<std::string> plates;
  std::string paperName = "A4";
  std::string out;
  QPageSize::PageSizeId paper = QPageSize::A4;
  bool landscape = false;
  std::optional<std::string> station;
  std::optional<int> langue;
  double marginMm = kDefaultPdfMarginMm;
  PrintCalibration calibration;
};

int usage(const char* why) {
  std::fprintf(stderr, "tolmar-cli print: %s\nusage: tolmar-cli print %s\n", why, kUsage);
  return 2;
}

std::optional<BoardControl> kindEntry(const std::string& kind) {
  static const std::map<std::string, BoardControl> kinds = {
      {"data", BoardControl::fmenu_P_Data},       {"drawing", BoardControl::fmenu_P_Dessin},
      {"develop", BoardControl::fmenu_P_Develop}, {"station", BoardControl::fmenu_P_Station},
      {"all", BoardControl::fmenu_P_Tout},        {"panels", BoardControl::fmenu_P_Panels},
      {"check", BoardControl::fmenu_P_Check}};
  const auto it = kinds.find(kind);
  if (it == kinds.end()) return std::nullopt;
  return it->second;
}

// Splits the print options from the session's (file, --set, --auto).
// Returns 0, or the exit status of a bad command line.
int parseArgs(const Args& args, PrintArgs& p, SessionArgs& session) {
  Args sessionArgs;
  std::vector<std::string> words;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    auto value = [&]() -> const std::string* { return i + 1 < args.size() ? &args[++i] : nullptr; };
    if (a == "--paper") {
      const std::string* v = value();
      if (!v) return usage("--paper needs A4, A3 or Letter");
      static const std::map<std::string, QPageSize::PageSizeId> papers = {
          {"A4", QPageSize::A4}, {"A3", QPageSize::A3}, {"Letter", QPageSize::Letter}};
      const auto paper = papers.find(*v);
      if (paper == papers.end()) return usage("--paper takes A4, A3 or Letter");
      p.paper = paper->second;
      p.paperName = *v;
    } else if (a == "--landscape") {
      p.landscape = true;
    } else if (a == "--station") {
      const std::string* v = value();
      if (!v) return usage("--station needs a station X in metres");
      p.station = *v;
    } else if (a == "--lang") {
      const std::string* v = value();
      if (!v || (*v != "fr" && *v != "en")) return usage("--lang takes fr or en");
      p.langue = *v == "fr" ? 0 : 1;
    } else if (a == "--margin-mm") {
      const std::string* v = value();
      if (!v || !parsePaperNumber(*v, p.marginMm))
        return usage("--margin-mm needs a number of millimetres");
    } else if (a == "--calibrate") {
      const std::string* v = value();
      if (!v || !parseCalibration(*v, p.calibration))
        return usage("--calibrate needs the X and Y factors, as 1.002,0.998");
    } else if (a == "--overlap-mm") {
      const std::string* v = value();
      if (!v || !parsePaperNumber(*v, p.overlapMm))
        return usage("--overlap-mm needs a number of millimetres");
    } else if (a == "--step-mm") {
      const std::string* v = value();
      if (!v || !parsePaperNumber(*v, p.stepMm))
        return usage("--step-mm needs a number of millimetres");
    } else if (a == "--plates") {
      const std::string* v = value();
      if (!v || v->empty()) return usage("--plates needs names, as p01,p02,transom");
      std::size_t start = 0;
      while (start <= v->size()) {
        const std::size_t comma = std::min(v->find(',', start), v->size());
        if (comma > start) p.plates.push_back(v->substr(start, comma - start));
        start = comma + 1;
      }
      if (p.plates.empty()) return usage("--plates needs names, as p01,p02,transom");
    } else if (a == "--set") {
      sessionArgs.push_back(a);
      if (const std::string* v = value()) sessionArgs.push_back(*v);
    } else if (a.rfind("--", 0) == 0) {
      sessionArgs.push_back(a);
    } else {
      words.push_back(a);
    }
  }
  if (words.size() != 3) return usage("a hull file, a kind and a PDF file are needed");
  p.patterns = words[1] == "patterns";
  p.stability = words[1] == "stability";
  const auto entry = p.patterns    ? BoardControl::fmenu_P_Develop
                     : p.stability ? BoardControl::fmenu_P_Tout
                                   : kindEntry(words[1]);
  if (!entry) return usage(("no kind of print '" + words[1] + "'").c_str());
  p.entry = *entry;
  p.out = words[2];
  sessionArgs.insert(sessionArgs.begin(), words[0]);
  return parseSessionArgs(sessionArgs, true, session) ? 0 : 2;
}

// The margin and the calibration checked against the paper; empty when
// both are accepted.
std::string paperError(const PrintArgs& p, int langue) {
  for (const double f : {p.calibration.x, p.calibration.y})
    if (std::string why = calibrationError(f, langue); !why.empty()) return why;
  const QSizeF mm = QPageSize(p.paper).size(QPageSize::Millimeter);
  if (std::string why = marginError(p.marginMm, mm.width(), mm.height(), langue); !why.empty())
    return why;
  if (p.patterns &&
      (!std::isfinite(p.overlapMm) || p.overlapMm < kMinOverlapMm || p.overlapMm > kMaxOverlapMm))
    return overlapError(p.overlapMm, 0, 0, langue);
  return {};
}

// The steps of a print entry, run by the board's runner: Draw station's
// part on the board first for the station sheet, then the document.
class PrintSteps : public board::StepHost {
 public:
  PrintSteps(PrintJob& job, board::BoardState& b, const PrintArgs& args)
      : job_(job), b_(b), args_(args) {}

  board::BoardState& board() override { return b_; }
  DrawingSurface& picture() override { return picture_; }
  void command(BoardControl c) override {
    switch (c) {
      case BoardControl::DessCouple:
        board::drawStationState(b_, job_.h);
        break;
      case BoardControl::fmenu_P_Data:
        fmenu_P_Data(job_);
        break;
      case BoardControl::fmenu_P_Dessin:
        fmenu_P_Dessin(job_, b_.stepIndex);
        break;
      case BoardControl::fmenu_P_Develop:
        fmenu_P_Develop(job_, b_.stepIndex);
        break;
      case BoardControl::fmenu_P_Station:
        fmenu_P_Station(job_);
        break;
      case BoardControl::fmenu_P_Tout:
        fmenu_P_Tout(job_, b_.stepIndex);
        break;
      case BoardControl::fmenu_P_Panels:
        fmenu_P_Panels(job_, args_.stepMm, args_.plates);
        break;
      case BoardControl::fmenu_P_Check:
        fmenu_P_Check(job_);
        break;
      default:
        break;
    }
  }

 private:
  PrintJob& job_;
  board::BoardState& b_;
  const PrintArgs& args_;
  UnseenPicture picture_;
};

int run(const Args& args) {
  PrintArgs p;
  SessionArgs session;
  if (const int status = parseArgs(args, p, session)) return status;

  auto h = std::make_unique<HullStore>();
  PipelineResult r;
  if (const int status = prepareSessionHull(session, "print", *h, r)) return status;
  if (p.langue) h->langue = static_cast<i16>(*p.langue);
  if (p.station) r.board.text1 = *p.station;
  if (const std::string why = paperError(p, h->langue); !why.empty()) {
    std::fprintf(stderr, "tolmar-cli print: %s\n", why.c_str());
    return 2;
  }
  // The patterns need what the plates need; nothing of the board runs.
  if (p.stability) {
    if (r.board.stepIndex < 1) {
      std::fprintf(stderr, "tolmar-cli print: stability needs the planks of the hull\n");
      return 2;
    }
    if (const FoldReport folds = checkFolds(*h); folds.folded()) {
      std::fprintf(stderr, "tolmar-cli print: %s\n", folds.message(h->langue).c_str());
      return 2;
    }
  }
  const bool ownPages = p.patterns || p.stability;
  const board::Actions steps = ownPages ? board::Actions{} : board::press(r.board, *h, p.entry);
  if (ownPages ? !r.board.isEnabled(p.entry) : steps.empty()) {
    std::fprintf(stderr, "tolmar-cli print: %s is disabled on the board\n",
                 std::string(board::controlName(p.entry)).c_str());
    return 2;
  }

  const bool panels = p.entry == BoardControl::fmenu_P_Panels;
  if (panels) {
    if (const std::string why = stepError(p.stepMm, h->langue); !why.empty()) {
      std::fprintf(stderr, "tolmar-cli print: %s\n", why.c_str());
      return 2;
    }
  }
  std::vector<DevelopedPlate> plates;
  std::vector<const DevelopedPlate*> chosen;
  if (p.patterns || (panels && !p.plates.empty())) {
    plates = developAll(*h);
    std::vector<std::string> unknown;
    chosen = choosePlates(plates, p.plates, unknown);
    if (!unknown.empty() || chosen.empty()) {
      std::string names;
      for (const DevelopedPlate& d : plates) names += " " + d.name;
      std::fprintf(stderr, "tolmar-cli print: %s '%s'; the plates are:%s\n",
                   unknown.empty() ? "no plate to print" : "no plate",
                   unknown.empty() ? "" : unknown.front().c_str(), names.c_str());
      return 2;
    }
  }

  const auto app = guiApplication();
  // The target is checked first; the document is made in memory and goes
  // to the file only once complete (io::SafeFile), so that a failed print
  // leaves an earlier file of that name as it was.
  io::SafeFile file(p.out);
  if (file.error() != 0) {
    std::fprintf(stderr, "tolmar-cli print: cannot write %s: %s\n", p.out.c_str(),
                 file.errorText().c_str());
    return 1;
  }
  QByteArray pdf;
  {
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(QString::fromStdString(h->hullName));
    writer.setCreator(QStringLiteral("tolmar-cli"));
    writer.setPageSize(QPageSize(p.paper));
    writer.setPageOrientation(p.landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    qtdraw::PaperOptions paper;
    paper.marginMm = p.marginMm;
    paper.calibration = p.calibration;
    paper.langue = h->langue;
    qtdraw::PagedSurface surface(writer, paper);
    if (!surface.active()) {
      std::fprintf(stderr, "tolmar-cli print: cannot start a PDF document in %s\n", p.out.c_str());
      return 1;
    }
    PrintHost host;
    if (p.patterns) {
      const PatternPlan plan = planPatterns(surface, chosen, p.overlapMm);
      const std::string why =
          overlapError(p.overlapMm, plan.areaWmm, plan.areaHmm - kPatternHeadMm, h->langue);
      if (!why.empty()) {
        std::fprintf(stderr, "tolmar-cli print: %s\n", why.c_str());
        return 2;
      }
      printPatterns(surface, *h, host, plan, p.paperName);
    } else if (p.stability) {
      PrintJob job{surface, *h, host};
      fmenu_P_Stability(job);
    } else {
      PrintJob job{surface, *h, host};
      PrintSteps entry(job, r.board, p);
      board::StepRunner(entry, *h).perform(steps);
    }
  }
  file.write(std::string_view(pdf.constData(), static_cast<std::size_t>(pdf.size())));
  if (const io::WriteResult w = file.commit(); !w.ok()) {
    std::fprintf(stderr, "tolmar-cli print: cannot write %s: %s\n", p.out.c_str(),
                 w.message.c_str());
    return 1;
  }
  return 0;
}

Register reg({"print", kUsage,
              "  Opens a hull file and passes its screens as `dump` does, then runs one entry\n"
              "  of the print menu into a PDF: data (the data sheet), drawing (profile, plan\n"
              "  and sections), develop (the plates), station (the sheet of the station\n"
              "  nearest to --station X, else the board's), all (every sheet and table),\n"
              "  patterns (every plate and end plate at 1:1 on tiles of the paper that\n"
              "  overlap by --overlap-mm, 5 to 50, after a map of the tiles; --plates\n"
              "  names the plates, as tolmar-cli dump lists them), panels (the panel\n"
              "  offsets of every plate, or of --plates, at stations --step-mm apart, as\n"
              "  tolmar-cli offsets gives them), stability (GZ\n"
              "  and hydrostatic curves with their tables, from the mass budget).\n"
              "  A4 portrait unless told; texts in English unless --lang fr.  The page\n"
              "  lies inside a margin of --margin-mm (5 mm) at 568 twips to the centimetre;\n"
              "  --calibrate gives a printer's stretch measured on the 200 mm bar of\n"
              "  every page (measured / 200, X then Y, each 0.9 to 1.1).  Status 1: a\n"
              "  file cannot be read or written; 2: a screen does not pass or the command\n"
              "  line is wrong.",
              &run});

}  // namespace
}  // namespace tolmar::cli

#endif  // TOLMAR_HAVE_QTDRAW
