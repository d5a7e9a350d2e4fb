// Texts, and dates, times and angles as text.

#include "foundation/text.h"

#include <cmath>

#include "foundation/angle_text.h"
#include "foundation/files.h"
#include "foundation/letters.h"
#include "foundation/time_text.h"
#include "support/locales.h"
#include "support/test.h"

namespace foundation {
namespace {

TEST(Text, CountsCharactersNotBytes) {
  // A stray byte is a character too.
  ExpectRows([](std::string_view text) { return Characters(text).size(); }, Row("8°4", 3U),
             Row("a\xC3", 2U), Row("\x80\xFF", 2U), Row("\xE0\xA4z", 3U));
  ExpectRows(LastCharacter, Row("", ""), Row("77.13E", "E"), Row("वि", "ि"), Row("a\x80", "\x80"));
  ExpectRows(FirstCharacters, Row("शनिवार", 3, "शनि"), Row("ab", 3, "ab"));
}

// Weekdays, divided as readers of each language divide them.
TEST(Text, CountsALetterWithItsMarksAndConjunctsAsOne) {
  ExpectRows([](std::string_view text) { return FirstLetters(text, 3); }, Row("Wednesday", "Wed"),
             Row("गुरुवार", "गुरुवा"), Row("शुक्रवार", "शुक्रवा"), Row("मंगलवार", "मंगल"),
             Row("শুক্ৰবাৰ", "শুক্ৰবা"), Row("ಶುಕ್ರವಾರ", "ಶುಕ್ರವಾ"), Row("శుక్రవారం", "శుక్రవా"),
             Row("വെള്ളിയാഴ്‌ച", "വെള്ളിയാ"), Row("செவ்வாய்", "செவ்வா"),
             Row("พฤหัสบดี", "พฤหั"), Row("ព្រហស្បតិ៍", "ព្រហស្ប"),
             Row("\u1109\u116E\u110B\u116D\u110B\u1175\u11AF\u1109",
                 "\u1109\u116E\u110B\u116D\u110B\u1175\u11AF"),
             Row("E\u0301a\uFE0Fbc", "E\u0301a\uFE0Fb"), Row("", ""));
  // A joiner keeps a conjunct together, a non-joiner splits it; a mark with nothing before it is a
  // letter, as is a stray byte.
  ExpectRows([](std::string_view text) { return FirstLetters(text, 1); },
             Row("क्\u200Dषण", "क्\u200Dष"), Row("क्\u200Cषण", "क्\u200C"), Row("\u093Fक", "\u093F"),
             Row("\x93k", "\x93"), Row("क्।", "क्"));
  EXPECT_EQ(FirstLetters("क", 0), "");
  EXPECT_ERROR(InvalidCall, FirstLetters("क", -1));
}

TEST(Text, EndsItsLinesWithCrLfCrOrLf) {
  std::string_view text = "a\r\nb\rc\n\nd";
  for (const std::string_view line : {"a", "b", "c", "", "d", ""}) EXPECT_EQ(TakeLine(text), line);
}

TEST(Text, ChangesCase) {
  ExpectRows(FoldCase,
             Row("MÄRZ PAŹDZIERNIK ΜΆΡΤΙΟΣ МАРТ ՄԱՐՏ", "märz październik μάρτιοσ март մարտ"),
             Row("×ß्", "×ß्"));
  ExpectRows(ProperCase, Row("KINSTUGHNA naG  x", "Kinstughna Nag  X"),
             Row("u. PHALG", "U. Phalg"));
}

TEST(Text, BeginsWithAnotherIgnoringCase) {
  ExpectRows(BeginsWith, Row("Delhi, India", "dELHI", true), Row("ÉVORA", "év", true),
             Row("दिल्ली", "दि", true), Row("", "", true), Row("Del", "Delhi", false),
             Row("दिल्ली", "द\xE0", false), Row("\xE9", "é", false));
}

TEST(TimeTexts, ShowDecimalHoursAsATimeOfDay) {
  ExpectRows([](double hours) { return DecimalToTimeText(hours); }, Row(6.2025, "06:12:09"),
             Row(23.9999, "00:00:00"), Row(24, "00:00:00"), Row(-1.5, "22:30:00"),
             Row(26.31482736972486, "02:18:53"), Row(12.641666666666667, "12:38:30"),
             Row(12.795833333333333, "12:47:45"), Row(-24, "00:00:00"));
  EXPECT_EQ(DecimalToTimeText(6.5, 24, true), "06:30");
  EXPECT_EQ(DecimalToTimeText(1e18), DecimalToTimeText(std::fmod(1e18, 24)));  // without looping
}

TEST(TimeTexts, ShowDurationsWithoutCarries) {
  ExpectRows([](double hours, double limit) { return DecimalToTimeText(hours, limit); },
             Row(24, 12, "12:00:00"), Row(30.25, 100, "30:15:00"), Row(5.99999, 100, "05:59:60"),
             Row(123, 1000, "12:00:00"));  // cut to two characters
  EXPECT_ERROR(InvalidCall, DecimalToTimeText(1, 0));
}

TEST(TimeTexts, SplitIntoFields) {
  ExpectRows(TimeTextHour, Row("12abc:7x:8y", "12abc"), Row("", ""));
  ExpectRows(TimeTextMinute, Row("12abc:7x:8y", "7x"), Row("6", ""));
  ExpectRows(TimeTextSecond, Row("12::45.5:", 45.5), Row("6:12", 0), Row("0:0:1e999", 0));
  ExpectRows(TimeTextToDecimal, Row("6:12:9", 6.202500000000001), Row("-1:30:0", -0.5),
             Row("12abc:7x:8y", 12.11888888888889));
}

TEST(DateTimeTexts, CarryOnceAndThenThroughTheCalendar) {
  ExpectRows(DateTimeText, Row(5, 3, 2011, 6, 12, 9, "5-March-2011 6:12:9"),
             Row(31, 4, 2011, 0, 0, 0, "1-May-2011 0:0:0"),
             Row(15, 6, 2011, 25, 61, 61, "16-June-2011 2:2:1"),
             Row(28, 2, 2011, 23, 59, 60, "1-March-2011 0:0:0"),
             Row(15, 6, 2011, 1, 1, 125, "15-June-2011 1:2:65"));
  const support::UserNamesScope names(support::Hindi());
  EXPECT_EQ(DateTimeText(0, 1, 2012, 1, 2, 3), "31-दिसंबर-2011 1:2:3");
}

TEST(PaddedDigits, AreCutToTheirWidth) {
  ExpectRows([](auto value, int width) { return PadDigits(value, width); }, Row(0, 2, "00"),
             Row(123, 2, "12"), Row("é", 3, "00é"));
  EXPECT_ERROR(InvalidCall, PadDigits(1, -1));
}

TEST(Angles, ConvertAZoneToItsMeridian) {
  ExpectRows(ZoneToMeridianText, Row("-5.30", "82.30E"), Row("-3.30", "52.30E"), Row("5", "75.0W"),
             Row("+0.20", "5.0W"), Row("+11", "165.0W"), Row("", "0.0W"));
  EXPECT_ERROR(Overflow, ZoneToMeridianText("999999999999"));
  double written = -28.4;
  EXPECT_EQ(DegMinToDecimal(written), -27.999999999999996);
  EXPECT_EQ(written, -27.999999999999996);
}

TEST(Angles, ShowTheirPositionInASign) {
  // A carry raises the next field and leaves "60" in the lower one.
  ExpectRows(DecimalToSignDMS, Row(269.6273716983858, "29:37:39"), Row(15, "15:00:00"),
             Row(10.9999, "11:60:60"), Row(359.99999, "30:60:60"));
}

}  // namespace
}  // namespace foundation
