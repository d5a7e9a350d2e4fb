// The document as what forms are drawn on.

#include <gtest/gtest.h>

#include "bitmap/libjpeg_library.h"
#include "bitmap/mIntelJPEGLibrary.h"
#include "foundation/modFileFx.h"
#include "pdf/paper.h"
#include "support/errors.h"
#include "support/screen_fakes.h"

namespace pdf {
namespace {

struct Face : testing::Test {
  Face() { paper.printer.PDFSetUnit(3); }

  support::FakeRasteriser rasteriser;
  // Stops where it is told to.
  struct : bitmap::LibjpegLibrary {
    int begun = 0, written = 0;
    int ijlInit(bitmap::JpegProperties& record) override {
      return begun != 0 ? begun : LibjpegLibrary::ijlInit(record);
    }
    int ijlWrite(const bitmap::JpegProperties& record, bitmap::JpegMode mode) override {
      return written != 0 ? written : LibjpegLibrary::ijlWrite(record, mode);
    }
  } library;
  Paper paper{PictureMeans{rasteriser, library}};
  forms::DrawingTarget& target = paper.printer;
  const forms::PicturePtr picture = std::make_shared<forms::Picture>();
  const std::filesystem::path file = foundation::TempFolder() / "temp.jpg";
};

TEST_F(Face, PrintsBlueTextsTwoPointsLarger) {
  target.SetForeColor(forms::Rgb(0xFF0000));
  target.SetFont("Any Face");
  target.SetFontBold(true);
  target.SetFontItalic(true);
  target.SetFontStrikethru(true);
  target.SetRightToLeft(true);
  target.SetFontSize(9.5);
  EXPECT_EQ(target.FontSize(), 12);
  target.SetCurrentX(1440);
  target.SetCurrentY(1440);
  target.Print("one");
  target.Print("on");
  EXPECT_EQ(std::tuple(target.CurrentX(), target.CurrentY()), std::tuple(1470, 1464));
  target.SetCurrentX(1000);
  target.SetCurrentY(2000);
  target.SetFontUnderLine(true);
  target.Print("u");
  EXPECT_EQ(paper.Content(), KnownContent("texts of a form"));
  EXPECT_ERROR(Overflow, paper.printer.FontSize(32766));
}

TEST_F(Face, DrawsRedLinesThatNeverSlant) {
  target.Line(1, 1, 5, 5, forms::Rgb(0), forms::LineStyle::Straight);
  target.Line(200, 100, 100, 50, forms::Rgb(0), forms::LineStyle::FilledBox);
  paper.printer.DrawLINE(20, 30, 20, 10, 0);
  EXPECT_EQ(paper.Content(), KnownContent("lines of a form"));
}

TEST_F(Face, PlacesPicturesByWayOfOneFile) {
  target.PaintPicture(picture, 2000, 3600, 1440, 960);
  EXPECT_FALSE(std::filesystem::exists(file));
  rasteriser.dots = {.width = 1, .height = 3, .rgb = std::vector<std::uint8_t>(9)};
  target.PaintPicture(picture, 4000.2, 3600, 0, 864);
  const std::string whole = paper.Whole();
  EXPECT_TRUE(Holds(whole, AsWritten("q\n72.00 0 0 48.00 100.00 613.89 cm /ImgJPEG1 Do Q\n"
                                     "q\n14.40 0 0 43.20 200.01 618.69 cm /ImgJPEG2 Do Q\n")));
  EXPECT_TRUE(Holds(whole, AsWritten("/Width 2\n/Height 1\n/ColorSpace /DeviceRGB\n")));
  EXPECT_TRUE(Holds(whole, AsWritten("/Width 1\n/Height 3\n/ColorSpace /DeviceRGB\n")));
  EXPECT_TRUE(paper.boxes.shown.empty());
}

TEST_F(Face, LeavesOutAPictureThatFails) {
  library.written = -9;
  target.PaintPicture(picture, 0, 0, 10, 10);
  library.written = 0;
  rasteriser.dots = {};
  target.PaintPicture(picture, 0, 0, 10, 10);
  ASSERT_EQ(paper.boxes.shown.size(), 4U);
  EXPECT_EQ(paper.boxes.shown[0].text, "DurvelaFailed to save to JPG -9");
  EXPECT_EQ(paper.boxes.shown[2].text, "DurvelaFailed to save to JPG -1");
  EXPECT_EQ(paper.boxes.shown[3].title, "Fichier Image - vrPDF 4.0");
  library.begun = -7;
  EXPECT_THROW(target.PaintPicture(picture, 0, 0, 10, 10), bitmap::JpegLibraryError);
  EXPECT_FALSE(std::filesystem::exists(file));
  EXPECT_ERROR(ObjectNotSet, target.PaintPicture(nullptr, 0, 0, 10, 10));
  EXPECT_EQ(paper.Content(), "");
}

using Documents = PaperTest;

TEST_F(Documents, LackSomeMembersOfAPrinter) {
  forms::DrawingTarget& target = printer;
  EXPECT_ERROR(NoSuchMember, target.SetDrawWidth(1));
  EXPECT_ERROR(NoSuchMember, target.Cls());
  EXPECT_ERROR(NoSuchMember, target.TextWidth("text"));
  EXPECT_ERROR(ObjectNotSet, target.PaintPicture(std::make_shared<forms::Picture>(), 0, 0, 10, 10));
}

}  // namespace
}  // namespace pdf
