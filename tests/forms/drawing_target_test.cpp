#include "forms/drawing_target.h"

#include <gtest/gtest.h>

#include "foundation/resume.h"
#include "support/errors.h"

namespace forms {
namespace {

TEST(DrawingTarget, RefusesTheMembersThatItLacks) {
  struct TextOnly : DrawingTarget {
    std::string printed;
    void Print(std::string_view text) override { printed = text; }
  } target;
  EXPECT_ERROR(NoSuchMember, target.SetDrawWidth(2));
  EXPECT_ERROR(NoSuchMember, target.TextWidth("W"));
  // Under resume, what it has still goes through.
  foundation::Resume([&] { target.SetRightToLeft(false); });
  foundation::Resume([&] { target.Print("Durvela"); });
  EXPECT_EQ(target.printed, "Durvela");
}

}  // namespace
}  // namespace forms
