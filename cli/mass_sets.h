// A --set mass1.TextN(r)=VALUE typed into the mass budget's screen, as
// `hydro --mass`, `stability` and `curves` take it.
#pragma once

#include "analysis/mass_screen.h"
#include "pipeline.h"

namespace tolmar::cli {

// Types a value into Text1..Text4(row) of mass1; false for a control the
// screen does not have.
bool typeIntoMass(analysis::Mass1& m, const SetValue& v);

}  // namespace tolmar::cli
