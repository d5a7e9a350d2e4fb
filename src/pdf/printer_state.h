// State that a document writer keeps between operations.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "foundation/byte_text.h"

namespace pdf {

// The information texts as passed.
struct DocumentInfo {
  foundation::ByteText producer, author, creator, keywords, subject, title;
};

// How a reader opens the document, and whether the user gets a message.
struct DocumentSettings {
  std::optional<std::int32_t> zoomMode, layoutMode;
  bool useThumbs = false;
  bool useOutlines = false;
  std::optional<std::int32_t> viewerPreferences;
  bool confirm = false;
  bool view = false;  // unused
};

// Page data known at the end of the document; page 1 comes first.
struct PageTables {
  std::vector<int> contents;     // object numbers
  std::vector<int> pageObjects;  // filled as page objects are written
  std::vector<double> widths, heights;
};

// Object numbers that other objects refer to.
struct RootObjects {
  int pages = 0, resources = 0, outlines = 0, catalog = 0;
};

enum class DrawMode { Outline, Fill, Both };

// Colours and the line style are complete operators.
struct Pen {
  std::string textColour = "0 g";
  std::string lineColour = "0 G";
  std::string fillColour = "0 g";
  std::string lineStyle;     // until set, writes an empty line
  double lineWidth = 0.567;  // user units
  DrawMode drawMode = DrawMode::Outline;
  double rotation = 0;  // degrees, clockwise; applies to the next text only
};

struct FontChoice {
  std::string name;  // empty means the first font
  std::int16_t size = 0;
  bool underline = false;
};

enum class CellAlignment { None, Centre, Left, Right, Justified };

struct CellStyle {
  std::string border;  // "0", "1" or letters from L, R, T, B
  bool fill = false;
  CellAlignment alignment = CellAlignment::None;
  double wordSpacing = 0;
};

enum class LinkKind { None, Cell, Image, Rectangle, Ellipse };

// The object that the next link covers.
struct LinkedObject {
  LinkKind kind = LinkKind::None;
  foundation::ByteText text;
  std::int32_t width = 0;  // of a rectangle
  bool isImage = false;
  double imageWidth = 0, imageHeight = 0;
};

struct Watermark {
  bool isOn = false;
  foundation::ByteText text;
};

}  // namespace pdf
