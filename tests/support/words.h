// Lists of words: their order by their first letters, their spelling by the language files.
#pragma once

#include <algorithm>
#include <string>

#include "foundation/text.h"

namespace support {

inline constexpr std::string_view kVocabulary =
#include "foundation/vocabulary.inc"
    ;

// The first letters of the words for 1 to `last`, "Ari Tau Gem". The words that the language files
// do not have, case aside, end in "?".
std::string Beginnings(int last, int letters, const auto& wordOf) {
  const std::string known = "," + foundation::UpperAscii(kVocabulary) + ",";
  std::string list;
  for (int number = 1; number <= last; ++number) {
    const std::string word(wordOf(static_cast<std::int16_t>(number)));
    const bool isKnown = known.find("," + foundation::UpperAscii(word) + ",") != known.npos;
    list += (number == 1 ? "" : " ") + std::string(foundation::FirstCharacters(word, letters)) +
            (isKnown ? "" : "?");
  }
  return list;
}

}  // namespace support
