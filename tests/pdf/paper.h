// A document in a folder of its own, in points, with three fonts whose characters are all half as
// wide as the font is high.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "foundation/files.h"
#include "pdf/PDFPrinter.h"
#include "support/app_folder.h"
#include "support/machine_fakes.h"

namespace pdf {

inline std::string HalfWideMetrics() {
  std::string text = "StartCharMetrics 95\n";
  for (int code = 32; code <= 126; ++code) text += "C " + std::to_string(code) + " ; WX 500 ;\n";
  return text + "EndCharMetrics\n";
}

// Lines end with CR LF in the file; "~" stands for a lone CR.
inline std::string AsWritten(std::string_view text) {
  std::string bytes;
  for (const char c : text) {
    if (c == '\n') bytes += '\r';
    bytes += c == '~' ? '\r' : c;
  }
  return bytes;
}

// A content of documents/contents.inc.
inline std::string KnownContent(std::string_view name) {
  constexpr std::pair<std::string_view, std::string_view> kContents[] = {
#include "pdf/documents/contents.inc"
  };
  for (const auto& [known, content] : kContents) {
    if (known == name) return AsWritten(content);
  }
  return "no content of that name";
}

struct MetricsScope : support::AppFolderScope {
  MetricsScope() {
    for (const std::string_view name : {"Courier", "Helvetica", "Times-Roman"}) {
      Write(std::string(name) + ".afm", HalfWideMetrics());
    }
  }
};

struct Paper {
  MetricsScope folder;
  support::FakeClock clock;
  support::FakeMessageBoxes boxes;
  PDFPrinter printer{clock, boxes};

  Paper() { Begin(); }
  explicit Paper(PictureMeans means) : printer(clock, boxes, means) { Begin(); }

  void Begin() {
    clock.now = foundation::DateFromParts(2011, 3, 5) + foundation::TimeFromParts(6, 12, 9);
    printer.PDFSetUnit(0);
    printer.PDFFileName((folder.path / "paper.pdf").string());
    printer.PDFBeginDoc();
  }

  std::string File() const { return foundation::ReadFile(folder.path / "paper.pdf"); }

  void NewPage() {
    printer.PDFEndPage();
    printer.PDFNewPage();
  }

  // Ends the document.
  std::string Whole() {
    printer.PDFEndDoc();
    return File();
  }

  // The content of a page; ends the document.
  std::string Content(int page = 1) {
    const std::string file = Whole();
    constexpr std::string_view kStart = "\r\nstream\r\n";
    std::size_t start = 0;
    for (int i = 0; i < page; ++i) start = file.find(kStart, start) + kStart.size();
    return file.substr(start, file.find("endstream\r\n", start) - start);
  }
};

// A test of a document.
struct PaperTest : testing::Test, Paper {};

// The content of a page on which `draw` has drawn.
template <typename Draw>
std::string ContentOf(const Draw& draw) {
  Paper paper;
  draw(paper.printer);
  return paper.Content();
}

inline bool Holds(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

}  // namespace pdf
