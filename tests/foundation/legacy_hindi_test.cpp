// Every text of the system in the encoding, with its spelling by hand.

#include "foundation/legacy_hindi.h"

#include <gtest/gtest.h>

#include <utility>

namespace foundation {
namespace {

TEST(LegacyHindi, ReadsAsItIsSpelled) {
  const std::pair<std::string_view, std::string_view> texts[] = {
      {"nqosZyk ", "दुर्वेला "},
      {"xqfyd dky", "गुलिक काल"},
      {";e?kaVd dky", "यमघंटक काल"},
      {"fnukad", "दिनांक"},
      {"lw;ksZn;", "सूर्योदय"},
      {"lw;kZLr", "सूर्यास्त"},
      {"fnueku", "दिनमान"},
      {"izkjaHk ", "प्रारंभ "},
      {"lekIr ", "समाप्त "},
      {"nqosZyk ¼tuojh 2011½", "दुर्वेला (जनवरी 2011)"},
      {"tuojh", "जनवरी"},
      {"Qjojh", "फरवरी"},
      {"ekpZ", "मार्च"},
      {"vizSy", "अप्रैल"},
      {"ebZ", "मई"},
      {"twu", "जून"},
      {"tqykbZ", "जुलाई"},
      {"vxLr", "अगस्त"},
      {"flrEcj", "सितम्बर"},
      {"vDrwcj", "अक्तूबर"},
      {"uoEcj", "नवम्बर"},
      {"fnlEcj", "दिसम्बर"},
      {"es\"k", "मेष"},
      {"o`\"k", "वृष"},
      {"feFkqu", "मिथुन"},
      {"ddZ", "कर्क"},
      {"flag", "सिंह"},
      {"dU;k", "कन्या"},
      {"rqyk", "तुला"},
      {"o`f'pd", "वृश्चिक"},
      {"/uq", "ध्नु"},
      {"/kuq", "धनु"},
      {"edj", "मकर"},
      {"dqaHk", "कुंभ"},
      {"ehu", "मीन"},
      {"yXu", "लग्न"},
      {"lw;Z", "सूर्य"},
      {"pUnz", "चन्द्र"},
      {"eaxy", "मंगल"},
      {"cq/k", "बुध"},
      {"xq#", "गुरु"},
      {"'kqØ", "शुक्र"},
      {"'kfu", "शनि"},
      {"jkgq", "राहु"},
      {"dsrq", "केतु"},
      {";wjsul", "यूरेनस"},
      {"usIP;wu", "नेप्च्यून"},
      {"IywVks", "प्लूटो"},
      {"y", "ल"},
      {"lw", "सू"},
      {"pa", "चं"},
      {"ea", "मं"},
      {"cq", "बु"},
      {"xq", "गु"},
      {"'kq", "शु"},
      {"'k", "श"},
      {"jk", "रा"},
      {"ds", "के"},
      {"us", "ने"},
      {";w", "यू"},
      {"Iyw", "प्लू"},
  };
  for (const auto& [legacy, unicode] : texts) EXPECT_EQ(FromLegacyHindi(legacy), unicode) << legacy;
  EXPECT_EQ(FromLegacyHindi(""), "");
}

}  // namespace
}  // namespace foundation
