// main() for tests: takes the process locale from the environment, as toolkit programs do, and
// checks for a decimal comma if the run expects one.

#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>

int main(int argc, char** argv) {
  std::setlocale(LC_ALL, "");
  if (std::getenv("EXPECT_DECIMAL_COMMA") != nullptr &&
      std::strcmp(std::localeconv()->decimal_point, ",") != 0) {
    std::fputs("the process locale has no decimal comma\n", stderr);
    return EXIT_FAILURE;
  }
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
