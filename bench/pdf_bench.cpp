// Writing pages of text to a PDF file, compared with libharu (if installed), which uses a base font
// uncompressed, and with the toolkit, which embeds its font and compresses.

#include <QFont>
#include <QPainter>
#include <QPdfWriter>
#include <filesystem>
#include <string>

#include "bench/figure.h"
#include "bench/window_bench.h"
#include "pdf/PDFPrinter.h"
#include "support/machine_fakes.h"

#ifdef HAVE_HPDF
#include <hpdf.h>
#endif

namespace {

constexpr int kPages = 100, kLines = 60;
constexpr double kSize = 10, kLeft = 50, kTop = 40, kStep = 12.5;
constexpr const char* kText =
    "Sunrise 06:43:00, sunset 18:23:30, Durvela 09:38:00-11:05:30, Gulik 06:43:00";

std::string File(const char* name) {
  return (std::filesystem::temp_directory_path() / name).string();
}

#define PAGES "100 PDF pages of 60 lines"

void PagesOfText(benchmark::State& state) {
  const std::string file = File("durvela-bench.pdf");
  support::FakeClock clock;
  support::FakeMessageBoxes boxes;
  for (auto _ : state) {
    std::filesystem::remove(file);
    pdf::PDFPrinter printer(clock, boxes);
    printer.PDFSetUnit(0);
    printer.PDFFileName(file);
    printer.PDFBeginDoc();
    printer.PDFSetFont(0, kSize, 0);
    for (int page = 0; page < kPages; ++page) {
      if (page > 0) {
        printer.PDFEndPage();
        printer.PDFNewPage();
      }
      for (int line = 0; line < kLines; ++line) {
        printer.PDFTextOut(kText, kLeft, kTop + kStep * line);
      }
    }
    printer.PDFEndDoc();
  }
  std::filesystem::remove(file);
}
FIGURE(PagesOfText, PAGES, "Durvela")->Unit(benchmark::kMillisecond);

#ifdef HAVE_HPDF

void PagesByLibharu(benchmark::State& state) {
  const std::string file = File("libharu-bench.pdf");
  for (auto _ : state) {
    std::filesystem::remove(file);
    const HPDF_Doc document = HPDF_New(nullptr, nullptr);
    const HPDF_Font font = HPDF_GetFont(document, "Helvetica", "WinAnsiEncoding");
    for (int number = 0; number < kPages; ++number) {
      const HPDF_Page page = HPDF_AddPage(document);
      HPDF_Page_BeginText(page);
      HPDF_Page_SetFontAndSize(page, font, static_cast<float>(kSize));
      for (int line = 0; line < kLines; ++line) {
        HPDF_Page_TextOut(page, static_cast<float>(kLeft), static_cast<float>(800 - kStep * line),
                          kText);
      }
      HPDF_Page_EndText(page);
    }
    HPDF_SaveToFile(document, file.c_str());
    HPDF_Free(document);
  }
  std::filesystem::remove(file);
}
FIGURE(PagesByLibharu, PAGES, "libharu")->Unit(benchmark::kMillisecond);

#endif

void PagesByTheToolkit(benchmark::State& state) {
  bench::NeedToolkit();
  const std::string file = File("toolkit-bench.pdf");
  for (auto _ : state) {
    std::filesystem::remove(file);
    QPdfWriter writer(QString::fromStdString(file));
    writer.setResolution(72);
    QPainter painter(&writer);
    painter.setFont(QFont(QStringLiteral("Noto Sans"), static_cast<int>(kSize)));
    for (int page = 0; page < kPages; ++page) {
      if (page > 0) writer.newPage();
      for (int line = 0; line < kLines; ++line) {
        painter.drawText(QPointF(kLeft, kTop + kStep * line), QString::fromLatin1(kText));
      }
    }
  }
  std::filesystem::remove(file);
}
FIGURE(PagesByTheToolkit, PAGES, "Qt")->Unit(benchmark::kMillisecond);

}  // namespace
