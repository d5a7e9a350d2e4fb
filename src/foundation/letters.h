// Letters as readers count them.
#pragma once

#include <string_view>

namespace foundation {

// The first `count` letters of a UTF-8 text, or the whole text if it is shorter. A letter keeps its
// vowel signs and other marks; a conjunct is one letter ("शुक्रवा" has three), as is a syllable of
// Hangul. These are Unicode's extended grapheme clusters, with conjuncts of Kannada and Gurmukhi as
// well, without emoji sequences. InvalidCall below 0.
std::string_view FirstLetters(std::string_view text, int count);

}  // namespace foundation
