// One QApplication for all tests of a process, styled as in the program.

#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

#include "screens/qt/application.h"

namespace screens::qt {
namespace {

struct Toolkit : testing::Environment {
  void SetUp() override {
    LeaveThemeAside();
    application = std::make_unique<QApplication>(count, names);
    DressApplication();
    foundation::SetUserNames(foundation::EnglishNames());
  }
  void TearDown() override { application.reset(); }

  char name[16] = "screens_qt_test", *names[2] = {name, nullptr};
  int count = 1;
  std::unique_ptr<QApplication> application;
};

const auto* const kToolkit = testing::AddGlobalTestEnvironment(new Toolkit);

}  // namespace
}  // namespace screens::qt
