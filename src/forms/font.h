// The font of a control.
#pragma once

#include <string>

namespace forms {

struct Font {
  std::string name = "Noto Sans";
  float size = 9.375F;  // points of 20 twips, whatever the screen
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikethrough = false;

  friend bool operator==(const Font&, const Font&) = default;
};

}  // namespace forms
