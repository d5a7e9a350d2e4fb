#include "forms/picture.h"

#include <algorithm>
#include <optional>

#include "foundation/legacy_hindi.h"

namespace forms {
namespace {

// Texts in a table row have baselines closer than this, even in different faces.
constexpr double kSameLine = 0.5;  // of the text size

std::string Readable(const Lettering& lettering) {
  const bool legacy = lettering.face == foundation::kLegacyHindiFace;
  return legacy ? foundation::FromLegacyHindi(lettering.text) : lettering.text;
}

}  // namespace

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
      add(Readable(*lettering), lettering->at.y);
    }
  }
  return words;
}

std::string LinesOf(const Picture& page) {
  std::vector<const Lettering*> letterings;
  for (const auto& item : page.items) {
    const auto* lettering = std::get_if<Lettering>(&item);
    if (lettering != nullptr && !lettering->text.empty()) letterings.push_back(lettering);
  }
  std::ranges::stable_sort(letterings, {}, [](const Lettering* text) { return text->at.y; });
  std::string lines;
  for (auto line = letterings.begin(); line != letterings.end();) {
    const double limit = (*line)->at.y + kSameLine * (*line)->size;
    const auto end = std::find_if(line, letterings.end(),
                                  [&](const Lettering* text) { return text->at.y > limit; });
    std::sort(line, end, [](const Lettering* a, const Lettering* b) { return a->at.x < b->at.x; });
    for (; line != end; ++line) {
      lines += Readable(**line);
      lines += line + 1 == end ? '\n' : ' ';
    }
  }
  return lines;
}

}  // namespace forms
