#include "forms/drawing_target.h"

#include <gtest/gtest.h>

#include "foundation/resume.h"
#include "support/errors.h"
#include "support/screen_fakes.h"

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

TEST(DrawingTarget, IsRecordedCallByCall) {
  support::RecordingTarget target;
  target.SetCurrentX(200);
  target.SetCurrentY(50.5);
  target.Print("W");
  target.Print("X");
  EXPECT_EQ(target.calls, (std::vector<std::string>{"CurrentX 200", "CurrentY 50.5",
                                                    "Print 200 50.5 W", "Print 200 290.5 X"}));
  EXPECT_EQ(target.TextWidth("शनि"), 300);
}

}  // namespace
}  // namespace forms
