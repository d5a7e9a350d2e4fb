// What a document writer remembers between two operations.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "foundation/byte_text.h"

namespace pdf {

// The information strings, as they were given.
struct DocumentInfo {
  foundation::ByteText producer, author, creator, keywords, subject, title;
};

// How a reader opens the document, and what the user hears of it.
struct DocumentSettings {
  std::optional<std::int32_t> zoomMode, layoutMode;
  bool useThumbs = false;
  bool useOutlines = false;
  std::optional<std::int32_t> viewerPreferences;
  bool confirm = false;
  bool view = false;  // nothing reads it
};

// What is known of the pages by the end of the document; page 1 first.
struct PageTables {
  std::vector<int> contents;     // object numbers
  std::vector<int> pageObjects;  // filled while page objects are written
  std::vector<double> widths, heights;
};

// Numbers of objects to which others refer.
struct RootObjects {
  int pages = 0, resources = 0, outlines = 0, catalog = 0;
};

enum class DrawMode { Outline, Fill, Both };

// Colours and the line style are whole operators.
struct Pen {
  std::string textColour = "0 g";
  std::string lineColour = "0 G";
  std::string fillColour = "0 g";
  std::string lineStyle;     // empty until it is set, and then an empty line of the content
  double lineWidth = 0.567;  // user units
  DrawMode drawMode = DrawMode::Outline;
  double rotation = 0;  // degrees, clockwise, for the next text alone
};

struct FontChoice {
  std::string name;  // empty until one is chosen: the first font
  std::int16_t size = 0;
  bool underline = false;
};

enum class Alignment { None, Centre, Left, Right, Justified };

struct CellStyle {
  std::string border;  // "0", "1" or letters from L, R, T, B
  bool fill = false;
  Alignment alignment = Alignment::None;
  double wordSpacing = 0;
};

enum class LinkKind { None, Cell, Image, Rectangle, Ellipse };

// The object that the next link is laid over.
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
