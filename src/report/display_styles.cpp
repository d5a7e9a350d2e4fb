#include "report/display_styles.h"

#include <string>

#include "foundation/phrases.h"
#include "foundation/resume.h"
#include "foundation/text.h"
#include "report/display_settings.h"

namespace report {
namespace {

using foundation::Resume;

constexpr auto kBlack = forms::Rgb(0);
constexpr auto kFrameBorder = forms::Rgb(0xF5B017);  // 1552629, red in its lowest byte

bool Names(std::string_view caption, std::string_view name) {
  const std::string upper = foundation::UpperAscii(caption);
  const std::string full = foundation::UpperAscii(name);
  return upper == full || upper == full.substr(0, 3);
}

class LanguageStyle {
 public:
  LanguageStyle(std::int32_t language, int extraSize, bool keepSize)
      : language_(language), extraSize_(extraSize), keepSize_(keepSize) {}

  void Apply(forms::Control& control) const {
    const bool applies = control.font.name != forms::kBaseFace || control.tag == "hhh";
    if (!applies) return;
    std::string phrase = control.caption;
    Resume([&] { phrase = foundation::LanguagePhrase(control.caption, language_); });
    const bool hasPhrase = phrase != control.caption;
    if (!hasPhrase && control.tag != "hcon") return;
    Resume([&] { ChangeFont(control.font); });
    control.caption = phrase;
  }

 private:
  // Subscript for a language without a face.
  void ChangeFont(forms::Font& font) const {
    const display::LanguageFont& face = display::kLanguageFonts[language_ == -1 ? 0 : language_];
    font.bold = font.italic = false;
    font.name = face.face;
    if (!keepSize_) font.size += static_cast<float>(face.sizeStep + extraSize_);
  }

  std::int32_t language_;
  int extraSize_;
  bool keepSize_;
};

}  // namespace

forms::Colour PlanetColourOf(std::string_view caption) {
  for (const display::PlanetColour& planet : display::kPlanetColours) {
    if (Names(caption, planet.name)) return planet.colour;
  }
  if (display::kLegacyHindiNames) {
    for (const display::PlanetColour& planet : display::kPlanetColours) {
      if (caption == planet.legacyName) return planet.colour;
    }
    for (const display::PlanetColour& planet : display::kPlanetColours) {
      if (caption == planet.legacyShort) return planet.colour;
    }
  }
  return kBlack;
}

void ColourForm(forms::Form& form, bool colourOption) {
  if (!colourOption) return;
  for (forms::Control& control : form.Controls()) {
    if (control.kind == forms::Kind::Label) {
      control.foreColour = control.tag == "ch" ? kBlack : PlanetColourOf(control.caption);
    } else if (control.kind == forms::Kind::Shape &&
               (control.tag == "cs" || control.tag == "cs2")) {
      control.backColour = kBlack;
      control.borderColour = control.tag == "cs" ? kFrameBorder : kBlack;
    }
  }
}

void ApplyLanguageFonts(forms::Form& form, std::int32_t language, int extraSize,
                        bool blnDontChangePageFontSize) {
  if (language == 0 && extraSize == 0) return;
  const LanguageStyle style(language, extraSize, blnDontChangePageFontSize);
  for (forms::Control& control : form.Controls()) {
    if (control.tag == "n" || control.tag == "N") continue;
    if (control.kind != forms::Kind::Label && control.kind != forms::Kind::TextBox) continue;
    style.Apply(control);
  }
}

void ApplyDisplayStyles(forms::Form& form, std::int32_t language) {
  ColourForm(form, display::kColourOption);
  ApplyLanguageFonts(form, language, 0, false);
}

}  // namespace report
