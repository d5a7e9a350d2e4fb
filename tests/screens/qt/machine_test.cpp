// The machine and its user, as Qt reports them.

#include <gtest/gtest.h>

#include <QLocale>
#include <map>

#include "screens/qt/qt_machine.h"
#include "support/table.h"

namespace screens::qt {
namespace {

using support::Row;

// Names as in the Common Locale Data Repository.
TEST(SystemNames, AreThoseOfTheLocale) {
  const auto names = [](const char* locale) {
    const foundation::LocaleNames of = SystemNames(QLocale(QString::fromLatin1(locale)));
    return of.months[0] + " " + of.months[10] + " " + of.weekdays[0] + " " + of.weekdays[6] + " " +
           of.shortWeekdays[0] + " " + std::to_string(of.firstWeekday);
  };
  ExpectRows(names, Row("en_US", "January November Sunday Saturday Sun 1"),
             Row("de_DE", "Januar November Sonntag Samstag So 2"),
             Row("hi_IN", "जनवरी नवंबर रविवार शनिवार रवि 1"),
             Row("pl_PL", "styczeń listopad niedziela sobota niedz. 2"),
             Row("ar_EG", "يناير نوفمبر الأحد السبت الأحد 7"),
             Row("C", "January November Sunday Saturday  1"));
}

TEST(SystemNames, FollowTheUsersLocale) {
  const std::map<QString, std::string> march = {{QStringLiteral("C"), "March"},
                                                {QStringLiteral("de_DE"), "März"},
                                                {QStringLiteral("hi_IN"), "मार्च"}};
  const auto expected = march.find(QLocale::system().name());
  if (expected == march.end()) GTEST_SKIP() << "the names of this locale are not known";
  EXPECT_EQ(SystemNames().months[2], expected->second);
}

}  // namespace
}  // namespace screens::qt
