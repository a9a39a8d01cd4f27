#pragma once

#include "store/print_choice.h"

namespace veld {

/// The paper of the user's own country.
PaperSize LocalPaper();

/// A sheet held upright, in points.
struct PaperMeasure {
  double Width;
  double Height;
};
constexpr PaperMeasure MeasureOf(PaperSize paper) {
  return paper == PaperSize::Letter ? PaperMeasure{612, 792} : PaperMeasure{595.276, 841.89};
}

}  // namespace veld
