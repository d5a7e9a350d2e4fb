// The life cycle of forms in the host: loading, modal windows, timers, unloading.

#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>
#include <functional>

#include "foundation/files.h"
#include "screens/qt/qt_host.h"
#include "screens/qt/qt_machine.h"
#include "screens/qt/run_handler.h"

namespace screens::qt {
namespace {

// Counts its events; its timer lets the event loop run inside the handler.
struct CountingForm : forms::Form {
  CountingForm() : Form("CountingForm", "Counting", 3000, 2000) {
    Timer1.onTimer = [this] {
      EXPECT_EQ(++depth, 1);
      QTest::qWait(20);
      --depth;
      ++ticks;
    };
  }

  CONTROL(Timer, Timer1, {.interval = 5});

  void Form_Load() override { ++loads; }
  void Form_Resize() override { atResize(++resizes); }

  std::function<void(int)> atResize = [](int) {};
  int loads = 0, resizes = 0, ticks = 0, depth = 0;
};

struct Host : testing::Test {
  Host() { host.Show(form); }

  CountingForm form, inner;
  QtHost host;
  FormWindow& window = host.WindowOf(form);
};

TEST_F(Host, KeepsTimersRunningBehindAModalFormWithoutReentry) {
  inner.Timer1.interval = 0;
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, [&] {
    if (form.ticks >= 2) host.Unload(inner);
  });
  poll.start(5);
  host.ShowModal(inner, form);  // returns only if the other form's timer keeps running
}

TEST_F(Host, KeepsAModalFormThroughMinimising) {
  QTimer::singleShot(30, [&] { host.WindowOf(inner).showMinimized(); });
  QTimer::singleShot(150, [&] { host.Unload(inner); });
  host.ShowModal(inner, form);
  EXPECT_FALSE(host.IsShown(inner));
}

TEST_F(Host, ReturnsFromAModalFormThatItsFirstEventUnloads) {
  inner.atResize = [&](int) { host.Unload(inner); };
  host.ShowModal(inner, form);
  EXPECT_EQ(inner.loads, 1);
}

TEST_F(Host, UnloadsAFormThatTheUserCloses) {
  EXPECT_TRUE(QTest::qWaitFor([&] { return form.ticks > 0; }, 20000));
  window.close();
  const int ticks = form.ticks;
  QTest::qWait(100);
  EXPECT_EQ(form.ticks, ticks);
  host.Show(form);
  EXPECT_EQ(form.loads, 2);
}

TEST_F(Host, LaysAFormOutAgainWhenItIsRestored) {
  window.showMinimized();
  const int resizes = form.resizes;
  host.Show(form);
  EXPECT_EQ(form.windowState, forms::WindowState::Normal);
  EXPECT_GT(form.resizes, resizes);

  window.showMaximized();
  form.windowState = forms::WindowState::Minimised;  // as a form minimises itself
  window.Mirror();
  EXPECT_TRUE(window.isMinimized());
  host.Show(form);
  EXPECT_EQ(form.windowState, forms::WindowState::Maximised);
  form.windowState = forms::WindowState::Normal;
  window.Mirror();
  EXPECT_FALSE(window.isMaximized());
}

// The owner is the form whose handler runs, even if another form is active.
TEST_F(Host, MakesTheAskingWindowTheOwnerOfABox) {
  inner.Timer1.interval = 0;
  host.Show(inner);
  host.Show(form);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  const QWindow* owner = nullptr;
  inner.Timer1.onTimer = [&] {
    inner.Timer1.interval = 0;
    QTimer::singleShot(0, [&] {
      QWidget* const box = QApplication::activeModalWidget();
      owner = box->windowHandle()->transientParent();
      box->close();
    });
    QtMessageBoxes().Show("", foundation::MessageIcon::None, foundation::MessageButtons::Ok, {});
  };
  inner.Timer1.interval = 5;
  host.MirrorAll();
  EXPECT_TRUE(QTest::qWaitFor([&] { return owner != nullptr; }));
  EXPECT_EQ(owner, host.WindowOf(inner).windowHandle());
}

// Closes the message box, whose text it logs; the process then ends.
void RunAndFail(const foundation::Error& error) {
  QTimer::singleShot(0, [] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    qInfo().noquote() << box->text();
    box->close();
  });
  RunHandler("frmCity", "lstCity", [&] { throw error; });
}

TEST(FailedHandlers, EndTheProgramAfterABoxThatNamesTheFileOrTheHandler) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(RunAndFail(foundation::Error(foundation::ErrorKind::Subscript)),
              testing::ExitedWithCode(1),
              "Durvela has to close: Subscript out of range in frmCity.lstCity\\.");
  EXPECT_EXIT(
      RunAndFail(foundation::FileError(foundation::ErrorKind::FileAccess, "a.city", "is cut")),
      testing::ExitedWithCode(1), "Durvela has to close: The file a.city is cut\\.");
}

}  // namespace
}  // namespace screens::qt
