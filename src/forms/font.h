// The font of a control.
#pragma once

#include <string>
#include <string_view>

namespace forms {

// The default face.
inline constexpr std::string_view kBaseFace = "Noto Sans";

struct Font {
  std::string name{kBaseFace};
  float size = 9.375F;  // points of 20 twips, on any screen
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikethrough = false;

  friend bool operator==(const Font&, const Font&) = default;
};

}  // namespace forms
