// Header and footer of pages drawn directly, and their layout.
#pragma once

#include "forms/drawing_target.h"
#include "forms/form.h"
#include "foundation/session.h"
#include "foundation/settings.h"

namespace screens {

class frmHeader : public forms::Form {
 public:
  // Shows the person, moment and place of the current record.
  explicit frmHeader(const foundation::SessionTable& session);

  CONTROL(Label, lblName, {.place = {300, 120, 6000, 300}, .font = {.size = 12, .bold = true}});
  CONTROL(Label, lblDOB, {.place = {300, 480, 10000, 240}, .font = {.size = 9}});
};

class frmFooter : public forms::Form {
 public:
  // Shows "company", "tag" and "address" from the settings section "Setting".
  frmFooter(foundation::Settings& settings, std::int32_t language);

  CONTROL(Label, lblCompany, {.place = {300, 60, 2400, 240}, .font = {.size = 9, .bold = true}});
  CONTROL(Label, lblTag, {.place = {2750, 60, 3000, 240}, .font = {.size = 9}});
  CONTROL(Label, lblAddress, {.place = {300, 330, 9000, 240}, .font = {.size = 8.25F}});
  CONTROL(Label, lblProduct, {.place = {9600, 60, 1500, 240}, .font = {.size = 8.25F}});

  void Form_Resize() override { lblCompany_Change(); }
  void lblCompany_Change();  // moves the tag
};

class frmPrintLayout : public forms::Form {
 public:
  frmPrintLayout() : Form("frmPrintLayout", "", 11250, 16155) {}

  CONTROL(PictureBox, picHead, {.place = {0, 0, 11250, 900}});
  CONTROL(PictureBox, picFoot, {.place = {0, 15255, 11250, 900}});
  CONTROL(Label, lblCurrentPageNum, {.place = {11000, 15600, 600, 240}});
};

class frmPrintLayoutDesi : public forms::Form {
 public:
  frmPrintLayoutDesi() : Form("frmPrintLayoutDesi", "", 13635, 10230) {}

  CONTROL(PictureBox, PIC, {.place = {0, 0, 13635, 10230}});
  CONTROL(Label, lblCurrentPageNum, {.place = {13300, 9780, 600, 240}});
};

// Draws the header on page 0 only, the footer on every page.
void DrawBands(const frmPrintLayout& layout, int PageNum, const foundation::SessionTable& session,
               foundation::Settings& settings, forms::DrawingTarget& target);

}  // namespace screens
