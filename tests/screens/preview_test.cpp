// The print preview: pages, scrolling, side panel, printing.

#include <gtest/gtest.h>

#include <algorithm>

#include "foundation/version.h"
#include "report/page_files.h"
#include "screens/previewing.h"
#include "support/errors.h"
#include "support/locales.h"
#include "support/table.h"

namespace screens {
namespace {

using support::Row;

struct Preview : PreviewTest {
  Preview() {
    Make(foundation::DateFromParts(2011, 1, 30), foundation::DateFromParts(2011, 3, 2));
    preview.Form_Load();
  }

  std::string Print(forms::Control& button) {
    printer.calls.clear();
    button.onClick();
    std::string calls;
    for (const std::string& call : printer.calls) {
      calls += (call.starts_with("PaintPicture 0 0 ") ? "page" : call) + "|";
    }
    return calls;
  }
};

TEST_F(Preview, ShowsPagesFromTheirFiles) {
  EXPECT_NEAR(preview.PIC.picture->width, 30, 0.1);  // two pixels at 96 per inch
  const auto press = [&](forms::Control* button, const char* number) {
    preview.txtPage.caption = number;
    button->onClick();
    return preview.cmbPage.items->ListIndex();
  };
  auto *back = &preview.cmdBack, *next = &preview.cmdNext, *show = &preview.cmdGO;
  ExpectRows(press, Row(back, "", 0), Row(next, "", 1), Row(back, "", 0), Row(next, "", 1),
             Row(next, "", 2), Row(next, "", 2), Row(show, "0", 0), Row(show, "3", 2),
             Row(show, "-4", 0), Row(show, "1", 1));
  Select(preview.lstPage, 2);
  EXPECT_EQ(preview.cmbPage.items->ListIndex(), 2);
  preview.lstPage.onHover(2);
  EXPECT_EQ(preview.lstPage.toolTip, "3: Durvela March 2011 ..P3");
  preview.lstPage.onHover(3);
  EXPECT_EQ(preview.lstPage.toolTip, "");
}

TEST_F(Preview, ReadsThePageNumberAfterTheFirstP) {
  std::int16_t number = 7;
  preview.ShowPage(number, kCachePage, "Durvela April 2011 ..P2", false);
  EXPECT_EQ(number, 2);
  EXPECT_ERROR(FileNotFound, preview.ShowPage(number, kCachePage, "Page ..P2", false));
  EXPECT_EQ(number, 0);
}

TEST_F(Preview, FailsOnAPageWhoseMonthHasACapitalP) {
  foundation::LocaleNames names = foundation::EnglishNames();
  names.months[1] = "Pebrero";  // February in Filipino
  const support::UserNamesScope scope(names);
  Make(foundation::DateFromParts(2011, 1, 31), foundation::DateFromParts(2011, 2, 1));
  EXPECT_ERROR(FileNotFound, Select(preview.cmbPage, 1));
}

TEST_F(Preview, ScrollsByKeysWheelAndDragging) {
  preview.scaleHeight = preview.scaleWidth = 9000;
  preview.Form_Resize();
  const forms::Place& page = preview.PIC.place;
  const int distance = static_cast<int>(page.height - preview.picPage.place.height);
  EXPECT_NEAR(preview.VScroll1.scroll.largeChange, 0.5 * distance, 0.5);
  const auto press = [&](forms::Key key, int times) {
    forms::KeyPress keyPress = {key};
    for (int i = 0; i < times; ++i) preview.Form_KeyDown(keyPress);
    return page.top;
  };
  ExpectRows(press, Row(forms::Key::Down, 1, -1000), Row(forms::Key::Down, 9, -distance),
             Row(forms::Key::Up, 20, 0));

  preview.PIC.onMouseWheel(-1);
  EXPECT_NEAR(page.top, -0.1 * distance, 1);
  preview.PIC.onMouseWheel(2);
  EXPECT_EQ(page.top, 0);

  preview.PIC.onMouseDown({500, 500});
  preview.PIC.onMouseMove({400, 300});
  EXPECT_EQ(std::tuple(page.left, page.top, preview.PIC.grabCursor), std::tuple(-100, -200, true));
  preview.PIC.onMouseUp({400, 300});
  EXPECT_EQ(preview.VScroll1.scroll.value, 200);
  preview.PIC.onMouseMove({0, 0});
  EXPECT_EQ(page.top, -200);
  preview.PIC.onMouseDown({{500, 500}, true});
  preview.PIC.onMouseMove({400, 300});
  EXPECT_EQ(page.top, -200);

  preview.Form_Load();  // makes the window tall enough for the page
  EXPECT_EQ(std::tuple(preview.VScroll1.enabled, page.top), std::tuple(false, 0));
}

TEST_F(Preview, FitsItsButtonsAtItsMinimumWidth) {
  preview.scaleWidth = preview.minimumWidth;
  preview.Form_Resize();
  const forms::Place& last = preview.cmdPrint.place;
  EXPECT_LT(last.left + last.width, preview.picTOOL.place.width);
  EXPECT_FALSE(preview.lblProduct.visible);
}

TEST_F(Preview, SlidesItsPanelInAndOut) {
  const forms::Place &panel = preview.picLeft.place, &button = preview.cmdHide.place;
  preview.activeControl = &preview.cmdHide;
  preview.cmdHide.onClick();
  EXPECT_EQ(std::tuple(preview.cmdShow.visible, preview.activeControl, preview.lstPage.tabStop),
            std::tuple(true, &preview.cmdShow, false));
  for (int i = 0; i < 100 && preview.Timer1.enabled; ++i) preview.Timer1.onTimer();
  EXPECT_EQ(std::tuple(panel.width, preview.cmdShow.place.left), std::tuple(button.width, 0));
  EXPECT_FALSE(preview.lstPage.visible);
  EXPECT_EQ(preview.picPage.place.left, panel.width + 200);
  preview.cmdShow.onClick();
  preview.cmdHide.onClick();
  EXPECT_FALSE(preview.Timer2.enabled);
  preview.cmdShow.onClick();
  EXPECT_FALSE(preview.Timer1.enabled);
  for (int i = 0; i < 100 && preview.Timer2.enabled; ++i) preview.Timer2.onTimer();
  EXPECT_EQ(panel.width, preview.lstPage.place.width);
  EXPECT_TRUE(preview.lstPage.visible);
  EXPECT_EQ(button.left, panel.width - button.width);
}

TEST_F(Preview, PrintsAllPagesOrTheShownOne) {
  EXPECT_EQ(Print(preview.cmdPrint),
            "DocumentName Durvela January 2011 to March 2011, Delhi|"
            "AskUser|Orientation 1|Print 0 0 |page|NewPage|page|NewPage|page|NewPage|EndDoc|");
  preview.PIC.place.width = 21001;
  EXPECT_EQ(Print(preview.cmdPrintPage),
            "DocumentName Durvela January 2011, Delhi|Orientation 2|Print 0 240 |page|EndDoc|");
  preview.AddPage(kCachePage, "Durvela again ..P1");  // goes back, but stops after four pages
  Print(preview.cmdPrint);
  EXPECT_EQ(printer.calls.size(), 4 + 4 * 2 + 1U);
}

TEST_F(Preview, ReportsPrintingErrors) {
  const std::string name = "DocumentName Durvela January 2011 to March 2011, Delhi|";
  const std::string failure = "The file " + report::PageFile(1).string() + " is not a bitmap";
  folder.Write("temp/prv1.tmp", "no bitmap");
  EXPECT_TRUE(Print(preview.cmdPrintPage).ends_with("Print 0 0 |EndDoc|"));
  boxes.answer = foundation::MessageAnswer::Yes;
  EXPECT_EQ(Print(preview.cmdPrint),
            name + "AskUser|Orientation 1|Print 0 240 |NewPage|page|NewPage|page|NewPage|EndDoc|");
  boxes.answer = foundation::MessageAnswer::No;
  printer.cancelled = true;
  EXPECT_EQ(Print(preview.cmdPrint), name + "AskUser|EndDoc|");
  std::string messages;
  for (const auto& box : boxes.shown) messages += box.text + "\n";
  EXPECT_EQ(messages, "Printing Cancelled: " + failure + "\n" + failure +
                          ". Do you want to continue with the next page?\n"
                          "Cancel was selected. Do you want to continue with the next page?\n");
}

TEST_F(Preview, DrawsOtherPagesDirectly) {
  settings.SaveSetting(foundation::kProgramName, "Setting", "company", "Company");
  settings.SaveSetting(foundation::kProgramName, "Setting", "tag", "Tag");
  session.Current().PersonName = "Person";
  host.target.calls.clear();
  for (std::int16_t page : {std::int16_t{0}, std::int16_t{1}}) {
    preview.ShowPage(page, "chart", "Chart", false);
  }
  std::string printed;
  for (const std::string& call : host.target.calls) {
    if (call.starts_with("Print ")) printed += call.substr(6) + "|";
  }
  EXPECT_EQ(printed,
            "300 120 Person|"
            "300 480 Date: 5/3/2011  Time: 00:00:00  Place: Delhi 28.40N 77.13E 82.30E|"
            "300 15315 Company|2750 15315 Tag|10400 15600 0|"
            "300 15315 Company|2750 15315 Tag|10400 15600 1|");
}

// What the user could see of a report with a page for each of two days, in order.
TEST_F(PreviewTest, IsFilledAndShownStepByStep) {
  std::vector<std::string> steps;
  const auto note = [&](const std::string& state) {
    steps.push_back(state + ", " + std::to_string(preview.cmbPage.items->ListCount()) + ", " +
                    std::to_string(std::ranges::count(host.target.calls, "Cls")) + ", " +
                    host.calls.back());
  };
  yielder.between = [&](int) {
    note(status.caption);
    EXPECT_EQ(preview.PIC.place.width, 13635);
    EXPECT_EQ(preview.city, "Delhi");
    EXPECT_TRUE(preview.cmdHide.visible);
  };
  preview.AddPage(kCachePage, "of an earlier report");
  Make(foundation::DateFromParts(2011, 1, 31), foundation::DateFromParts(2011, 2, 1));
  note("done");
  EXPECT_EQ(steps,
            (std::vector<std::string>{"Loading.. 1 February 2011, 0, 0, Unload frmSPkun",
                                      "Loading.. 2 February 2011, 1, 1, Unload frmSPkun",
                                      ", 2, 2, Show frmSPkun", "done, 2, 3, Show frmSPkun"}));
  EXPECT_TRUE(preview.Timer1.enabled);  // closes the panel
  EXPECT_EQ(preview.cmbPage.items->ListIndex(), 0);
}

// A page that could not be written may leave an older page's file under its name.
TEST_F(Preview, ShowsNoStalePage) {
  rasteriser.dots = {};
  preview.CreateTMPfile(1, preview.PIC);
  std::int16_t number = 1;
  EXPECT_EQ(support::FailureOf([&] { preview.ShowPage(number, kCachePage, "May ..P1", false); }),
            "The file " + report::PageFile(1).string() + " cannot be written");
}

using PageFiles = PreviewTest;

TEST_F(PageFiles, IgnoreFailuresToWriteThem) {
  folder.Write("temp", "a file instead of the folder");
  preview.CreateTMPfile(1, preview.PIC);
  preview.KillAllTmpFile();
  EXPECT_ERROR(FileNotFound, report::LoadPage(1));
}

TEST_F(PageFiles, KeepOnePerMonthUntilTheNextReport) {
  const auto files = [&] {
    return std::distance(std::filesystem::directory_iterator(folder.path / "temp"), {});
  };
  for (const char* name : {"temp/foreign.tmp", "temp/kept.txt"}) folder.Write(name, "x");
  Make(foundation::DateFromParts(2011, 1, 1), foundation::DateFromParts(2011, 12, 31));
  EXPECT_EQ(files(), 13);  // one of them kept.txt
  EXPECT_EQ(host.calls, (std::vector<std::string>{"Unload frmSPkun", "Show frmSPkun"}));
  Make(foundation::DateFromParts(2011, 3, 5), foundation::DateFromParts(2011, 3, 5));
  EXPECT_EQ(files(), 2);
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
}  // namespace screens
