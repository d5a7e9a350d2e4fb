#include "screens/qt/form_timer.h"

#include <QDateTime>
#include <utility>

namespace screens::qt {
namespace {

constexpr int kSecond = 1000;  // milliseconds
constexpr int kMargin = 5;     // so that the handler reads the new second

}  // namespace

FormTimer::FormTimer(forms::Control& control, std::function<void()> tick, QObject* parent)
    : QObject(parent), control_(control), tick_(std::move(tick)) {
  timer_.setSingleShot(true);
  timer_.setTimerType(Qt::PreciseTimer);
  connect(&timer_, &QTimer::timeout, this, &FormTimer::Fire);
  Mirror();
}

void FormTimer::Mirror() {
  const int interval = control_.enabled ? control_.interval : 0;
  if (interval == interval_) return;
  interval_ = interval;
  timer_.stop();
  if (!running_) Schedule();
}

void FormTimer::Stop() {
  interval_ = 0;
  timer_.stop();
}

void FormTimer::Schedule() {
  if (interval_ <= 0) return;
  int wait = interval_;
  if (interval_ % kSecond == 0) {
    const auto past = static_cast<int>(QDateTime::currentMSecsSinceEpoch() % kSecond);
    wait += kMargin - past;
  }
  timer_.start(wait);
}

void FormTimer::Fire() {
  running_ = true;
  tick_();
  running_ = false;
  Schedule();
}

}  // namespace screens::qt
