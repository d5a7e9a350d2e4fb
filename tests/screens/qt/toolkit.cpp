// The toolkit's application around all tests of a process, dressed as the program's own.

#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

#include "screens/qt/application.h"

namespace screens::qt {
namespace {

class Toolkit : public testing::Environment {
 public:
  void SetUp() override {
    LeaveThemeAside();
    application_ = std::make_unique<QApplication>(argc_, argv_);
    DressApplication();
    foundation::SetUserNames(foundation::EnglishNames());
  }
  void TearDown() override { application_.reset(); }

 private:
  int argc_ = 1;
  char name_[16] = "screens_qt_test";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

const auto* const kToolkit = testing::AddGlobalTestEnvironment(new Toolkit);

}  // namespace
}  // namespace screens::qt
