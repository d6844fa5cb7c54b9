// tolmar-cli sheets: a hull file taken through its screens as `dump` takes
// it, its panels laid on plywood sheets, and the files a builder cuts
// from: a DXF per sheet, an SVG of every sheet, a PDF with the bill of
// materials and a page per sheet, and the plan as JSON.
#ifdef TOLMAR_HAVE_QTDRAW

#include <QCoreApplication>
#include <QGuiApplication>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "cli_session_args.h"
#include "command.h"
#include "export/text_sink.h"
#include "gui_application.h"
#include "io/safe_write.h"
#include "pipeline.h"
#include "qtdraw/sheets_pdf.h"
#include "sheets/sheet_plan.h"
#include "sheets/sheets_dxf.h"
#include "sheets/sheets_svg.h"
#include "sheets_json.h"
#include "text/utf8.h"

namespace tolmar::cli {
namespace {

using namespace tolmar::sheets;

constexpr const char* kUsage =
    "HULL.D50 OUTDIR [--sheet 2440x1220] [--kerf 3] [--margin 10]\n"
    "      [--joint scarf:8|butt:150|none] [--joint-at PART:X]... [--rotate90]\n"
    "      [--only PART,...] [--skip PART,...] [--lang fr|en] [--auto] [--set ...]";

int usage(const std::string& why) {
  std::fprintf(stderr, "tolmar-cli sheets: %s\nusage: tolmar-cli sheets %s\n", why.c_str(), kUsage);
  return 2;
}

// The whole text as a finite number, or nothing.
std::optional<double> number(const std::string& s) {
  if (s.empty()) return std::nullopt;
  char* end = nullptr;
  const double v = std::strtod(s.c_str(), &end);
  if (end != s.c_str() + s.size() || !std::isfinite(v)) return std::nullopt;
  return v;
}

void splitList(const std::string& s, std::vector<std::string>& out) {
  std::size_t start = 0;
  while (start <= s.size()) {
    const std::size_t comma = s.find(',', start);
    const std::string word = s.substr(start, comma == std::string::npos ? comma : comma - start);
    if (!word.empty()) out.push_back(word);
    if (comma == std::string::npos) break;
    start = comma + 1;
  }
}

struct SheetsArgs {
  SheetOptions o;
  std::optional<int> langue;
  std::string outDir;
};

int parseArgs(const Args& args, SheetsArgs& p, SessionArgs& session) {
  Args sessionArgs;
  std::vector<std::string> words;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    auto value = [&]() -> std::optional<std::string> {
      if (i + 1 < args.size()) return args[++i];
      return std::nullopt;
    };
    if (a == "--sheet") {
      const auto v = value();
      const std::size_t x = v ? v->find_first_of("xX") : std::string::npos;
      const auto l = x != std::string::npos ? number(v->substr(0, x)) : std::nullopt;
      const auto w = x != std::string::npos ? number(v->substr(x + 1)) : std::nullopt;
      if (!l || !w) return usage("--sheet takes LENGTHxWIDTH in millimetres, as 2440x1220");
      p.o.lengthMm = *l;
      p.o.widthMm = *w;
    } else if (a == "--kerf" || a == "--margin") {
      const auto v = value();
      const auto n = v ? number(*v) : std::nullopt;
      if (!n) return usage(a + " takes a number of millimetres");
      (a == "--kerf" ? p.o.kerfMm : p.o.marginMm) = *n;
    } else if (a == "--joint") {
      const auto v = value();
      if (!v) return usage("--joint takes scarf:RATIO, butt:WIDTH or none");
      const std::size_t colon = v->find(':');
      const std::string kind = v->substr(0, colon);
      std::optional<double> n;
      if (colon != std::string::npos) {
        n = number(v->substr(colon + 1));
        if (!n) return usage("--joint " + *v + ": the number after ':' is not a number");
      }
      if (kind == "scarf") {
        p.o.joint = JointKind::scarf;
        if (n) p.o.scarfRatio = *n;
      } else if (kind == "butt") {
        p.o.joint = JointKind::butt;
        if (n) p.o.strapWidthMm = *n;
      } else if (kind == "none" && !n) {
        p.o.joint = JointKind::none;
      } else {
        return usage("--joint takes scarf:RATIO, butt:WIDTH or none");
      }
    } else if (a == "--joint-at") {
      const auto v = value();
      const std::size_t colon = v ? v->rfind(':') : std::string::npos;
      const auto x = colon != std::string::npos ? number(v->substr(colon + 1)) : std::nullopt;
      if (!x || colon == 0) return usage("--joint-at takes PART:X, X in metres from the aft end");
      p.o.jointsAt.push_back({v->substr(0, colon), *x});
    } else if (a == "--rotate90") {
      p.o.rotate90 = true;
    } else if (a == "--only" || a == "--skip") {
      const auto v = value();
      if (!v) return usage(a + " takes part names separated by commas");
      splitList(*v, a == "--only" ? p.o.only : p.o.skip);
    } else if (a == "--lang") {
      const auto v = value();
      if (!v || (*v != "fr" && *v != "en")) return usage("--lang takes fr or en");
      p.langue = *v == "fr" ? 0 : 1;
    } else if (a == "--set") {
      sessionArgs.push_back(a);
      if (const auto v = value()) sessionArgs.push_back(*v);
    } else if (a.rfind("--", 0) == 0) {
      sessionArgs.push_back(a);
    } else {
      words.push_back(a);
    }
  }
  if (words.size() != 2) return usage("a hull file and an output folder are needed");
  p.outDir = words[1];
  sessionArgs.insert(sessionArgs.begin(), words[0]);
  return parseSessionArgs(sessionArgs, true, session) ? 0 : 2;
}

// The name stem of the files: the hull's name as the plate files take it,
// without what a file name cannot hold.
std::string fileStem(const HullStore& h, const std::filesystem::path& hullFile) {
  std::string stem(utf8Prefix(h.hullName, 15));
  if (stem.empty()) stem = hullFile.stem().string();
  for (char& c : stem)
    if (c == '/' || c == '\\' || c == ':' || c == '*' || c == '?' || c == '"' || c == '<' ||
        c == '>' || c == '|')
      c = '_';
  return stem.empty() ? "HULL" : stem;
}

int run(const Args& args) {
  SheetsArgs p;
  SessionArgs session;
  if (const int status = parseArgs(args, p, session)) return status;

  auto h = std::make_unique<HullStore>();
  PipelineResult r;
  if (const int status = prepareSessionHull(session, "sheets", *h, r)) return status;
  if (p.langue) h->langue = static_cast<i16>(*p.langue);
  const int langue = h->langue;

  const SheetPlan plan = planSheets(*h, p.o);
  if (!plan.error.empty()) {
    std::fprintf(stderr, "tolmar-cli sheets: %s\n", plan.error.c_str());
    return 2;
  }

  // Every file is made in memory first; only then does anything reach the
  // folder.
  const std::string stem = fileStem(*h, session.file);
  std::vector<std::pair<std::string, std::string>> files;
  for (int s = 0; s < static_cast<int>(plan.sheets.size()); ++s) {
    StringSink dxf;
    writeSheetDxf(dxf, plan, s, h->hullName, langue);
    files.emplace_back(sheetDxfName(stem, s), dxf.text());
  }
  files.emplace_back(stem + "_SHEETS.svg", sheetsSvg(plan, h->hullName, langue));
  files.emplace_back(stem + "_SHEETS.json", sheetsJson(plan).dump(1) + "\n");
  {
    const auto app = guiApplication();
    const QByteArray pdf = qtdraw::sheetsPdf(plan, h->hullName, langue);
    if (pdf.isEmpty()) {
      std::fprintf(stderr, "tolmar-cli sheets: cannot make the PDF document\n");
      return 1;
    }
    files.emplace_back(stem + "_SHEETS.pdf",
                       std::string(pdf.constData(), static_cast<std::size_t>(pdf.size())));
  }

  std::error_code ec;
  std::filesystem::create_directories(p.outDir, ec);
  if (ec) {
    std::fprintf(stderr, "tolmar-cli sheets: cannot make the folder %s: %s\n", p.outDir.c_str(),
                 ec.message().c_str());
    return 1;
  }
  // All the files or none: each is written and synced before any replaces
  // its former self.
  for (auto& file : files) file.first = (std::filesystem::path(p.outDir) / file.first).string();
  std::size_t failed = 0;
  if (const io::WriteResult w = io::writeFilesSafely(files, &failed); !w.ok()) {
    std::fprintf(stderr, "tolmar-cli sheets: cannot write %s: %s\n", files[failed].first.c_str(),
                 w.message.c_str());
    return 1;
  }
  // The sheets of an earlier, longer plan would be cut with this one's.
  const int count = static_cast<int>(plan.sheets.size());
  for (const std::filesystem::path& f : staleSheetFiles(p.outDir, stem, count)) {
    std::filesystem::remove(f, ec);
    if (ec)
      std::fprintf(stderr, "tolmar-cli sheets: warning: %s of an earlier plan stays: %s\n",
                   f.string().c_str(), ec.message().c_str());
    else
      std::fprintf(stderr, "tolmar-cli sheets: removed %s of an earlier plan of more sheets\n",
                   f.string().c_str());
  }
  return 0;
}

Register reg({"sheets", kUsage,
              "  Opens a hull file and passes its screens as `dump` does, lays the panels that\n"
              "  the mass budget counts on plywood sheets (joints where a panel is longer than\n"
              "  a sheet), and writes into OUTDIR: NAME_SHEET01.DXF ... (one per sheet),\n"
              "  NAME_SHEETS.svg, NAME_SHEETS.pdf (bill of materials, a page per sheet) and\n"
              "  NAME_SHEETS.json; the sheet files of an earlier plan of more sheets go.\n"
              "  Sizes in millimetres; --joint-at in metres from the part's aft end.\n"
              "  Status 1: a file cannot be read or written; 2: a wrong command\n"
              "  line, a hull the screens refuse, or panels that cannot be laid out.",
              &run});

}  // namespace
}  // namespace tolmar::cli

#endif  // TOLMAR_HAVE_QTDRAW
