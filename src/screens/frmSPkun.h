// frmSPkun, the print preview: shows the pages of a report one at a time. Reports use page files;
// forms can also be drawn directly.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "forms/form.h"
#include "screens/frmSPkun_layout.h"
#include "screens/preview_services.h"

namespace screens {

// The name of pages that come from page files.
inline constexpr std::string_view kCachePage = "cachepage";

class frmSPkun : public forms::Form {
 public:
  explicit frmSPkun(PreviewServices services);

  // The table of controls, bottom first.
  CONTROL(PictureBox, picPage, preview_layout::Desk());
  CONTROL(PictureBox, PIC, preview_layout::Page(picPage));
  CONTROL(HScrollBar, HScroll1, preview_layout::ScrollBar("Across the page", 9));
  CONTROL(VScrollBar, VScroll1, preview_layout::ScrollBar("Down the page", 10));
  CONTROL(PictureBox, picLeft, preview_layout::SidePanel());
  CONTROL(ListBox, lstPage, preview_layout::PageList(picLeft));
  CONTROL(CommandButton, cmdHide,
          preview_layout::PanelButton(picLeft, "«", "Close the list of pages", true));
  CONTROL(CommandButton, cmdShow,
          preview_layout::PanelButton(picLeft, "»", "Open the list of pages", false));
  CONTROL(PictureBox, picTOOL, preview_layout::ToolBar());
  CONTROL(CommandButton, cmdBack,
          preview_layout::ToolButton(picTOOL, 16, 44, "<<", "Show previous page", 0));
  CONTROL(ComboBox, cmbPage, preview_layout::PageSelector(picTOOL));
  CONTROL(CommandButton, cmdNext,
          preview_layout::ToolButton(picTOOL, 376, 44, ">>", "Show next page", 2));
  CONTROL(CommandButton, cmdPrintPage,
          preview_layout::ToolButton(picTOOL, 444, 136, "&Print this page",
                                     "Prints the current page on display", 3));
  CONTROL(CommandButton, cmdPrint,
          preview_layout::ToolButton(picTOOL, 588, 100, "&Print All",
                                     "Prints all the pages in preview.", 4, forms::Look::Primary));
  CONTROL(TextBox, txtPage, preview_layout::PageNumber(picTOOL));
  CONTROL(CommandButton, cmdGO,
          preview_layout::ToolButton(picTOOL, 768, 64, "&Show",
                                     "click here to jump to the page number entered", 6,
                                     forms::Look::OnEarth, false));
  CONTROL(CommandButton, cmdExport,
          preview_layout::ToolButton(picTOOL, 700, 80, "&Export",
                                     "Export pages to PDF, JPEG, BMP format and send them by email "
                                     "or other media",
                                     11, forms::Look::OnEarth, false));
  CONTROL(CommandButton, cmdOptions,
          preview_layout::ToolButton(picTOOL, 788, 80, "&Options", "", 12, forms::Look::OnEarth,
                                     false));
  CONTROL(Label, lblProduct, preview_layout::Slogan(picTOOL));
  CONTROL(Timer, Timer1, {.enabled = false, .interval = preview_layout::kSlideInterval});
  CONTROL(Timer, Timer2, {.enabled = false, .interval = preview_layout::kSlideInterval});

  std::string city;  // the report's place, for the document name

  void SendToPrint(forms::Form& myObject) { myObject.PrintForm(); }

  // Clears the lists of pages and deletes the last report's page files.
  void RESET();

  // Both draw a form directly: its image and its picture boxes on PIC, offset by X and Y twips.
  // Without an offset the image replaces what PIC shows. The first page clears PIC and sets its
  // size.
  void setPage(forms::Form& page, double X = 0, double Y = 0);
  void setPage2(forms::Form& page, double X = 0, double Y = 0);

  void KillAllTmpFile();
  // Saves the picture of a picture box as a page file; ignores failures.
  void CreateTMPfile(std::int16_t PageNum, const forms::Control& pictureBox);
  // Use kCachePage as Pname for a page file; its number follows the first "P" in the title.
  void AddPage(std::string_view Pname, std::string_view PTitle);

  void cmbPage_Click();
  void cmdback_Click();
  void cmdHide_Click();
  void cmdPrintPage_Click();

  // Shows or prints a page; for a page file, sets PageNum to the number in its title. Errors of
  // GenHoro. Errors of LoadPage, and FileAccess for a page that could not be written, leave PIC
  // empty.
  void ShowPage(std::int16_t& PageNum, std::string_view Pname, std::string_view PTitle,
                bool ToPrinter);

  void Form_Load() override;
  void Form_Resize() override;
  void Form_KeyDown(forms::KeyPress& press) override;

  void cmdNext_Click();
  void cmdShow_Click();
  void cmdGO_Click();
  void cmdPrint_Click();
  void lstPage_Click();
  void lstPage_Hover(int row);
  void VScroll1_Change();
  void HScroll1_Change();
  void PIC_MouseDown(forms::MousePoint at);
  void PIC_MouseMove(forms::MousePoint at);
  void PIC_MouseUp();
  void Timer1_Timer();  // slides the side panel shut
  void Timer2_Timer();  // and open

 private:
  const std::string& PageName(int number) const;  // from 1; Subscript outside
  const std::string& PageTitle(int number) const;
  void DrawDirectly(std::int16_t PageNum, forms::DrawingTarget& target);
  void PaintForm(forms::Form& page, double X, double Y);
  void OpenPanel(bool open);
  void ResizePanel(float width);
  void LayOut();
  void NameDocument(int first, int last);
  void SetOrientation();
  void TellPrinted(int pages);

  PreviewServices services_;
  std::vector<std::string> colPageName_, colPageTitle_;
  std::string backgroundPath_;
  bool dragging_ = false;
  int dragX_ = 0, dragY_ = 0;
  int directPages_ = 0;
  std::map<std::int16_t, std::string> words_;  // the text of each page file, for assistive programs
  std::set<std::int16_t> unwritten_;
};

}  // namespace screens
