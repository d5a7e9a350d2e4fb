// The life of forms in the host: loading, modal windows, timers, unloading.

#include <gtest/gtest.h>

#include <QTimer>
#include <algorithm>
#include <cstdlib>

#include "foundation/error.h"
#include "screens/qt/driving.h"
#include "screens/qt/qt_host.h"
#include "screens/qt/run_handler.h"

namespace screens::qt {
namespace {

void RunFor(int milliseconds) {
  RunUntil([] { return false; }, milliseconds);
}

// Counts what happens to it; its timer lets the event loop run inside the handler.
struct CountingForm : forms::Form {
  CountingForm() : Form("CountingForm", "Counting", 3000, 2000) {
    Timer1.onTimer = [this] {
      ++ticks;
      deepest = std::max(deepest, ++depth);
      RunFor(20);
      --depth;
    };
  }

  CONTROL(Timer, Timer1, {.interval = 5});
  CONTROL(PictureBox, Box, {.place = {300, 300, 1500, 900}});
  CONTROL(Label, Inside, {.container = &Box, .place = {150, 150, 300, 300}, .caption = "x"});
  CONTROL(Line, Rising,
          {.ends = {0, 1500, 1500, 0}, .borderColour = forms::Rgb(0xFF0000), .borderWidth = 2});

  void Form_Load() override { ++loads; }
  void Form_Resize() override { ++resizes; }

  int loads = 0, resizes = 0, ticks = 0, depth = 0, deepest = 0;
};

struct Host : testing::Test {
  CountingForm form, inner;
  QtHost host;
};

TEST_F(Host, TicksOnBelowAModalFormWithoutEnteringATimerTwice) {
  host.Show(form);
  inner.Timer1.interval = 0;
  const int before = form.ticks;
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, [&] {
    if (form.ticks >= before + 2) host.Unload(inner);
  });
  poll.start(5);
  host.ShowModal(inner, form);  // comes back only if the timer of the other form goes on
  EXPECT_EQ(form.deepest, 1);
}

TEST_F(Host, KeepsAModalFormThroughMinimising) {
  host.Show(form);
  bool unloaded = false;
  QTimer::singleShot(30, [&] { host.WindowOf(inner).showMinimized(); });
  QTimer::singleShot(150, [&] {
    unloaded = true;
    host.Unload(inner);
  });
  host.ShowModal(inner, form);
  EXPECT_TRUE(unloaded);
  host.Unload(form);  // and its own window alone
  host.Show(inner);
  EXPECT_EQ(inner.loads, 2);
}

TEST_F(Host, ComesBackFromAModalFormThatGoesAtOnce) {
  struct Fleeting : CountingForm {
    explicit Fleeting(QtHost& h) : at(h) {}
    void Form_Load() override {
      CountingForm::Form_Load();
      if (loads == 1) at.Unload(*this);
    }
    void Form_Resize() override { at.Unload(*this); }
    QtHost& at;
  };
  Fleeting fleeting(host);
  host.Show(form);
  host.ShowModal(fleeting, form);  // unloaded while it loads
  host.ShowModal(fleeting, form);  // unloaded by its first event
  EXPECT_EQ(fleeting.loads, 2);
}

TEST_F(Host, UnloadsAFormThatTheUserCloses) {
  host.Show(form);
  RunUntil([&] { return form.ticks > 0; });
  host.WindowOf(form).close();
  const int ticks = form.ticks;
  EXPECT_GT(ticks, 0);
  RunFor(100);
  EXPECT_EQ(form.ticks, ticks);
  host.Show(form);
  EXPECT_EQ(form.loads, 2);
}

TEST_F(Host, LaysAFormOutAgainWhenItComesBack) {
  host.Show(form);
  FormWindow& window = host.WindowOf(form);
  window.showMinimized();
  EXPECT_EQ(form.windowState, forms::WindowState::Minimised);
  const int resizes = form.resizes;
  host.Show(form);
  EXPECT_EQ(form.windowState, forms::WindowState::Normal);
  EXPECT_GT(form.resizes, resizes);

  window.showMaximized();
  form.windowState = forms::WindowState::Minimised;  // as a form does it for itself
  window.Mirror();
  EXPECT_TRUE(window.isMinimized());
  host.Show(form);
  EXPECT_EQ(form.windowState, forms::WindowState::Maximised);
  form.windowState = forms::WindowState::Normal;
  window.Mirror();
  EXPECT_FALSE(window.isMaximized());
}

TEST_F(Host, PlacesControlsInTheirContainerAndLinesByTheirEnds) {
  const QImage shown = host.WindowOf(form).grab().toImage();
  EXPECT_GT(shown.pixelColor(98, 2).red(), 100);
  EXPECT_GT(shown.pixelColor(50, 50).red(), 100);
  EXPECT_EQ(shown.pixelColor(2, 2).red(), 0);
  const auto* inside = Find<QWidget>(host.WindowOf(form), "Inside");
  EXPECT_EQ(inside->mapTo(&host.WindowOf(form), QPoint()), QPoint(30, 30));
}

TEST(FailedHandlers, EndTheProgramAfterOneBox) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        QTimer::singleShot(0, [] {
          if (QApplication::activeModalWidget() == nullptr) std::_Exit(7);
          QApplication::activeModalWidget()->close();
        });
        RunHandler([] { throw foundation::Error(foundation::ErrorKind::Subscript); });
      },
      testing::ExitedWithCode(1), "");
}

}  // namespace
}  // namespace screens::qt
