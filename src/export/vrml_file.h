// The hull as a VRML 2.0 world: lights, five viewpoints and one
// IndexedFaceSet for each plate, both sides of the boat.  VRML X is the
// hull's X, VRML Y its Z (height), VRML Z its Y (breadth); metres.
#pragma once

#include "export/export_flow.h"
#include "export/text_sink.h"
#include "hull/hull_store.h"

namespace tolmar {

// The whole file.  The cameras stand on line 3 at point 80 and take the
// height of the last one from line 4, whatever nChines is: with fewer lines
// they read what the tables hold there.
void writeVrml(TextSink& out, const HullStore& h);

ExportFile vrmlFile(const HullStore& h);
ExportOutcome saveVrml(ExportHost& host, HullStore& h);  // VRML2

}  // namespace tolmar
