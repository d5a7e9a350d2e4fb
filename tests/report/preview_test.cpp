// The print preview: pages, scrolling, side panel, printing.

#include <gtest/gtest.h>

#include <algorithm>

#include "foundation/version.h"
#include "report/page_bands.h"
#include "report/page_files.h"
#include "report/reporting.h"
#include "support/errors.h"
#include "support/full_disk.h"
#include "support/table.h"

namespace report {
namespace {

using support::Row;

struct Preview : ReportingTest {
  Preview() {
    Make(foundation::DateFromParts(2011, 1, 30), foundation::DateFromParts(2011, 3, 2));
    preview.Form_Load();
  }

  int Page() const { return preview.cmbPage.items->ListIndex(); }
  void Resize(float width, float height) {
    preview.scaleWidth = width;
    preview.scaleHeight = height;
    preview.Form_Resize();
  }
  auto PagesPrinted() const { return std::ranges::count(printer.calls, "NewPage"); }
};

TEST_F(Preview, ShowsPagesFromTheirFiles) {
  EXPECT_EQ(Page(), 0);
  ASSERT_NE(preview.PIC.picture, nullptr);
  // Two dots at 96 to the inch, as they were rendered.
  EXPECT_NEAR(preview.PIC.picture->width, 30, 0.1);
  const auto& dots = std::get<forms::Dots>(preview.PIC.picture->items.at(0));
  EXPECT_EQ(dots.raster->rgb, (std::vector<std::uint8_t>{255, 0, 0, 1, 2, 3}));

  preview.cmdBack.onClick();
  EXPECT_EQ(Page(), 0);
  for (int i = 0; i < 5; ++i) preview.cmdNext.onClick();
  EXPECT_EQ(Page(), 2);
  Select(preview.lstPage, 1);
  EXPECT_EQ(Page(), 1);
  const auto enter = [&](const char* text) {
    preview.txtPage.caption = text;
    preview.cmdGO.onClick();
    return Page();
  };
  ExpectRows(enter, Row("0", 0), Row("99", 2), Row("-4", 0), Row("1", 1));
  preview.lstPage.onHover(2);
  EXPECT_EQ(preview.lstPage.toolTip, "3: Durvela March 2011 ..P3");
  preview.lstPage.onHover(3);
  EXPECT_EQ(preview.lstPage.toolTip, "");
}

TEST_F(Preview, ReadsThePageNumberBehindTheFirstP) {
  std::int16_t number = 7;
  preview.ShowPage(number, kCachePage, "Durvela April 2011 ..P2", false);
  EXPECT_EQ(number, 2);
  EXPECT_ERROR(FileNotFound, preview.ShowPage(number, kCachePage, "Page ..P2", false));
  EXPECT_EQ(number, 0);
  folder.Write("temp/prv3.tmp", "no bitmap");
  EXPECT_ERROR(InvalidCall, Select(preview.cmbPage, 2));
}

TEST_F(Preview, LaysItselfOutAndScrolls) {
  Resize(9000, 6000);
  EXPECT_EQ(preview.picPage.place.left, preview.picLeft.place.width + 200);
  EXPECT_EQ(preview.VScroll1.scroll.maximum,
            static_cast<int>(10230 - preview.picPage.place.height));
  EXPECT_NEAR(preview.VScroll1.scroll.largeChange, 0.5 * preview.VScroll1.scroll.maximum, 0.5);
  forms::KeyPress down = {forms::Key::Down}, up = {forms::Key::Up};
  preview.Form_KeyDown(down);
  EXPECT_EQ(preview.PIC.place.top, -1000);
  for (int i = 0; i < 9; ++i) preview.Form_KeyDown(down);
  EXPECT_EQ(preview.VScroll1.scroll.value, preview.VScroll1.scroll.maximum);
  for (int i = 0; i < 20; ++i) preview.Form_KeyDown(up);
  EXPECT_EQ(preview.PIC.place.top, 0);

  preview.PIC.onMouseDown({500, 500});
  preview.PIC.onMouseMove({400, 300});
  EXPECT_EQ(std::tuple(preview.PIC.place.left, preview.PIC.place.top), std::tuple(-100, -200));
  EXPECT_TRUE(preview.PIC.grabCursor);
  preview.PIC.onMouseUp({400, 300});
  EXPECT_EQ(preview.VScroll1.scroll.value, 200);
  preview.PIC.onMouseMove({0, 0});
  EXPECT_EQ(preview.PIC.place.top, -200);

  Resize(20000, 20000);
  EXPECT_FALSE(preview.VScroll1.enabled);
  EXPECT_EQ(preview.PIC.place.top, 0);
}

TEST_F(Preview, SlidesItsPanelInAndOut) {
  const float open = preview.picLeft.place.width;
  preview.activeControl = &preview.cmdHide;
  preview.cmdHide.onClick();
  EXPECT_TRUE(preview.cmdShow.visible);
  EXPECT_EQ(preview.activeControl, &preview.cmdShow);
  EXPECT_FALSE(preview.lstPage.tabStop);
  int ticks = 0;
  for (; preview.Timer1.enabled && ticks < 100; ++ticks) preview.Timer1.onTimer();
  EXPECT_GT(ticks, 10);
  EXPECT_LE(preview.picLeft.place.width, preview.cmdHide.place.width);
  EXPECT_EQ(preview.picPage.place.left, preview.picLeft.place.width + 200);
  preview.cmdShow.onClick();
  preview.cmdHide.onClick();
  EXPECT_FALSE(preview.Timer2.enabled);
  preview.cmdShow.onClick();
  EXPECT_FALSE(preview.Timer1.enabled);
  while (preview.Timer2.enabled) preview.Timer2.onTimer();
  EXPECT_GE(preview.picLeft.place.width, open);
  EXPECT_EQ(preview.cmdHide.place.left, preview.picLeft.place.width - preview.cmdHide.place.width);
}

TEST_F(Preview, PrintsAllPages) {
  preview.cmdPrint.onClick();
  std::string calls;
  for (const std::string& call : printer.calls) {
    const bool paints = call.starts_with("PaintPicture 0 0 ");  // and then the picture's size
    calls += (paints ? call.substr(0, 17) : call) + "|";
  }
  EXPECT_EQ(calls,
            "AskUser|Orientation 1|Print 0 0 |PaintPicture 0 0 |NewPage|PaintPicture 0 0 |"
            "NewPage|PaintPicture 0 0 |NewPage|EndDoc|");
  preview.AddPage(kCachePage, "Durvela again ..P1");
  preview.cmdPrint.onClick();
  EXPECT_EQ(PagesPrinted(), 3 + 4);
}

TEST_F(Preview, AsksWhetherToGoOnAfterAFailure) {
  folder.Write("temp/prv2.tmp", "no bitmap");
  boxes.answer = foundation::MessageAnswer::Yes;
  preview.cmdPrint.onClick();
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_EQ(boxes.shown[0].text,
            "Invalid procedure call or argument. Do you want to continue with the next page?");
  EXPECT_EQ(PagesPrinted(), 3);
  boxes.answer = foundation::MessageAnswer::No;
  printer.calls.clear();
  printer.cancelled = true;
  preview.cmdPrint.onClick();
  EXPECT_EQ(boxes.shown[1].text,
            "Cancel was selected. Do you want to continue with the next page?");
  EXPECT_EQ(printer.calls, (std::vector<std::string>{"AskUser", "EndDoc"}));
}

TEST_F(Preview, PrintsThePageThatItShows) {
  preview.PIC.place.width = 21001;
  preview.cmdPrintPage.onClick();
  EXPECT_EQ(printer.calls.front(), "Orientation 2");
  EXPECT_EQ(printer.calls.back(), "EndDoc");
  folder.Write("temp/prv1.tmp", "no bitmap");
  preview.cmdPrintPage.onClick();
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_EQ(boxes.shown[0].text, "Printing Cancelled: Invalid procedure call or argument");
}

TEST_F(Preview, TakesTheDirectPathForOtherPages) {
  settings.SaveSetting(foundation::kProgramName, "Setting", "company", "Company");
  session.Current().PersonName = "Person";
  for (const std::int16_t page : {std::int16_t{0}, std::int16_t{1}}) {
    host.target.calls.clear();
    std::int16_t number = page;
    preview.ShowPage(number, "chart", "Chart", false);
    const auto printed = Printed();
    EXPECT_EQ(printed.front(), page == 0 ? "Print 300 120 Person" : "Print 300 15315 Company");
    EXPECT_EQ(printed.back(), "Print 10400 15600 " + std::to_string(page));
  }
  frmFooter footer(settings, 0);
  footer.lblCompany.place.width = 1000;
  footer.Form_Resize();
  EXPECT_EQ(footer.lblTag.place.left, footer.lblCompany.place.left + 1050);
  EXPECT_ERROR(NoSuchMember, preview.SendToPrint(footer));
}

// The file of a former page is still there under the name of one that could not be written.
TEST_F(Preview, ShowsNoFormerPageInstead) {
  rasteriser.dots = {};
  preview.CreateTMPfile(1, preview.PIC);
  std::int16_t number = 1;
  EXPECT_ERROR(FileAccess, preview.ShowPage(number, kCachePage, "May ..P1", false));
}

using PageFiles = ReportingTest;

TEST_F(PageFiles, StaySilentWhereTheyCannotBeWritten) {
  folder.Write("temp", "a file in the folder's place");
  forms::Control box;
  preview.CreateTMPfile(1, box);
  preview.KillAllTmpFile();
  EXPECT_ERROR(FileNotFound, LoadPage(1));

  std::filesystem::remove(folder.path / "temp");
  {
    const support::FullDiskScope full(58);
    preview.CreateTMPfile(1, box);
  }
  EXPECT_ERROR(InvalidCall, LoadPage(1));  // it is there in part
}

TEST_F(PageFiles, AreSharedByTwoPrograms) {
  Make(foundation::DateFromParts(2011, 1, 31), foundation::DateFromParts(2011, 2, 1));
  frmSPkun other(services);
  other.RESET();
  rasteriser.dots.rgb = {4, 5, 6, 7, 8, 9};
  other.CreateTMPfile(1, other.PIC);
  preview.cmbPage.onClick();
  const auto& dots = std::get<forms::Dots>(preview.PIC.picture->items.at(0));
  EXPECT_EQ(dots.raster->rgb, rasteriser.dots.rgb);
  EXPECT_ERROR(FileNotFound, Select(preview.cmbPage, 1));
}

}  // namespace
}  // namespace report
