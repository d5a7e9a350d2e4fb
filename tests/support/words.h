// Lists of words, to check their order and that the language files know them.
#pragma once

#include <cstdint>
#include <string>

#include "foundation/text.h"

namespace support {

inline constexpr std::string_view kVocabulary =
#include "foundation/vocabulary.inc"
    ;

// The first letters of words 1 to `last`, such as "Ari Tau Gem".
std::string Beginnings(int last, int letters, const auto& wordOf) {
  std::string list;
  for (int number = 1; number <= last; ++number) {
    const std::string word(wordOf(static_cast<std::int16_t>(number)));
    list.append(number == 1 ? "" : " ").append(foundation::FirstCharacters(word, letters));
  }
  return list;
}

// The same, with "?" before words that the language files lack.
std::string Translated(int last, int letters, const auto& wordOf) {
  const std::string known = "," + foundation::UpperAscii(kVocabulary) + ",";
  return Beginnings(last, letters, [&](std::int16_t number) {
    const std::string word(wordOf(number));
    const bool isKnown = known.find("," + foundation::UpperAscii(word) + ",") != known.npos;
    return isKnown ? word : "?" + word;
  });
}

}  // namespace support
