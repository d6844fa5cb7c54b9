// The text reports laid out on the recording surface's character grid
// (100 units a column, 200 a row): golden pages in both languages, and the
// rows, columns and heads that the builder reads.
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "development/calc_develop.h"
#include "development/end_plates.h"
#include "print_fixture.h"
#include "printing/data_report.h"
#include "printing/end_tables.h"
#include "printing/offset_tables.h"
#include "printing/printed_plates.h"
#include "printing/report_writer.h"
#include "text/number_format.h"

namespace tolmar {
namespace {

using printtest::pages;
using printtest::Printout;
using printtest::textGrid;

std::vector<std::string> gridLines(const std::string& grid) {
  std::vector<std::string> lines;
  std::istringstream in(grid);
  for (std::string l; std::getline(in, l);) lines.push_back(l);
  return lines;
}

// The whole document as grids of its pages, "\f" between pages.
std::string documentGrid(const RecordingSurface& s) {
  std::string out;
  for (const auto& p : pages(s.calls())) out += (out.empty() ? "" : "\f\n") + textGrid(p);
  return out;
}

std::vector<int> points(const std::vector<TableRow>& rows) {
  std::vector<int> p;
  for (const TableRow& r : rows) p.push_back(r.point);
  return p;
}

TEST(TableRows, GridRunsThroughTheMaximumBeam) {
  std::vector<int> at41 = {0,  1,  5,  9,  13, 17, 21, 25, 29, 33, 37, 41,
                           45, 49, 53, 57, 61, 65, 69, 73, 77, 81, 82};
  EXPECT_EQ(points(tableRows(41, 81, 82)), at41);
  EXPECT_EQ(tableRows(41, 81, 82)[11].kind, TableRow::MaxBeam);
  std::vector<int> at42 = {0,  1,  5,  9,  13, 17, 21, 25, 29, 33, 37, 41,
                           42, 45, 49, 53, 57, 61, 65, 69, 73, 77, 81, 82};
  EXPECT_EQ(points(tableRows(42, 81, 82)), at42);
  EXPECT_EQ(tableRows(42, 81, 82)[12].kind, TableRow::MaxBeam);
  // The bottom's table ends one point further, on its closing point 83.
  EXPECT_EQ(tableRows(41, 83, 83).back().point, 83);
  EXPECT_EQ(tableRows(41, 83, 83).size(), tableRows(41, 81, 82).size());
  // A maximum beam at the transom end.
  EXPECT_EQ(points(tableRows(1, 81, 82)).at(2), 5);
}

TEST(ReportWriter, TabsAreCharacterColumnsAndNeverGoBack) {
  RecordingSurface s(11906, 16838);
  ReportWriter w(s);
  EXPECT_FLOAT_EQ(w.columnX(1), 0);
  EXPECT_FLOAT_EQ(w.columnX(44), 4300);
  w.tab(20).text("abc").text("de").tab(22).text("x").tab(44).text("y");
  w.end();
  const auto& c = s.calls();
  ASSERT_EQ(c.size(), 3u);
  EXPECT_EQ(c[0].text, "abcde");
  EXPECT_FLOAT_EQ(c[0].x1, 1900);
  EXPECT_EQ(c[1].text, "x");
  EXPECT_FLOAT_EQ(c[1].x1, 2400);  // column 22 lies behind the end of "abcde"
  EXPECT_FLOAT_EQ(c[2].x1, 4300);
  EXPECT_FLOAT_EQ(s.CurrentY, 200);
  EXPECT_FLOAT_EQ(s.CurrentX, 0);
}

TEST(ReportWriter, ALineBelowTheLastCentimetreStartsANewPage) {
  RecordingSurface s(11906, 2000);  // room for (2000 - 568) / 200 = 7 lines
  ReportWriter w(s);
  for (int i = 0; i < 10; ++i) {
    w.tab(20).text("line " + std::to_string(i));
    w.end();
  }
  const auto pg = pages(s.calls());
  ASSERT_EQ(pg.size(), 2u);
  EXPECT_EQ(pg[0].size(), 7u);
  EXPECT_FLOAT_EQ(pg[1].front().y1, 0);
  EXPECT_EQ(s.Page, 2);
}

TEST(PrintData, GoldenPagesInBothLanguages) {
  for (int lang : {0, 1}) {
    Printout p(fixture::defaultHull(), 11906, 23811);
    p.h->langue = static_cast<i16>(lang);
    printData(p.job);
    printtest::expectGolden(lang == 0 ? "data_fr.txt" : "data_en.txt", documentGrid(p.s));
  }
}

TEST(PrintData, LabelsAtTheMarginValuesAtTab44) {
  Printout fr(fixture::defaultHull(), 11906, 23811);
  printData(fr.job);
  const auto lines = gridLines(textGrid(pages(fr.s.calls())[0]));
  ASSERT_GT(lines.size(), 40u);
  EXPECT_EQ(lines[1],
            "                    Tolmar2008  - fichier TOLMAR2005 -  daté: 06-15-2025  page 1 ");
  bool chines = false, points = false;
  for (const std::string& l : lines) {
    if (l.rfind("                    Nombre de bouchains actifs = ", 0) == 0) {
      chines = true;
      EXPECT_EQ(l.substr(49), " 5 ");  // straight after the label
    }
    if (l.rfind("                    Nombre de points par ligne = ", 0) == 0) {
      points = true;
      EXPECT_EQ(l.substr(49), " 80 ");
    }
    if (l.rfind("                    Avant    X^ ", 0) == 0) {
      EXPECT_EQ(l.substr(43), formatNumber(fr.h->powerFwd, " 0.0"));
    }
    if (l.rfind("                    Bordé  2", 0) == 0) {
      // "é" takes two bytes of the line and one column of the page.
      EXPECT_EQ(l.substr(44), formatNumber(fr.h->plankAngle(2), " 00.0") + " deg. ");
    }
  }
  EXPECT_TRUE(chines);
  EXPECT_TRUE(points);

  Printout en(fixture::defaultHull(), 11906, 23811);
  en.h->langue = 1;
  printData(en.job);
  const auto el = gridLines(textGrid(pages(en.s.calls())[0]));
  int blankBeforeHead = 0, heads = 0;
  for (std::size_t i = 1; i < el.size(); ++i) {
    if (el[i].rfind("                    ----------  Keel line", 0) == 0 ||
        el[i].rfind("                    ----------  Chine  ", 0) == 0 ||
        el[i].rfind("                    ----------  Shear line", 0) == 0) {
      ++heads;
      blankBeforeHead += el[i - 1].empty();
      EXPECT_EQ(el[i].substr(43, 2), " X");
      EXPECT_EQ(el[i].substr(59, 2), " Y");
      EXPECT_EQ(el[i].substr(75, 2), " Z");
    }
    if (el[i].rfind("                    Number of chine active", 0) == 0) {
      EXPECT_EQ(el[i].substr(43), " 5 ");
    }
  }
  EXPECT_EQ(heads, 6);  // keel, chines 1..4, sheer
  EXPECT_EQ(blankBeforeHead, 6);
}

TEST(PrintOffsets, GoldenAndColumns) {
  Printout p(fixture::defaultHull());
  p.h->langue = 1;
  printOffsets(p.job, 0);
  const auto pg = pages(p.s.calls());
  ASSERT_EQ(pg.size(), 2u);
  EXPECT_TRUE(pg[0].empty()) << "the table begins its own page";
  printtest::expectGolden("offsets_keel_en.txt", textGrid(pg[1]));

  const auto lines = gridLines(textGrid(pg[1]));
  EXPECT_EQ(lines[0], "                   TOLMAR2005  date: 06-15-2025   page 2 ");
  const HullStore& h = *p.h;
  for (const std::string& l : lines) {
    if (l.rfind("                   Bmax", 0) != 0) continue;
    EXPECT_EQ(l.substr(31, 2), "41");
    EXPECT_EQ(l.substr(43, 6), formatNumber(h.lineX(0, 41), "#0.0000"));
  }

  Printout fr(fixture::defaultHull());
  printOffsets(fr.job, fr.h->nChines);
  const auto fl = gridLines(textGrid(pages(fr.s.calls())[1]));
  EXPECT_EQ(fl[2], "                    ----- offsets : Ligne du livet ");
  EXPECT_EQ(fl.back(), "                   ----- EOF ----- Ligne du livet ");
  const HullStore& f = *fr.h;
  const auto stem = std::find_if(fl.begin(), fl.end(), [](const std::string& l) {
    return l.rfind("                   Etrave      82", 0) == 0;
  });
  ASSERT_NE(stem, fl.end());
  EXPECT_EQ(stem->substr(43).rfind(formatNumber(f.lineX(5, 82), "#0.0000"), 0), 0u);
  EXPECT_EQ(stem->substr(59).rfind(formatNumber(f.lineY(5, 82), "#0.0000"), 0), 0u);
  EXPECT_EQ(stem->substr(75), formatNumber(f.lineZ(5, 82), "#0.0000"));
}

TEST(PrintPlateTable, BottomToPointEightyThreePlanksToEightyTwo) {
  Printout p(fixture::defaultHull());
  developBottom(*p.h);  // the screens' development, for the expected numbers
  printPlateTable(p.job, developPlate(*p.h, PlateKind::bottom, 0));
  const auto pg = pages(p.s.calls());
  ASSERT_EQ(pg.size(), 2u);
  printtest::expectGolden("plate_bottom_fr.txt", textGrid(pg[1]));
  const auto lines = gridLines(textGrid(pg[1]));
  EXPECT_TRUE(lines[0].empty()) << "a blank line before the head";
  EXPECT_EQ(lines[1], "                   Tolmar2008TOLMAR2005  date: 06-15-2025   page 2 ");
  EXPECT_EQ(
      lines[5],
      "                                         Coté quille                   Coté bouchain 1");
  const std::string& last = lines[lines.size() - 3];
  EXPECT_EQ(last.substr(0, 33), "                   Etrave      83");
  EXPECT_EQ(last.substr(39, formatNumber(p.h->devXi(83), "#0.0000").size()),
            formatNumber(p.h->devXi(83), "#0.0000"));

  Printout en(fixture::defaultHull());
  en.h->langue = 1;
  printPlateTable(en.job, developPlate(*en.h, PlateKind::plank, 2));
  printtest::expectGolden("plate_plank2_en.txt", textGrid(pages(en.s.calls())[1]));
  const auto el = gridLines(textGrid(pages(en.s.calls())[1]));
  EXPECT_EQ(el[3], "                   ----- Development of plank  2");
  EXPECT_EQ(el[5],
            "                                         Chine 2 egde                  Chine 3 edge");
  EXPECT_EQ(
      el[6],
      "                                pt       Xi            Yi              Xs            Ys");
  EXPECT_EQ(el[el.size() - 3].substr(0, 33), "                   Stem        82");
}

TEST(PrintEndTables, TransomBeamAndPramBow) {
  Printout pointed(fixture::defaultHull());
  pointed.h->langue = 1;
  calcTransomPlate(*pointed.h);
  printEndTables(pointed.job);
  EXPECT_EQ(pages(pointed.s.calls()).size(), 3u) << "two tables on pages of their own";

  Printout pram(fixture::pramBowHull());
  pram.h->langue = 1;
  calcTransomPlate(*pram.h);
  calcBowPlate(*pram.h);
  printEndTables(pram.job);
  const auto pg = pages(pram.s.calls());
  ASSERT_EQ(pg.size(), 4u);
  printtest::expectGolden("end_tables_pram_en.txt", documentGrid(pram.s));
  const auto transom = gridLines(textGrid(pg[1]));
  const int n = pram.h->nChines;
  // Head block of 8 lines, 2n + 21 rows, a blank line and the end line.
  EXPECT_EQ(static_cast<int>(transom.size()), 8 + 2 * n + 21 + 2);
  EXPECT_EQ(transom[4], "                   ----- Transom development");
  EXPECT_EQ(transom[6], "                    pt                  Y                   Z ");
  EXPECT_EQ(transom[8].substr(0, 26), "                   Chine 4");
  EXPECT_EQ(transom[8].substr(39, 7), formatNumber(-pram.h->transomPlate(2, 13), "#0.0000"));
  const auto bow = gridLines(textGrid(pg[3]));
  EXPECT_EQ(bow[4], "                   Bow plate development");
  const auto beam = gridLines(textGrid(pg[2]));
  EXPECT_EQ(beam[4], "                   ----- Maximum beam station  X= 3 ");
  EXPECT_EQ(static_cast<int>(beam.size()), 8 + 2 * n + 1 + 2);

  Printout fr(fixture::defaultHull());
  calcTransomPlate(*fr.h);
  printEndTables(fr.job);
  const auto ft = gridLines(textGrid(pages(fr.s.calls())[1]));
  EXPECT_EQ(ft[4], "                   ----- Développement du tableau");
  EXPECT_EQ(ft.back(), "                   ----- EOF ----- Développement du tableau");
}

}  // namespace
}  // namespace tolmar
