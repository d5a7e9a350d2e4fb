// The machine and its user, as Qt reports them.

#include <gtest/gtest.h>

#include <QLocale>
#include <QProcess>
#include <QTime>
#include <chrono>
#include <ctime>
#include <map>

#include "screens/qt/qt_machine.h"
#include "support/table.h"

namespace screens::qt {
namespace {

using namespace std::chrono_literals;
using support::Row;

// East of Greenwich, of "+05:30:00".
std::chrono::seconds OffsetByDate(std::chrono::seconds moment) {
  QProcess date;
  date.start(QStringLiteral("date"),
             {QStringLiteral("-d@%1").arg(moment.count()), QStringLiteral("+%::z")});
  EXPECT_TRUE(date.waitForFinished());
  const QString text = QString::fromLatin1(date.readAllStandardOutput()).trimmed();
  const QTime time = QTime::fromString(text.mid(1), QStringLiteral("hh:mm:ss"));
  EXPECT_TRUE(time.isValid()) << text.toStdString();
  const auto seconds = std::chrono::seconds(time.msecsSinceStartOfDay() / 1000);
  return text.startsWith(QLatin1Char('-')) ? -seconds : seconds;
}

// `date` of the GNU tools, a program of its own, reads the same zone files.
TEST(QtClock, KnowsTheInstantAndTheMachinesOffset) {
  const std::chrono::seconds kMoments[] = {1767225600s,   // New Year 2026
                                           1782864000s,   // 1 July 2026
                                           1793511000s,   // 1 November 2026, 05:30
                                           1793514600s,   // 06:30, behind America's change
                                           -1000000000s,  // 1938
                                           4086907200s};  // 5 July 2099
  const QtClock clock;
  for (const std::chrono::seconds moment : kMoments) {
    EXPECT_EQ(clock.OffsetAt(std::chrono::sys_seconds(moment)), OffsetByDate(moment))
        << moment.count();
  }

  const std::time_t before = std::time(nullptr);
  const auto now = clock.InstantNow();
  EXPECT_GE(now.time_since_epoch().count(), before);
  EXPECT_LE(now.time_since_epoch().count(), std::time(nullptr));
  const double local = static_cast<double>((now + clock.OffsetAt(now)).time_since_epoch().count());
  const double days = clock.Now() - foundation::DateFromParts(1970, 1, 1);
  EXPECT_NEAR(days * 86400, local, 2);
}

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
