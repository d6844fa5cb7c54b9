// The printed plan of sheets as the bytes of a PDF (A4 landscape): the
// bill of materials, then a page per sheet at a true scale.  The file's
// dates are fixed, so that the same plan gives the same bytes.
#pragma once

#include <QByteArray>
#include <string>

#include "sheets/sheet_layout.h"

namespace tolmar::qtdraw {

// Empty when the document could not be started.
QByteArray sheetsPdf(const sheets::SheetPlan& plan, const std::string& hullName, int langue);

}  // namespace tolmar::qtdraw
