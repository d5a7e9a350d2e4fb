// The page of a report in pixels, initially of 15 twips each.

#include <gtest/gtest.h>

#include "report/page_files.h"
#include "screens/qt/whole_program.h"
#include "support/app_folder.h"

namespace screens::qt {
namespace {

struct DrawnPage : testing::Test, WholeProgram {
  // Makes the pages of some months of 2011.
  void Report(int first, int last, const char* place = "Delhi") {
    frmDurvela& timetable = program.Timetable();
    program.host.WindowOf(timetable);
    timetable.lblCity.caption = place;
    timetable.DT1.moment = foundation::DateFromParts(2011, first, 1);
    timetable.DT2.moment = foundation::DateFromParts(2011, last + 1, 0);
    timetable.cmdPreview_Click();
  }

  support::AppFolderScope folder;
};

QImage Page(int number) {
  return ImageOf(*DotsOf(*report::LoadPage(static_cast<std::int16_t>(number)))).copy();
}

// Bounds the pixels in a box that are darker than a grey: anything not quite white, or ink.
constexpr int kAnything = 230, kInk = 128;

QRect Drawn(const QImage& page, const QRect& inside, int darkerThan) {
  QRect drawn;
  for (int y = inside.top(); y <= inside.bottom(); ++y) {
    for (int x = inside.left(); x <= inside.right(); ++x) {
      if (qGray(page.pixel(x, y)) < darkerThan) drawn |= QRect(x, y, 1, 1);
    }
  }
  return drawn;
}

TEST_F(DrawnPage, KeepsItsTitleClearOfItsFrameAndAsLargeAsThatAllows) {
  constexpr QRect kInside(49, 19, 808, 27);  // between the rules at 270 and 690 twips
  Report(1, 12);
  for (int month = 1; month <= 12; ++month) {
    const QImage page = Page(month);
    EXPECT_EQ(Drawn(page, {0, 18, 909, 1}, kInk), QRect(48, 18, 811, 1));
    EXPECT_EQ(Drawn(page, {0, 46, 909, 1}, kInk), QRect(48, 46, 811, 1));
    const QRect head = Drawn(page, kInside, kAnything);
    EXPECT_GT(head.top(), kInside.top()) << month;
    EXPECT_LT(head.bottom(), kInside.bottom()) << month;
    EXPECT_GE(head.height(), kInside.height() - 4) << month;
  }
}

// The letters of "दिनमान" are three quarters as high as the heading's font size of 19 pixels.
TEST_F(DrawnPage, HasHeadingsAsInTheLegacyFontAndOneRowPerDayWithinItsColumns) {
  Report(1, 2);
  const QImage january = Page(1), february = Page(2);
  EXPECT_NEAR(Drawn(january, {300, 64, 75, 21}, kInk).height(), 14, 1);
  for (int row = 0; row < 31; ++row) {
    for (const int left : {1125, 2250, 3420, 4500, 5730, 6810, 8010, 9120, 10320, 11460}) {
      // From just before the column to just after its figures.
      const QRect cell(left / 15 - 2, (1320 + 270 * row) / 15, 56, 18);
      const QRect figures = Drawn(january, cell, kInk);
      EXPECT_GT(figures.width(), 20) << row << ", " << left;
      EXPECT_LT(figures.right(), cell.right()) << row << ", " << left;
      EXPECT_EQ(Drawn(february, cell, kInk).isEmpty(), row >= 28) << row << ", " << left;
    }
  }
}

TEST_F(DrawnPage, FitsTheLongestPlaceBetweenTheTitleAndTheFrame) {
  Report(9, 9,  // the month with the longest name
         "Rancho de Guadalupe(Guanajuato - Dolores Hidalgo Cuna de la Independencia Nacional)");
  const QRect title = Drawn(Page(1), {49, 19, 190, 27}, kAnything);
  const QRect place = Drawn(Page(1), {240, 19, 617, 27}, kAnything);
  EXPECT_LT(title.right(), 235);
  EXPECT_NEAR(place.left(), 247, 2);   // 3700 twips
  EXPECT_NEAR(place.right(), 830, 2);  // 12465 twips
}

}  // namespace
}  // namespace screens::qt
