// main() for tests: takes the process locale from the environment, as toolkit programs do, and
// checks locale and zone if EXPECTED_PLACE is set.

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <ctime>
#include <iostream>

int main(int argc, char** argv) {
  std::setlocale(LC_ALL, "");
  const std::time_t newYear1970 = 0;
  char zone[16] = "";
  std::strftime(zone, sizeof zone, "%Z", std::localtime(&newYear1970));
  // "C UTC" if the machine lacks the requested ones.
  const std::string place = std::setlocale(LC_ALL, nullptr) + std::string(" ") + zone;
  const char* expected = std::getenv("EXPECTED_PLACE");
  if (expected != nullptr && place != expected) {
    std::cerr << "the tests run in " << place << ", not in " << expected << "\n";
    return EXIT_FAILURE;
  }
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
