// The document as a drawing target for forms.

#include "bitmap/libjpeg_library.h"
#include "foundation/folders.h"
#include "pdf/paper.h"
#include "support/screen_fakes.h"

namespace pdf {
namespace {

struct Face : testing::Test {
  Face() { paper.printer.PDFSetUnit(3); }

  support::FakeRasteriser rasteriser;
  bitmap::LibjpegLibrary library;
  Paper paper{PictureMeans{rasteriser, library}};
  forms::DrawingTarget& target = paper.printer;
  const forms::PicturePtr picture = std::make_shared<forms::Picture>();
};

TEST_F(Face, PrintsBlueTextsTwoPointsLarger) {
  target.SetForeColor(forms::Rgb(0xFF0000));
  target.SetFontSize(9.5);
  target.SetCurrentX(1440);
  target.SetCurrentY(1440);
  target.Print("one");
  target.Print("on");
  EXPECT_EQ(std::tuple(target.CurrentX(), target.CurrentY()), std::tuple(1470, 1464));
  target.SetCurrentX(1000);
  target.SetCurrentY(2000);
  target.SetFontUnderLine(true);
  target.Print("u");
  target.Print("v");  // no longer underlined
  EXPECT_EQ(paper.Content(), KnownContent("texts of a form"));
}

TEST_F(Face, DrawsRedLinesThatNeverSlant) {
  target.Line(1, 1, 5, 5, forms::Rgb(0), forms::LineStyle::Straight);
  target.Line(200, 100, 100, 50, forms::Rgb(0), forms::LineStyle::FilledBox);
  target.Line(20, 30, 20, 10, forms::Rgb(0), forms::LineStyle::Straight);
  EXPECT_EQ(paper.Content(), KnownContent("lines of a form"));
}

TEST_F(Face, PlacesPicturesThroughATemporaryFile) {
  target.PaintPicture(picture, 2000, 3600, 1440, 960);
  EXPECT_FALSE(std::filesystem::exists(foundation::TempFolder() / "temp.jpg"));
  rasteriser.dots = {.width = 1, .height = 3, .rgb = std::vector<std::uint8_t>(9)};
  target.PaintPicture(picture, 4000.2, 3600, 0, 864);
  rasteriser.dots = {};
  target.PaintPicture(picture, 0, 0, 10, 10);  // is skipped
  EXPECT_EQ(paper.TakeMessages(),
            ": DurvelaFailed to save to JPG -1\n"
            "Fichier Image - vrPDF 4.0: Fichier image non JPEG.\r\n"
            "Impossible d'inclure l'image dans le fichier PDF.\n");
  EXPECT_ERROR(ObjectNotSet, target.PaintPicture(nullptr, 0, 0, 10, 10));
  const std::string whole = paper.Finish();
  EXPECT_EQ(Between(whole, "\nq\n", " /Img"),
            "72.00 0 0 48.00 100.00 613.89 cm14.40 0 0 43.20 200.01 618.69 cm");
  EXPECT_EQ(Between(whole, "/Width", "/Color"), " 2\n/Height 1\n 1\n/Height 3\n");
}

}  // namespace
}  // namespace pdf
