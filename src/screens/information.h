// The pages that explain the periods, and the two that have only a title.
#pragma once

#include <string_view>
#include <vector>

#include "forms/screen_services.h"
#include "screens/period_pictures.h"
#include "screens/scaled_form.h"

namespace screens {

struct InformationPage {
  std::string_view name;   // of the form
  std::string_view title;  // of the window and the page
  int sign;                // index into MenuSigns
  std::vector<std::string_view> paragraphs;
  std::vector<PeriodKind> periods;  // shown on the sample day and by weekday; empty for no pictures
};

// A page with its pictures and an OK button; Escape closes it too.
class InformationScreen : public ScaledForm {
 public:
  InformationScreen(const InformationPage& page, forms::FormHost& host);

  void Form_KeyDown(forms::KeyPress& press) override;
  void cmdOK_Click();

 private:
  void AddPictures(const std::vector<PeriodKind>& periods);

  forms::FormHost& host_;
};

const InformationPage& WhatIsPage();
const InformationPage& CalculatePage();
const InformationPage& GulikPage();
const InformationPage& YumPage();
const InformationPage& ProductsPage();
const InformationPage& SitaraDeskPage();

}  // namespace screens
