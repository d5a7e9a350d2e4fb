// The machine as Qt reports it: its clock, names of the locale, pictures on the clipboard and in
// files.

#include <QtWidgets>
#include <chrono>
#include <ctime>

#include "bitmap/cDIBSection.h"
#include "bitmap/libjpeg_library.h"
#include "bitmap/mIntelJPEGLibrary.h"
#include "screens/qt/qt_clipboard.h"
#include "screens/qt/qt_machine.h"
#include "support/app_folder.h"
#include "support/machine_fakes.h"
#include "support/test.h"

namespace screens::qt {
namespace {

using namespace std::chrono_literals;

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

// GNU `date` is an independent program that reads the same zone files.
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

bool Copy(double width, double height, decltype(forms::Picture::items) items) {
  const forms::Picture picture = {width, height, std::move(items)};
  return QtClipboard().SetPicture(std::make_shared<const forms::Picture>(picture));
}

QImage Held() {
  return QGuiApplication::clipboard()->image();
}

TEST(Clipboard, HoldsThePictureAsPixelsUntilTheNext) {
  const forms::Raster raster = {2, 1, {255, 0, 0, 9, 8, 7}};
  // A pixel is 150 twips wide, so it is not rendered again.
  ASSERT_TRUE(Copy(300, 150, {forms::Dots{std::make_shared<const forms::Raster>(raster)}}));
  ASSERT_EQ(Held().size(), QSize(2, 1));
  EXPECT_EQ(Held().pixelColor(1, 0), QColor(9, 8, 7));

  const forms::Outline box = {forms::Path::Box({0, 0}, 45, 15), forms::Rgb(0x102030), {}};
  ASSERT_TRUE(Copy(45, 30, {box}));
  EXPECT_EQ(Held().pixelColor(2, 0), QColor(0x10, 0x20, 0x30));
  EXPECT_EQ(Held().pixelColor(2, 1), QColor(Qt::white));

  EXPECT_FALSE(QtClipboard().SetPicture(nullptr) || Copy(0, 0, {}));
  EXPECT_EQ(Held().size(), QSize(3, 2));
}

// Read back by another decoder than the writer's: the red pixel is where it was.
TEST(SavedPicture, IsReadByQt) {
  bitmap::cDIBSection dib;
  ASSERT_TRUE(dib.Create(9, 9));
  dib.hdc()->Row(8)[2] = 255;
  const support::AppFolderScope folder;
  const std::string file = folder.path / "red.jpg";
  bitmap::LibjpegLibrary library;
  support::FakeMessageBoxes boxes;
  ASSERT_TRUE(bitmap::SaveJPG(dib, file, 100, library, boxes));
  const QImage read(QString::fromStdString(file));
  ASSERT_EQ(read.size(), QSize(9, 9));
  EXPECT_GT(read.pixelColor(0, 0).red(), read.pixelColor(0, 0).green() + 50);
  EXPECT_LT(read.pixelColor(8, 8).red(), 5);
}

}  // namespace
}  // namespace screens::qt
