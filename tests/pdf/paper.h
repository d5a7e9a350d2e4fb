// A document in a folder of its own, in points, with three fonts whose characters are all half as
// wide as the font is high.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>

#include "foundation/files.h"
#include "pdf/PDFPrinter.h"
#include "support/app_folder.h"
#include "support/errors.h"
#include "support/machine_fakes.h"
#include "support/table.h"

namespace pdf {

using support::Row;

// "\n" for the CR LF that ends a line of a file, "~" for a CR alone, "^\n" for an LF alone.
inline std::string Readable(std::string_view bytes) {
  std::string text;
  for (const char c : bytes) {
    if (c == '\n') text.ends_with('~') ? text.pop_back() : text.push_back('^');
    text += c == '\r' ? '~' : c;
  }
  return text;
}

// A content of documents/contents.inc.
inline std::string KnownContent(std::string_view name) {
  static const std::map<std::string_view, std::string_view> kContents = {
#include "pdf/documents/contents.inc"
  };
  return std::string(kContents.at(name));
}

struct MetricsScope : support::AppFolderScope {
  MetricsScope() {
    std::string text = "StartCharMetrics 95\n";
    for (int code = 32; code <= 126; ++code) text += "C " + std::to_string(code) + " ; WX 500 ;\n";
    text += "EndCharMetrics\n";
    for (const auto name : {"Courier.afm", "Helvetica.afm", "Times-Roman.afm"}) Write(name, text);
  }
};

struct Paper {
  MetricsScope folder;
  support::FakeClock clock;
  support::FakeMessageBoxes boxes;
  PDFPrinter printer;

  template <typename... Means>
  explicit Paper(Means... means) : printer(clock, boxes, means...) {
    clock.now = foundation::DateFromParts(2011, 3, 5) + foundation::TimeFromParts(6, 12, 9);
    printer.PDFSetUnit(0);
    printer.PDFFileName((folder.path / "paper.pdf").string());
    printer.PDFBeginDoc();
  }

  std::string File() const { return Readable(foundation::ReadFile(folder.path / "paper.pdf")); }

  std::pair<int, int> Place() const { return {printer.PDFGetX(), printer.PDFGetY()}; }

  // What the user was told since the last time.
  std::string Told() {
    std::string told;
    for (const auto& box : boxes.shown) told += box.title + ": " + box.text + "\n";
    boxes.shown.clear();
    return told;
  }

  void NewPage() {
    printer.PDFEndPage();
    printer.PDFNewPage();
  }

  // Ends the document.
  std::string Whole() {
    printer.PDFEndDoc();
    return File();
  }

  // The content of the first page; ends the document.
  std::string Content() {
    const std::string file = Whole();
    constexpr std::string_view kStart = "\nstream\n";
    const std::size_t start = file.find(kStart) + kStart.size();
    return file.substr(start, file.find("endstream\n", start) - start);
  }
};

// A test of a document.
struct PaperTest : testing::Test, Paper {};

inline bool Holds(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

// What stands between two marks, wherever they are.
inline std::string Between(std::string_view text, std::string_view open, std::string_view close) {
  std::string found;
  for (std::size_t at = 0; (at = text.find(open, at)) != text.npos;) {
    at += open.size();
    found += text.substr(at, text.find(close, at) - at);
  }
  return found;
}

}  // namespace pdf
