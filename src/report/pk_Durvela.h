// pk_Durvela, a page of the report: one month, one row per day.
#pragma once

#include <array>

#include "forms/form.h"
#include "report/pk_Durvela_layout.h"

namespace report {

class pk_Durvela : public forms::Form {
 public:
  pk_Durvela();

  // The table of controls, bottom first.
  CONTROL(Label, lblHHH, page_layout::Title());
  CONTROL(Label, lblHead3, page_layout::PlaceLine());
  CONTROL(Label, Label12, page_layout::GroupHead(6315, 930, "nqosZyk "));
  CONTROL(Label, Label13, page_layout::GroupHead(8520, 1080, "xqfyd dky"));
  CONTROL(Label, Label14, page_layout::GroupHead(10770, 1260, ";e?kaVd dky"));
  CONTROL(Label, Label2, page_layout::ColumnHead(1320, "fnukad"));
  CONTROL(Label, Label3, page_layout::ColumnHead(2415, "lw;ksZn;", 990));
  CONTROL(Label, Label4, page_layout::ColumnHead(3570, "lw;kZLr", 990));
  CONTROL(Label, Label5, page_layout::ColumnHead(4605, "fnueku"));
  CONTROL(Label, Label6, page_layout::ColumnHead(5835, "izkjaHk "));
  CONTROL(Label, Label7, page_layout::ColumnHead(6990, "lekIr "));
  CONTROL(Label, Label8, page_layout::ColumnHead(8160, "izkjaHk "));
  CONTROL(Label, Label9, page_layout::ColumnHead(9375, "lekIr "));
  CONTROL(Label, Label10, page_layout::ColumnHead(10470, "izkjaHk "));
  CONTROL(Label, Label11, page_layout::ColumnHead(11685, "lekIr "));
  CONTROL_ARRAY(PictureBox, picline, page_layout::Rules());
  CONTROL(Label, Label1, page_layout::Imprint());

  CONTROL_ARRAY(Label, lblDate, page_layout::Dates());
  CONTROL_ARRAY(Label, lblSR, page_layout::Times(2250));
  CONTROL_ARRAY(Label, lblSS, page_layout::Times(3420));
  CONTROL_ARRAY(Label, lblDM, page_layout::Times(4500));
  CONTROL_ARRAY(Label, lblDurvelaIN, page_layout::Times(5730));
  CONTROL_ARRAY(Label, lblDurvelaOut, page_layout::Times(6810));
  CONTROL_ARRAY(Label, lblGulikIN, page_layout::Times(8010));
  CONTROL_ARRAY(Label, lblGulikOut, page_layout::Times(9120));
  CONTROL_ARRAY(Label, lblyumIN, page_layout::Times(10320));
  CONTROL_ARRAY(Label, lblyumOut, page_layout::Times(11460));
  CONTROL_ARRAY(Label, lblNote, page_layout::Notes());

  // The ten columns from left to right.
  std::array<forms::ControlArray*, 10> Columns();
};

}  // namespace report
