#include "foundation/legacy_hindi.h"

#include <gtest/gtest.h>

namespace foundation {
namespace {

TEST(LegacyHindi, ReadsAsItIsSpelled) {
  const std::pair<std::string_view, std::string_view> texts[] = {
#include "foundation/legacy_hindi.inc"
  };
  for (const auto& [legacy, unicode] : texts) EXPECT_EQ(FromLegacyHindi(legacy), unicode) << legacy;
  EXPECT_EQ(FromLegacyHindi(""), "");
}

}  // namespace
}  // namespace foundation
