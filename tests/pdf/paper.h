// A document in a temporary folder, in points, with three fonts whose characters are all half as
// wide as the font is high.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "foundation/files.h"
#include "pdf/PDFPrinter.h"
#include "support/app_folder.h"
#include "support/machine_fakes.h"
#include "support/test.h"

namespace pdf {

// Shows CR LF as "\n", a lone CR as "~" and a lone LF as "^\n".
inline std::string Readable(std::string_view bytes) {
  std::string text;
  for (const char c : bytes) {
    if (c == '\n') text.ends_with('~') ? text.pop_back() : text.push_back('^');
    text += c == '\r' ? '~' : c;
  }
  return text;
}

// A named content from documents/contents.inc.
inline std::string KnownContent(std::string_view name) {
  static const std::map<std::string_view, std::string_view> kContents = {
#include "pdf/documents/contents.inc"
  };
  return std::string(kContents.at(name));
}

inline bool Holds(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

// Everything between each pair of marks.
inline std::string Between(std::string_view text, std::string_view open, std::string_view close) {
  std::string found;
  for (std::size_t at = 0; (at = text.find(open, at)) != text.npos;) {
    at += open.size();
    found += text.substr(at, text.find(close, at) - at);
  }
  return found;
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
    printer.PDFSetBorder(0);
    Begin();
  }

  void Begin() {
    printer.PDFFileName((folder.path / "paper.pdf").string());
    printer.PDFBeginDoc();
  }

  std::string File() const { return Readable(foundation::ReadFile(folder.path / "paper.pdf")); }

  std::pair<int, int> Place() const { return {printer.PDFGetX(), printer.PDFGetY()}; }

  // The messages shown since the last call.
  std::string TakeMessages() {
    std::string messages;
    for (const auto& box : boxes.shown) messages += box.title + ": " + box.text + "\n";
    boxes.shown.clear();
    return messages;
  }

  void NewPage() {
    printer.PDFEndPage();
    printer.PDFNewPage();
  }

  // Ends the document and returns its file.
  std::string Finish() {
    printer.PDFEndDoc();
    return File();
  }

  // Ends the document and returns the contents of its pages and pictures.
  std::string Content() { return Between(Finish(), "\nstream\n", "endstream\n"); }
};

// Fixture with a document.
struct PaperTest : testing::Test, Paper {};

}  // namespace pdf
