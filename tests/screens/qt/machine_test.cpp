#include <gtest/gtest.h>

#include <QLocale>
#include <map>

#include "screens/qt/qt_machine.h"

namespace screens::qt {
namespace {

// Of the locales that the tests run in, after CLDR.
TEST(SystemNames, AreThoseOfTheLocale) {
  struct Names {
    const char *march, *monday, *shortMonday;
    int firstWeekday;
  };
  const std::map<QString, Names> known = {
      {QStringLiteral("C"), {"March", "Monday", "", 1}},
      {QStringLiteral("de_DE"), {"März", "Montag", "Mo", 2}},
      {QStringLiteral("hi_IN"), {"मार्च", "सोमवार", "सोम", 1}},
  };
  const auto expected = known.find(QLocale::system().name());
  if (expected == known.end()) GTEST_SKIP() << "the names of this locale are not known";
  const foundation::LocaleNames names = SystemNames();
  EXPECT_EQ(names.months[2], expected->second.march);
  EXPECT_EQ(names.weekdays[1], expected->second.monday);
  EXPECT_EQ(names.shortWeekdays[1], expected->second.shortMonday);
  EXPECT_EQ(names.firstWeekday, expected->second.firstWeekday);
}

}  // namespace
}  // namespace screens::qt
