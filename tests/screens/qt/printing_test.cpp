// Reports in dots and on paper, by the toolkit.

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <memory>

#include "forms/picture_page.h"
#include "report/page_files.h"
#include "report/reporting.h"
#include "screens/qt/qt_printer.h"

namespace screens::qt {
namespace {

using foundation::DateFromParts;

// A report that draws as the program does.
struct Printing {
  explicit Printing(const QString& file) : printer(file) {
    foundation::InitSessionRecord(fakes.session, DateFromParts(2011, 3, 5));
  }

  report::Reporting fakes;
  QtTextMeasure measure;
  QtRasteriser rasteriser;
  QtPrinter printer;
  struct Host : support::FakeHost {
    explicit Host(const QtTextMeasure& m) : measure(m) {}
    forms::DrawingTarget& TargetOf(forms::Control& box) override {
      if (!page) page = std::make_unique<forms::PicturePage>(box, measure);
      return *page;
    }
    const QtTextMeasure& measure;
    std::unique_ptr<forms::PicturePage> page;
  } host{measure};
  report::Services services{fakes.settings, fakes.session, fakes.boxes, fakes.yielder,
                            host,           rasteriser,    printer};
  report::frmSPkun preview{services};
};

int Count(const QByteArray& bytes, const char* text) {
  return static_cast<int>(bytes.count(text));
}

TEST(Printing, GivesAPageOfDotsAndOfPaperForEachMonth) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("quarter.pdf"));
  Printing printing(file);
  MakeReport({DateFromParts(2011, 1, 1), DateFromParts(2011, 3, 31), 0.5, "28.40N", "77.13E",
              "82.30E", "-5.30", "Delhi", "India", printing.fakes.status},
             printing.preview, printing.services);
  const forms::PicturePtr page = report::LoadPage(1);
  const forms::Raster& dots = *std::get<forms::Dots>(page->items.at(0)).raster;
  EXPECT_EQ(dots.width, 909);
  EXPECT_EQ(dots.height, 682);
  EXPECT_NEAR(page->width, 13635, 2);
  int dark = 0;
  for (const std::uint8_t value : dots.rgb) dark += value < 128;
  EXPECT_GT(dark, 20000);  // heads, rules and 31 rows
  EXPECT_LT(dark, 200000);

  printing.preview.cmdPrint_Click();
  EXPECT_TRUE(printing.fakes.boxes.shown.empty());
  QFile pdf(file);
  ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
  const QByteArray bytes = pdf.readAll();
  EXPECT_EQ(Count(bytes, "/Type /Page\n"), 3);  // and no blank sheet behind them
}

TEST(Printing, TellsThatItCannotPrint) {
  Printing printing(QStringLiteral("/nowhere/at/all.pdf"));
  MakeReport({DateFromParts(2011, 1, 1), DateFromParts(2011, 1, 2), 0.5, "28.40N", "77.13E",
              "82.30E", "-5.30", "Delhi", "India", printing.fakes.status},
             printing.preview, printing.services);
  printing.preview.cmdPrintPage_Click();
  ASSERT_EQ(printing.fakes.boxes.shown.size(), 1U);
  EXPECT_EQ(printing.fakes.boxes.shown[0].text, "Printing Cancelled: Path/File access error");
}

}  // namespace
}  // namespace screens::qt
