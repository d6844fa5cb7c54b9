// The hull data file (.D50, and the older .D51): one value to a line, lines
// ended by CR LF.  The writer knows the current layout only; the reader
// takes every older one.  Errors come back as a result with the system's
// text of the error, never as an exception.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <string_view>

#include "hull/hull_store.h"
#include "hull/line_generation.h"

namespace tolmar {

struct [[nodiscard]] FileResult {
  bool ok = true;
  std::string message;  // the system's text of the error when !ok
};

// The tag line: "&", for lines 2..nChines the letters of bowTurn and
// transomTurn ("N" for +1, "R" for anything else), "C" and nChines in two
// digits.  The default hull gives "&NNNNNRRRC05".
std::string makeDataTag(const HullStore& h);

// The current layout, CR LF after every line:
//   hullName " - Tolmar2008" / tag / powerFwd / powerAft / shapeAft /
//   shapeFwd / keelAdvance / bowAngle / transomAngle /
//   for each line n = 0..nChines: "LINE " n, plankAngle, xFwd yFwd zFwd
//   xMax yMax zMax xAft yAft zAft planeA planeB planeC /
//   stemShape / "EOF ".
// Numbers in the file's form (" 2.5", "-25", " .1", " 1E-05").  Characters
// below 32 in hullName are left out so that the layout holds.
void writeHullFile(std::ostream& out, const HullStore& h);

// Sets dataTag and writes the file at path through io::SafeFile: a failed
// save leaves the former file as it was, a link is written through, a file
// the user may not write is refused.  The path is taken as it stands (see
// hullSavePath for the extension rule).
FileResult saveHullFile(const std::filesystem::path& path, HullStore& h);

// Reads the file's values into the store, in the file's order, with the
// tolerance of the older layouts: no version word in line 1 (line 1 is the
// tag), no "&" (flags of lines 2 and 3 set to +1, others kept), no "C"
// beyond the first character of the tag (4 lines), no shapeFwd line when
// noShapeFwd (.D51), missing "LINE" lines, "EOF" where a block was due (the
// block is made up from the one before), "EOF" in place of stemShape (0).
// A number line holding text reads 0, a truncated file reads empty lines.
//
// Refusals, on the error path with the store holding what was read so far:
//  - a count above 25: lines 0..25 are read, then "Subscript out of range"
//    when line 26 comes up, with nChines left at 25;
//  - a negative count: "Subscript out of range" before any line, with
//    nChines left as it was;
//  - a whole-degree field beyond a 16-bit integer: "Overflow", that field
//    left as it was.
// A length beyond the largest double is read as the largest double.
// "EOF" at line 0 ends the lines with nothing to copy; at line 1 line 0 is
// copied, plankAngle(0) included.
FileResult readHullFile(std::istream& in, bool noShapeFwd, HullStore& h);

// The store side of opening a file: hullName from the file's name, the
// values read with readHullFile (noShapeFwd when the path's last two
// characters are "51"), then lineX, lineY, lineZ cleared and rebuilt by
// buildBottomLines, buildBottomEdges and buildLine(2..nChines), busy
// called with each n.  Planes and line ends stay as the file gives them.
// Anything but a regular file (a folder, a FIFO, a device) is refused at
// once, before it is opened: "Is a directory", "Not a regular file".
FileResult openHullFile(const std::filesystem::path& path, HullStore& h, const BusyStep& busy = {});

// hullName from a file name without its folders: cut at the first "." when
// that stands beyond the first character ("Dory.D50" -> "Dory",
// ".D50" -> ".D50").
std::string hullNameFromFileName(std::string_view fileName);

// The path a save writes: in the file name, everything from its first "."
// is replaced by ".D50"; a name with no "." gets ".D50" added.
std::filesystem::path hullSavePath(const std::filesystem::path& chosen);

// True when the path's last two characters are "51" (an old .D51 file, in
// any case of the letters before them).
bool isOldLayoutPath(std::string_view path);

}  // namespace tolmar
