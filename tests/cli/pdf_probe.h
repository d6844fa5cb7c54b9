// What poppler finds on a page of a PDF, in millimetres from the page's top
// left corner: the boxes of its words (pdftotext -bbox) and its straight
// segments (the shared pdf_measure.py over pdftocairo).
#pragma once

#include <array>
#include <cstdio>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <regex>
#include <string>
#include <vector>

namespace tolmar::testing {

inline constexpr double kMmPerPt = 25.4 / 72;
// The shared checkers' folder, found beside the project by the build.
inline const char* const kPdfMeasure = TOLMAR_SHARED_TOOLS "/pdf_measure.py";

struct Shell {
  int status = -1;
  std::string out;
};

// A shell command's status and stdout; stderr is dropped, or joins stdout.
inline Shell shell(const std::string& cmd, bool withStderr = false) {
  Shell r;
  FILE* p = popen((cmd + (withStderr ? " 2>&1" : " 2>/dev/null")).c_str(), "r");
  if (!p) return r;
  std::array<char, 65536> buf;
  std::size_t n;
  while ((n = std::fread(buf.data(), 1, buf.size(), p)) > 0) r.out.append(buf.data(), n);
  const int st = pclose(p);
  r.status = WIFEXITED(st) ? WEXITSTATUS(st) : -1;
  return r;
}

inline std::string quoted(const std::filesystem::path& p) { return "'" + p.string() + "'"; }

struct Box {
  std::string text;
  double x0, y0, x1, y1;
};

struct Segment {
  double x0, y0, x1, y1, lengthMm;
  bool horizontal, vertical;
  double widthPt;
};

inline bool popplerReady() {
  return shell("pdftotext -v").status == 0 && shell("pdftocairo -v").status == 0 &&
         std::filesystem::exists(kPdfMeasure) &&
         shell("python3 -c 'import xml.etree.ElementTree'").status == 0;
}

inline int pdfPages(const std::filesystem::path& pdf) {
  std::smatch m;
  const std::string info = shell("pdfinfo " + quoted(pdf)).out;
  return std::regex_search(info, m, std::regex("Pages:\\s+(\\d+)")) ? std::stoi(m[1]) : -1;
}

inline std::string pageText(const std::filesystem::path& pdf, int page) {
  const std::string p = std::to_string(page);
  return shell("pdftotext -f " + p + " -l " + p + " " + quoted(pdf) + " -").out;
}

inline std::vector<Box> words(const std::filesystem::path& pdf, int page) {
  const std::string p = std::to_string(page);
  const std::string html =
      shell("pdftotext -bbox -f " + p + " -l " + p + " " + quoted(pdf) + " -").out;
  static const std::regex word(
      "<word xMin=\"([-\\d.]+)\" yMin=\"([-\\d.]+)\" xMax=\"([-\\d.]+)\" "
      "yMax=\"([-\\d.]+)\">([^<]*)"
      "</word>");
  std::vector<Box> r;
  for (auto it = std::sregex_iterator(html.begin(), html.end(), word); it != std::sregex_iterator();
       ++it) {
    const std::smatch& m = *it;
    r.push_back({m[5], std::stod(m[1]) * kMmPerPt, std::stod(m[2]) * kMmPerPt,
                 std::stod(m[3]) * kMmPerPt, std::stod(m[4]) * kMmPerPt});
  }
  return r;
}

// Every straight segment of the page, with its stroke width (pt; 0 when
// the tool gives none), to 0.001 mm.
inline std::vector<Segment> segments(const std::filesystem::path& pdf, int page) {
  const Shell s = shell("python3 " + std::string(kPdfMeasure) + " " + quoted(pdf) + " --page " +
                        std::to_string(page) + " --all --min-mm 0");
  std::vector<Segment> r;
  if (s.status != 0) return r;
  static const std::regex line(
      "(horizontal|vertical|oblique)\\s+([\\d.]+) mm \\([^)]*\\)\\s+\\(\\s*(-?[\\d.]+),\\s*(-?["
      "\\d.]+)\\) -> \\(\\s*(-?[\\d.]+),\\s*(-?[\\d.]+)\\) mm\\s+\\[\\w+(?: width ([\\d.]+) "
      "pt)?\\]");
  for (auto it = std::sregex_iterator(s.out.begin(), s.out.end(), line);
       it != std::sregex_iterator(); ++it) {
    const std::smatch& m = *it;
    r.push_back({std::stod(m[3]), std::stod(m[4]), std::stod(m[5]), std::stod(m[6]),
                 std::stod(m[2]), m[1] == "horizontal", m[1] == "vertical",
                 m[7].matched ? std::stod(m[7]) : 0.0});
  }
  return r;
}

}  // namespace tolmar::testing
