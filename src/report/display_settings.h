// Default display settings of forms.
#pragma once

#include <array>
#include <string_view>

#include "forms/colour.h"
#include "forms/font.h"
#include "foundation/bounded_array.h"

namespace report::display {

inline constexpr bool kColourOption = false;      // colour labels by planet
inline constexpr bool kLegacyHindiNames = false;  // also match planets by their legacy names

// By language number: the face, and the points added to a font size.
struct LanguageFont {
  std::string_view face;
  int sizeStep;
};
inline constexpr foundation::BoundedArray<LanguageFont, 0, 4> kLanguageFonts{
    {{{forms::kBaseFace, 0},
      {"Lohit Devanagari", 5},
      {"Lohit Devanagari", 6},
      {"Lohit Malayalam", 3},
      {"Lohit Kannada", 3}}}};

// A planet's name, and its full and short names in the legacy Hindi encoding.
struct PlanetColour {
  std::string_view name, legacyName, legacyShort;
  forms::Colour colour;
};

// The traditional colours of the planets, dark enough to read on paper.
inline constexpr std::array<PlanetColour, 13> kPlanetColours = {{
    {"Asc", "yXu", "y", forms::Rgb(0x2A2238)},
    {"Sun", "lw;Z", "lw", forms::Rgb(0xB83A17)},
    {"Moon", "pUnz", "pa", forms::Rgb(0x5A6B85)},
    {"Mars", "eaxy", "ea", forms::Rgb(0xB3122B)},
    {"Mercury", "cq/k", "cq", forms::Rgb(0x1E7A3C)},
    {"Jupiter", "xq#", "xq", forms::Rgb(0x8A6A00)},
    {"Venus", "'kqØ", "'kq", forms::Rgb(0xA0378A)},
    {"Saturn", "'kfu", "'k", forms::Rgb(0x1F3A8A)},
    {"Rahu", "jkgq", "jk", forms::Rgb(0x4A4A4A)},
    {"Ketu", "dsrq", "ds", forms::Rgb(0x6B4A2F)},
    {"Uranus", ";wjsul", "us", forms::Rgb(0x14776A)},
    {"Neptune", "usIP;wu", ";w", forms::Rgb(0x2C5FA8)},
    {"Pluto", "IywVks", "Iyw", forms::Rgb(0x6B4FC9)},
}};

}  // namespace report::display
