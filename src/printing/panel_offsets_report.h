// The printed "Panel offsets" / "Cotes des panneaux": for each plate a table
// to loft it onto plywood without a printer, each plate on pages of its own,
// as the other tables of the reports are set.
#pragma once

#include <string>
#include <vector>

#include "development/panel_offsets.h"
#include "printing/print_job.h"

namespace tolmar {

// Every plate of `offsets`, from a new page each, then EndDoc.
void printPanelOffsets(PrintJob& job, const std::vector<PanelOffsets>& offsets);

// The print entry: the plates named in `plates` (as choosePlates takes
// them), with none every plate and end plate of the hull but the decks, at
// the step of stepMm.
void fmenu_P_Panels(PrintJob& job, double stepMm = 100,
                    const std::vector<std::string>& plates = {});

}  // namespace tolmar
