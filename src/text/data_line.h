// Number texts with decimal commas, as typed by a user on a French system or
// stored in an old hull file: every "," becomes ".".
#pragma once

#include <istream>
#include <string>

namespace tolmar {

// Replaces every "," by "." in text, in place, and returns the result.
// Blanks stay.  "1,5" -> "1.5"; "1,2,3" -> "1.2.3" (the reader stops at the
// second point).
std::string cleanNumber(std::string& text);

// The next line of in: characters up to a line feed or the end of the
// stream, without the line feed, every character below 32 dropped (the
// carriage return among them), then every "," turned into ".".  At the end
// of the stream it gives the empty text.
std::string readDataLine(std::istream& in);

}  // namespace tolmar
