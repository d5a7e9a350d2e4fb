#include "screens/qt/qt_machine.h"

#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QMessageBox>
#include <QUrl>

#include "foundation/version.h"
#include "screens/qt/dialog_owner.h"
#include "screens/qt/qt_painting.h"
#include "screens/signs.h"

namespace screens::qt {
namespace {

constexpr int kSign = 40;  // pixels

}  // namespace

foundation::DateTime QtClock::Now() const {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate date = now.date();
  const QTime time = now.time();
  return foundation::DateFromParts(date.year(), date.month(), date.day()) +
         foundation::TimeFromParts(time.hour(), time.minute(), time.second());
}

std::chrono::sys_seconds QtClock::InstantNow() const {
  return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
}

std::chrono::seconds QtClock::OffsetAt(std::chrono::sys_seconds instant) const {
  const auto seconds = static_cast<qint64>(instant.time_since_epoch().count());
  return std::chrono::seconds(QDateTime::fromSecsSinceEpoch(seconds).offsetFromUtc());
}

foundation::MessageAnswer QtMessageBoxes::Show(std::string_view text, foundation::MessageIcon icon,
                                               foundation::MessageButtons buttons,
                                               std::string_view title) {
  const bool question = buttons == foundation::MessageButtons::YesNo;
  QMessageBox box(
      QMessageBox::NoIcon, screens::qt::ToQt(title.empty() ? foundation::kProgramName : title),
      screens::qt::ToQt(text), question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
  GiveOwner(box);
  box.setTextFormat(Qt::PlainText);
  if (const forms::PicturePtr sign = BoxSign(icon)) {
    box.setIconPixmap(ToIcon(*sign).pixmap(QSize(kSign, kSign), box.devicePixelRatio()));
  }
  if (question) box.setEscapeButton(QMessageBox::No);
  const int answer = box.exec();
  if (!question) return foundation::MessageAnswer::Ok;
  return answer == QMessageBox::Yes ? foundation::MessageAnswer::Yes
                                    : foundation::MessageAnswer::No;
}

void QtYielder::Yield() {
  constexpr qint64 kRefreshInterval = 50;  // milliseconds
  if (show && (!shown_.isValid() || shown_.elapsed() >= kRefreshInterval)) {
    shown_.start();
    show();
  }
  QApplication::processEvents();
}

void QtBrowser::Open(std::string_view address) {
  QDesktopServices::openUrl(QUrl(screens::qt::ToQt(address)));
}

foundation::LocaleNames SystemNames(const QLocale& locale) {
  if (locale.language() == QLocale::C) return foundation::EnglishNames();
  foundation::LocaleNames names;
  for (int month = 1; month <= 12; ++month) {
    names.months[static_cast<std::size_t>(month - 1)] =
        locale.standaloneMonthName(month).toStdString();
    names.datedMonths[static_cast<std::size_t>(month - 1)] = locale.monthName(month).toStdString();
  }
  for (int weekday = 0; weekday < 7; ++weekday) {  // Qt's 7 is Sunday
    names.weekdays[static_cast<std::size_t>(weekday)] =
        locale.standaloneDayName(weekday == 0 ? 7 : weekday).toStdString();
    names.shortWeekdays[static_cast<std::size_t>(weekday)] =
        locale.standaloneDayName(weekday == 0 ? 7 : weekday, QLocale::ShortFormat).toStdString();
  }
  names.firstWeekday = locale.firstDayOfWeek() % 7 + 1;  // Qt's 1 is Monday
  return names;
}

}  // namespace screens::qt
