// The print preview: pages, scrolling, side panel, printing.

#include "foundation/version.h"
#include "report/page_files.h"
#include "screens/previewing.h"
#include "support/test.h"

namespace screens {
namespace {

using foundation::DateFromParts;
using Texts = std::vector<std::string>;

struct PageFiles
    : testing::Test,
      PreviewingWith<support::FakeHost, support::FakeRasteriser, support::RecordingTarget> {};

// Three pages.
struct Preview : PageFiles {
  Preview() {
    Make(DateFromParts(2011, 1, 30), DateFromParts(2011, 3, 2));
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

// At each yield and at the end: the status, how many pages are listed and how often one was
// cleared, what the host did last, and whether the panel closes.
TEST_F(Preview, IsFilledAndShownStepByStep) {
  Texts steps;
  yielder.between = [&](int) {
    steps.push_back(status.caption + ", " + std::to_string(preview.cmbPage.items->ListCount()) +
                    ", " + std::to_string(host.target.After("Cls").size()) + ", " +
                    host.calls.back() + (preview.Timer1.enabled ? ", closing" : ""));
    EXPECT_EQ(std::tuple(preview.PIC.place.width, preview.city), std::tuple(13635, "Delhi"));
  };
  preview.PIC.place.width = 0;
  host.target.calls.clear();
  Make(DateFromParts(2011, 1, 31), DateFromParts(2011, 2, 1));
  yielder.Yield();
  EXPECT_EQ(steps, (Texts{"Loading.. 1 February 2011, 0, 0, Unload frmSPkun",
                          "Loading.. 2 February 2011, 1, 1, Unload frmSPkun",
                          ", 2, 2, Show frmSPkun", ", 2, 3, Show frmSPkun, closing"}));
}

TEST_F(Preview, ShowsPagesFromTheirFiles) {
  EXPECT_NEAR(preview.PIC.picture->width, 30, 0.1);  // two pixels at 96 per inch
  const auto press = [&](forms::Control* button, const char* number) {
    preview.txtPage.caption = number;
    button->onClick();
    EXPECT_EQ(preview.lstPage.items->ListIndex(), preview.cmbPage.items->ListIndex());
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

// Even if it belongs to the name of a month: "Pebrero" is February in Filipino.
TEST_F(Preview, ReadsThePageNumberAfterTheFirstP) {
  std::int16_t number = 7;
  preview.ShowPage(number, kCachePage, "Durvela April 2011 ..P2", false);
  EXPECT_EQ(number, 2);
  EXPECT_ERROR(FileNotFound,
               preview.ShowPage(number, kCachePage, "Durvela Pebrero 2011 ..P2", false));
  EXPECT_EQ(number, 0);
}

TEST_F(Preview, ScrollsByKeysWheelAndDragging) {
  preview.scaleHeight = preview.scaleWidth = 9000;
  preview.Form_Resize();
  const forms::Place& page = preview.PIC.place;
  const int distance = static_cast<int>(page.height - preview.picPage.place.height);
  EXPECT_FALSE(preview.lblProduct.visible);  // it would cover the buttons
  EXPECT_GT(preview.minimumWidth, preview.cmdPrint.place.left + preview.cmdPrint.place.width);
  EXPECT_NEAR(preview.VScroll1.scroll.largeChange, 0.5 * distance, 0.5);
  const forms::Place& frame = preview.picPage.place;  // which no bar covers
  EXPECT_LE(frame.top + frame.height, preview.HScroll1.place.top);
  EXPECT_LE(frame.left + frame.width, preview.VScroll1.place.left);
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

  const auto drag = [&](bool shift) {
    preview.PIC.onMouseDown({{500, 500}, shift});
    preview.PIC.onMouseMove({400, 300});
    return std::tuple(page.left, page.top, preview.PIC.grabCursor);
  };
  EXPECT_EQ(drag(false), std::tuple(-100, -200, true));
  preview.PIC.onMouseUp({400, 300});
  EXPECT_EQ(preview.VScroll1.scroll.value, 200);
  EXPECT_EQ(drag(true), std::tuple(-100, -200, false));
  preview.PIC.onMouseDown({500, 500});
  preview.PIC.onMouseMove({{300, 100}, true});
  preview.PIC.onMouseUp({300, 100});
  EXPECT_EQ(std::tuple(page.left, page.top), std::tuple(-100, -200));
  preview.cmdNext.onClick();  // begins at its top left
  EXPECT_EQ(std::tuple(page.left, page.top), std::tuple(0, 0));

  preview.Form_Load();  // makes the window tall enough for the page
  EXPECT_EQ(std::tuple(preview.VScroll1.enabled, page.top), std::tuple(false, 0));
}

TEST_F(Preview, SlidesItsPanelInAndOut) {
  const forms::Place &panel = preview.picLeft.place, &button = preview.cmdHide.place;
  const auto slide = [](const forms::Control& timer) {
    for (int i = 0; i < 100 && timer.enabled; ++i) timer.onTimer();
  };
  for (forms::Control* gone : {&preview.lstPage, &preview.cmdHide}) {
    preview.activeControl = gone;
    preview.cmdHide.onClick();
    EXPECT_EQ(std::tuple(preview.cmdShow.visible, preview.activeControl, preview.lstPage.tabStop),
              std::tuple(true, &preview.cmdShow, false));
  }
  slide(preview.Timer1);
  EXPECT_EQ(std::tuple(panel.width, preview.cmdShow.place.left, preview.lstPage.visible),
            std::tuple(button.width, 0, false));
  EXPECT_EQ(preview.picPage.place.left, panel.width + 200);

  preview.cmdShow.onClick();
  preview.cmdHide.onClick();
  EXPECT_FALSE(preview.Timer2.enabled);
  preview.cmdShow.onClick();
  EXPECT_FALSE(preview.Timer1.enabled);
  slide(preview.Timer2);
  EXPECT_EQ(std::tuple(panel.width, button.left, preview.lstPage.visible),
            std::tuple(preview.lstPage.place.width, panel.width - button.width, true));
}

TEST_F(Preview, PrintsAllPagesOrTheShownOne) {
  EXPECT_EQ(Print(preview.cmdPrint),
            "DocumentName Durvela January 2011 to March 2011, Delhi|"
            "AskUser|Orientation 1|Print 0 0 |page|NewPage|page|NewPage|page|NewPage|EndDoc|");
  EXPECT_EQ(preview.lblProduct.caption, "3 pages printed");
  preview.PIC.place.width = 21001;
  EXPECT_EQ(Print(preview.cmdPrintPage),
            "DocumentName Durvela January 2011, Delhi|Orientation 2|Print 0 240 |page|EndDoc|");
  EXPECT_EQ(preview.lblProduct.caption, "1 page printed");
  preview.AddPage(kCachePage, "Durvela again ..P1");  // goes back, but stops after four pages
  Print(preview.cmdPrint);
  EXPECT_EQ(printer.calls.size(), 4 + 4 * 2 + 1U);
}

TEST_F(Preview, ReportsPrintingErrors) {
  const std::string name = "DocumentName Durvela January 2011 to March 2011, Delhi|";
  folder.Write("temp/prv1.tmp", "no bitmap");
  EXPECT_TRUE(Print(preview.cmdPrintPage).ends_with("Print 0 0 |EndDoc|"));
  boxes.answer = foundation::MessageAnswer::Yes;
  EXPECT_EQ(Print(preview.cmdPrint),
            name + "AskUser|Orientation 1|Print 0 240 |NewPage|page|NewPage|page|NewPage|EndDoc|");
  EXPECT_EQ(preview.lblProduct.caption, "A page for each month");  // not all are printed
  boxes.answer = foundation::MessageAnswer::No;
  printer.cancelled = true;
  EXPECT_EQ(Print(preview.cmdPrint), name + "AskUser|EndDoc|");

  const std::string failure = "The file " + report::PageFile(1).string() + " is not a bitmap";
  const std::string question = ". Do you want to continue with the next page?";
  Texts messages;
  for (const auto& box : boxes.shown) messages.push_back(box.text);
  EXPECT_EQ(messages, (Texts{"Printing Cancelled: " + failure, failure + question,
                             "Cancel was selected" + question}));
}

TEST_F(Preview, DrawsOtherPagesDirectly) {
  for (const auto& [key, line] : {std::pair("company", "Company"), {"tag", "Tag"}}) {
    settings.SaveSetting(foundation::kProgramName, "Setting", key, line);
  }
  session.Current().PersonName = "Person";
  host.target.calls.clear();
  for (std::int16_t page = 0; page <= 1; ++page) preview.ShowPage(page, "chart", "Chart", false);
  EXPECT_EQ(host.target.After("Print "),
            (Texts{"300 120 Person",
                   "300 480 Date: 5/3/2011  Time: 00:00:00  Place: Delhi 28.40N 77.13E 82.30E",
                   "300 15315 Company", "2750 15315 Tag", "10400 15600 0", "300 15315 Company",
                   "2750 15315 Tag", "10400 15600 1"}));
}

// The file of a page of the same number may still exist.
TEST_F(Preview, ShowsNoStalePage) {
  rasteriser.dots = {};
  preview.CreateTMPfile(1, preview.PIC);
  std::int16_t number = 0;
  EXPECT_EQ(support::FailureOf([&] { preview.ShowPage(number, kCachePage, "May ..P1", false); }),
            "The file " + report::PageFile(1).string() + " cannot be written");
}

TEST_F(PageFiles, IgnoreFailuresToWriteThem) {
  folder.Write("temp", "a file instead of the folder");
  preview.CreateTMPfile(1, preview.PIC);
  preview.KillAllTmpFile();
  EXPECT_ERROR(FileNotFound, report::LoadPage(1));
}

// Whichever program has written them.
TEST_F(PageFiles, KeepOnePerMonthUntilTheNextReport) {
  for (const char* name : {"temp/foreign.tmp", "temp/kept.txt"}) folder.Write(name, "x");
  const auto files = [&](int lastMonth) {
    Make(DateFromParts(2011, 1, 1), DateFromParts(2011, lastMonth, 28));
    return std::distance(std::filesystem::directory_iterator(folder.path / "temp"), {});
  };
  ExpectRows(files, Row(12, 13), Row(1, 2));  // one of them kept.txt
}

}  // namespace
}  // namespace screens
