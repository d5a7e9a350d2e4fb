#include "forms/picture.h"

#include <optional>

namespace forms {

std::string WordsOf(const Picture& picture) {
  std::string words;
  std::optional<double> line;
  const auto add = [&](const std::string& text, std::optional<double> baseline) {
    if (text.empty()) return;
    if (!words.empty()) words += line && line == baseline ? ' ' : '\n';
    words += text;
    line = baseline;
  };
  for (const auto& item : picture.items) {
    if (const auto* inset = std::get_if<Inset>(&item)) add(WordsOf(*inset->picture), {});
    if (const auto* lettering = std::get_if<Lettering>(&item)) {
      add(lettering->text, lettering->at.y);
    }
  }
  return words;
}

}  // namespace forms
