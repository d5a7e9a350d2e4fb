#include "foundation/text.h"

#include <gtest/gtest.h>

#include "support/errors.h"
#include "support/table.h"

namespace foundation {
namespace {

using support::ExpectRows;
using support::Row;

TEST(Text, GoesByCharactersNotBytes) {
  // A stray byte is a character too.
  ExpectRows([](std::string_view text) { return Characters(text).size(); }, Row("8°4", 3U),
             Row("a\xC3", 2U), Row("\x80\xFF", 2U), Row("\xE0\xA4z", 3U));
  ExpectRows(LastCharacter, Row("28°", "°"), Row("", ""), Row("77.13E", "E"), Row("वि", "ि"),
             Row("a\x80", "\x80"));
  ExpectRows(FirstCharacters, Row("शनिवार", 3, "शनि"), Row("ab", 3, "ab"));
  EXPECT_ERROR(InvalidCall, FirstCharacters("ab", -1));
}

TEST(Text, ChangesCase) {
  ExpectRows(FoldCase,
             Row("MÄRZ PAŹDZIERNIK ΜΆΡΤΙΟΣ МАРТ ՄԱՐՏ", "märz październik μάρτιοσ март մարտ"),
             Row("×ß्", "×ß्"));
  ExpectRows(ProperCase, Row("KINSTUGHNA naG  x", "Kinstughna Nag  X"),
             Row("u. PHALG", "U. Phalg"));
}

TEST(Text, BeginsWithAnotherCaseAside) {
  ExpectRows(BeginsWith, Row("Delhi, India", "dELHI", true), Row("ÉVORA", "év", true),
             Row("दिल्ली", "दि", true), Row("", "", true), Row("Del", "Delhi", false),
             Row("दिल्ली", "द\xE0", false), Row("\xE9", "é", false));
}

TEST(Text, SplitsAtEverySeparator) {
  using Fields = std::vector<std::string_view>;
  ExpectRows(Split, Row("", ':', Fields{""}), Row("6::9:", ':', Fields{"6", "", "9", ""}));
}

}  // namespace
}  // namespace foundation
