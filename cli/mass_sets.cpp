#include "mass_sets.h"

namespace tolmar::cli {

bool typeIntoMass(analysis::Mass1& m, const SetValue& v) {
  ControlArray<0, analysis::kLastMassRow>* column = v.control == "Text1"   ? &m.Text1
                                                    : v.control == "Text2" ? &m.Text2
                                                    : v.control == "Text3" ? &m.Text3
                                                    : v.control == "Text4" ? &m.Text4
                                                                           : nullptr;
  if (!column || !v.hasValue || v.index < 0 || v.index > analysis::kLastMassRow ||
      !(*column)(v.index).visible)
    return false;
  (*column)(v.index).text = v.value;
  return true;
}

}  // namespace tolmar::cli
