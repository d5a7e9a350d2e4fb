// Letters as readers count them.
#pragma once

#include <string_view>

namespace foundation {

// The first `count` letters of a UTF-8 text, or the whole text if it is shorter. A letter keeps its
// vowel signs and other marks; a conjunct is one letter ("शुक्रवा" has three), and so is a Hangul
// syllable. These are Unicode's extended grapheme clusters, plus conjuncts of Kannada and Gurmukhi,
// but without emoji sequences. InvalidCall if `count` is negative.
std::string_view FirstLetters(std::string_view text, int count);

}  // namespace foundation
