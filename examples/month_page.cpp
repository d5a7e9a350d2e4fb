// Writes the report page of a month in Delhi to two PDF files: one with the program's PDF writer,
// one with the screen's printer.

#include <QApplication>
#include <QDir>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include "bitmap/libjpeg_library.h"
#include "forms/picture_page.h"
#include "foundation/numbers.h"
#include "pdf/PDFPrinter.h"
#include "report/form_drawing.h"
#include "report/own_clock_row.h"
#include "report/page_row.h"
#include "screens/qt/application.h"

namespace {

using foundation::DateTime;

// Prints messages, since nobody is there to answer.
struct Complaints : foundation::MessageBoxes {
  int count = 0;
  foundation::MessageAnswer Show(std::string_view text, foundation::MessageIcon,
                                 foundation::MessageButtons, std::string_view) override {
    std::fprintf(stderr, "%.*s\n", static_cast<int>(text.size()), text.data());
    ++count;
    return foundation::MessageAnswer::No;
  }
};

foundation::SessionTable Delhi(DateTime day) {
  foundation::SessionTable session;
  foundation::InitSessionRecord(session, day);
  foundation::SessionRecord& record = session.Current();
  record.LatitudeText = "28.40N";
  record.LongitudeText = "77.13E";
  record.ZoneMeridianText = "82.30E";
  record.ZoneTimeText = "-5.30";
  record.CityName = "Delhi";
  record.CountryName = "India";
  return session;
}

// Places texts by their width on the screen.
void Fill(report::pk_Durvela& page, DateTime first) {
  constexpr DateTime kNoon = 0.5;
  const foundation::SessionTable session = Delhi(first);
  const screens::qt::QtTextMeasure measure;
  forms::Control paper;
  forms::PicturePage scratch(paper, measure);
  FillHead(page, first, session.Current(), scratch);
  const int month = foundation::FieldsOf(first).month;
  int row = 0;
  for (DateTime day = first; foundation::FieldsOf(day).month == month; day += 1) {
    FillRow(page, row++, day + kNoon, report::RowByRecord(day + kNoon, session));
  }
}

// Uses Helvetica on paper the size of the page. A document enlarges texts and takes their top as
// the baseline, which this compensates. Returns false if there were complaints.
bool WriteDocument(report::pk_Durvela& page, const QString& file) {
  constexpr double kPointsPerTwip = 1 / forms::kTwipsPerPoint;
  constexpr int kUnitTwips = 3, kHelvetica = 0;
  constexpr std::int16_t kSizeDelta = -2, kAscent = 195;
  const screens::qt::QtClock clock;
  const screens::qt::QtRasteriser rasteriser;
  bitmap::LibjpegLibrary library;
  Complaints complaints;
  pdf::PDFPrinter document(clock, complaints, pdf::PictureMeans{rasteriser, library});
  document.PDFFileName(file.toStdString());
  document.PDFSetUnit(kUnitTwips);
  document.PDFPageWidth(page.scaleWidth * kPointsPerTwip);
  document.PDFPageHeight(page.scaleHeight * kPointsPerTwip);
  document.PDFBeginDoc();
  document.PDFSetFont(kHelvetica, 10, 0);
  DrawFormOnTarget(page, document, 0, 0, nullptr, kSizeDelta, 0, kAscent);
  document.PDFEndDoc();
  return complaints.count == 0;
}

// Landscape, since the page is wider than upright paper.
void Print(report::pk_Durvela& page, const QString& file) {
  screens::qt::QtPrinter printer(file);
  printer.SetOrientation(forms::Orientation::Landscape);
  DrawFormOnTarget(page, printer, 0, 0);
  printer.EndDoc();
}

std::optional<DateTime> FirstOf(const char* year, const char* month) {
  const double y = foundation::WholeNumber(year).value_or(0);
  const double m = foundation::WholeNumber(month).value_or(0);
  if (y < 1900 || y > 2099 || m < 1 || m > 12) return std::nullopt;
  return foundation::DateFromParts(foundation::FloorToInt32(y), foundation::FloorToInt32(m), 1);
}

}  // namespace

int main(int argc, char** argv) {
  screens::qt::LeaveThemeAside();
  const QApplication application(argc, argv);
  const auto first = argc == 4 ? FirstOf(argv[1], argv[2]) : std::nullopt;
  if (!first) {
    std::fprintf(stderr, "usage: month_page YEAR MONTH FOLDER, YEAR from 1900 to 2099\n");
    return EXIT_FAILURE;
  }
  screens::qt::DressApplication();
  foundation::SetUserNames(foundation::EnglishNames());
  const QDir folder(QString::fromLocal8Bit(argv[3]));
  if (!folder.mkpath(QStringLiteral("."))) {
    std::fprintf(stderr, "%s cannot be created\n", argv[3]);
    return EXIT_FAILURE;
  }
  try {
    report::pk_Durvela page;
    Fill(page, *first);
    const bool whole = WriteDocument(page, folder.filePath(QStringLiteral("document.pdf")));
    Print(page, folder.filePath(QStringLiteral("printer.pdf")));
    return whole ? EXIT_SUCCESS : EXIT_FAILURE;
  } catch (const foundation::Error& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return EXIT_FAILURE;
  }
}
