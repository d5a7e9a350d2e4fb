// The print preview: pages, scrolling, side panel, printing.

#include <gtest/gtest.h>

#include <algorithm>

#include "foundation/version.h"
#include "report/page_bands.h"
#include "report/page_files.h"
#include "report/reporting.h"
#include "support/errors.h"
#include "support/full_disk.h"

namespace report {
namespace {

class Preview : public testing::Test {
 protected:
  Preview() {
    reporting_.Make(foundation::DateFromParts(2011, 1, 30), foundation::DateFromParts(2011, 3, 2));
    preview_.Form_Load();
  }

  auto PagesPrinted() const { return std::ranges::count(reporting_.printer.calls, "NewPage"); }

  Reporting reporting_;
  frmSPkun& preview_ = reporting_.preview;
};

TEST_F(Preview, ShowsPagesFromTheirFiles) {
  EXPECT_EQ(preview_.cmbPage.items->ListIndex(), 0);
  ASSERT_NE(preview_.PIC.picture, nullptr);
  // Two dots at 96 to the inch, as they were rendered.
  EXPECT_NEAR(preview_.PIC.picture->width, 30, 0.1);
  const auto& dots = std::get<forms::Dots>(preview_.PIC.picture->items.at(0));
  EXPECT_EQ(dots.raster->rgb, (std::vector<std::uint8_t>{255, 0, 0, 1, 2, 3}));

  preview_.cmdBack.onClick();
  EXPECT_EQ(preview_.cmbPage.items->ListIndex(), 0);
  for (int i = 0; i < 5; ++i) preview_.cmdNext.onClick();
  EXPECT_EQ(preview_.cmbPage.items->ListIndex(), 2);
  Select(preview_.lstPage, 1);
  EXPECT_EQ(preview_.cmbPage.items->ListIndex(), 1);
  const std::pair<const char*, int> entered[] = {{"0", 0}, {"99", 2}, {"-4", 0}, {"1", 1}};
  for (const auto& [text, index] : entered) {
    preview_.txtPage.caption = text;
    preview_.cmdGO.onClick();
    EXPECT_EQ(preview_.cmbPage.items->ListIndex(), index) << text;
  }
  preview_.lstPage.onHover(2);
  EXPECT_EQ(preview_.lstPage.toolTip, "3: Durvela March 2011 ..P3");
  preview_.lstPage.onHover(3);
  EXPECT_EQ(preview_.lstPage.toolTip, "");
}

TEST_F(Preview, ReadsThePageNumberBehindTheFirstP) {
  std::int16_t number = 7;
  preview_.ShowPage(number, kCachePage, "Durvela April 2011 ..P2", false);
  EXPECT_EQ(number, 2);
  EXPECT_ERROR(FileNotFound, preview_.ShowPage(number, kCachePage, "Page ..P2", false));
  EXPECT_EQ(number, 0);
  reporting_.folder.Write("temp/prv3.tmp", "no bitmap");
  EXPECT_ERROR(InvalidCall, Select(preview_.cmbPage, 2));
}

TEST_F(Preview, LaysItselfOutAndScrolls) {
  preview_.scaleWidth = 9000;
  preview_.scaleHeight = 6000;
  preview_.Form_Resize();
  EXPECT_EQ(preview_.picPage.place.left, preview_.picLeft.place.width + 200);
  EXPECT_EQ(preview_.VScroll1.scroll.maximum,
            static_cast<int>(10230 - preview_.picPage.place.height));
  EXPECT_NEAR(preview_.VScroll1.scroll.largeChange, 0.5 * preview_.VScroll1.scroll.maximum, 0.5);
  forms::KeyPress down = {forms::Key::Down}, up = {forms::Key::Up};
  preview_.Form_KeyDown(down);
  EXPECT_EQ(preview_.PIC.place.top, -1000);
  for (int i = 0; i < 9; ++i) preview_.Form_KeyDown(down);
  EXPECT_EQ(preview_.VScroll1.scroll.value, preview_.VScroll1.scroll.maximum);
  for (int i = 0; i < 20; ++i) preview_.Form_KeyDown(up);
  EXPECT_EQ(preview_.PIC.place.top, 0);

  preview_.PIC.onMouseDown({500, 500});
  preview_.PIC.onMouseMove({400, 300});
  EXPECT_EQ(preview_.PIC.place.top, -200);
  EXPECT_EQ(preview_.PIC.place.left, -100);
  EXPECT_TRUE(preview_.PIC.grabCursor);
  preview_.PIC.onMouseUp({400, 300});
  EXPECT_EQ(preview_.VScroll1.scroll.value, 200);
  preview_.PIC.onMouseMove({0, 0});
  EXPECT_EQ(preview_.PIC.place.top, -200);

  preview_.scaleWidth = preview_.scaleHeight = 20000;
  preview_.Form_Resize();
  EXPECT_FALSE(preview_.VScroll1.enabled);
  EXPECT_EQ(preview_.PIC.place.top, 0);
}

TEST_F(Preview, SlidesItsPanelInAndOut) {
  const float open = preview_.picLeft.place.width;
  preview_.activeControl = &preview_.cmdHide;
  preview_.cmdHide.onClick();
  EXPECT_TRUE(preview_.cmdShow.visible);
  EXPECT_EQ(preview_.activeControl, &preview_.cmdShow);
  EXPECT_FALSE(preview_.lstPage.tabStop);
  int ticks = 0;
  for (; preview_.Timer1.enabled && ticks < 100; ++ticks) preview_.Timer1.onTimer();
  EXPECT_GT(ticks, 10);
  EXPECT_LE(preview_.picLeft.place.width, preview_.cmdHide.place.width);
  EXPECT_EQ(preview_.picPage.place.left, preview_.picLeft.place.width + 200);
  preview_.cmdShow.onClick();
  preview_.cmdHide.onClick();
  EXPECT_FALSE(preview_.Timer2.enabled);
  preview_.cmdShow.onClick();
  EXPECT_FALSE(preview_.Timer1.enabled);
  while (preview_.Timer2.enabled) preview_.Timer2.onTimer();
  EXPECT_GE(preview_.picLeft.place.width, open);
  EXPECT_EQ(preview_.cmdHide.place.left,
            preview_.picLeft.place.width - preview_.cmdHide.place.width);
}

TEST_F(Preview, PrintsAllPages) {
  preview_.cmdPrint.onClick();
  std::string calls;
  for (const std::string& call : reporting_.printer.calls) {
    const bool paints = call.starts_with("PaintPicture 0 0 ");  // and then the picture's size
    calls += (paints ? call.substr(0, 17) : call) + "|";
  }
  EXPECT_EQ(calls,
            "AskUser|Orientation 1|Print 0 0 |PaintPicture 0 0 |NewPage|PaintPicture 0 0 |"
            "NewPage|PaintPicture 0 0 |NewPage|EndDoc|");
}

TEST_F(Preview, PrintsNoMorePagesThanThereAre) {
  preview_.AddPage(kCachePage, "Durvela again ..P1");
  preview_.cmdPrint.onClick();
  EXPECT_EQ(PagesPrinted(), 4);
}

TEST_F(Preview, AsksWhetherToGoOnAfterAFailure) {
  reporting_.folder.Write("temp/prv2.tmp", "no bitmap");
  reporting_.boxes.answer = foundation::MessageAnswer::Yes;
  preview_.cmdPrint.onClick();
  ASSERT_EQ(reporting_.boxes.shown.size(), 1U);
  EXPECT_EQ(reporting_.boxes.shown[0].text,
            "Invalid procedure call or argument. Do you want to continue with the next page?");
  EXPECT_EQ(PagesPrinted(), 3);
  reporting_.boxes.answer = foundation::MessageAnswer::No;
  reporting_.printer.calls.clear();
  reporting_.printer.cancelled = true;
  preview_.cmdPrint.onClick();
  EXPECT_EQ(reporting_.boxes.shown[1].text,
            "Cancel was selected. Do you want to continue with the next page?");
  EXPECT_EQ(reporting_.printer.calls, (std::vector<std::string>{"AskUser", "EndDoc"}));
}

TEST_F(Preview, PrintsThePageThatItShows) {
  preview_.PIC.place.width = 21001;
  preview_.cmdPrintPage.onClick();
  EXPECT_EQ(reporting_.printer.calls.front(), "Orientation 2");
  EXPECT_EQ(reporting_.printer.calls.back(), "EndDoc");
  reporting_.folder.Write("temp/prv1.tmp", "no bitmap");
  preview_.cmdPrintPage.onClick();
  ASSERT_EQ(reporting_.boxes.shown.size(), 1U);
  EXPECT_EQ(reporting_.boxes.shown[0].text,
            "Printing Cancelled: Invalid procedure call or argument");
}

TEST_F(Preview, TakesTheDirectPathForOtherPages) {
  reporting_.settings.SaveSetting(foundation::kProgramName, "Setting", "company", "Company");
  reporting_.session.Current().PersonName = "Person";
  for (const std::int16_t page : {std::int16_t{0}, std::int16_t{1}}) {
    reporting_.host.target.calls.clear();
    std::int16_t number = page;
    preview_.ShowPage(number, "chart", "Chart", false);
    const auto printed = reporting_.Printed();
    EXPECT_EQ(printed.front(), page == 0 ? "Print 300 120 Person" : "Print 300 15315 Company");
    EXPECT_EQ(printed.back(), "Print 10400 15600 " + std::to_string(page));
  }
  frmFooter footer(reporting_.settings, 0);
  footer.lblCompany.place.width = 1000;
  footer.Form_Resize();
  EXPECT_EQ(footer.lblTag.place.left, footer.lblCompany.place.left + 1050);
  EXPECT_ERROR(NoSuchMember, preview_.SendToPrint(footer));
}

TEST(PageFiles, StaySilentWhereTheyCannotBeWritten) {
  Reporting reporting;
  reporting.folder.Write("temp", "a file in the folder's place");
  forms::Control box;
  reporting.preview.CreateTMPfile(1, box);
  reporting.preview.KillAllTmpFile();
  EXPECT_ERROR(FileNotFound, LoadPage(1));

  std::filesystem::remove(reporting.folder.path / "temp");
  {
    const support::FullDiskScope full(58);
    reporting.preview.CreateTMPfile(1, box);
  }
  EXPECT_ERROR(InvalidCall, LoadPage(1));  // it is there in part
}

}  // namespace
}  // namespace report
