#include "report/pk_Durvela.h"

namespace report {

// Rows start empty, except row 0, which any report of at least one day overwrites.
pk_Durvela::pk_Durvela() : Form("pk_Durvela", "", page_layout::kWidth, page_layout::kHeight) {
  backColour = forms::Rgb(0xFFFFFF);
  for (const forms::ControlArray* column : Columns()) {
    for (int row = 1; row <= column->UBound(); ++row) (*column)[row].caption.clear();
  }
}

std::array<forms::ControlArray*, 10> pk_Durvela::Columns() {
  return {&lblDate,       &lblSR,      &lblSS,       &lblDM,    &lblDurvelaIN,
          &lblDurvelaOut, &lblGulikIN, &lblGulikOut, &lblyumIN, &lblyumOut};
}

}  // namespace report
