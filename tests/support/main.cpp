// main() for tests: takes the process locale from the environment, as toolkit programs do, and
// checks locale and zone if EXPECTED_PLACE is set.

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <string>

namespace {

// The process locale and the zone's abbreviation: "C UTC" if the machine lacks the requested ones.
std::string Place() {
  const std::time_t newYear1970 = 0;
  char zone[16] = "";
  std::strftime(zone, sizeof zone, "%Z", std::localtime(&newYear1970));
  return std::setlocale(LC_ALL, nullptr) + std::string(" ") + zone;
}

}  // namespace

int main(int argc, char** argv) {
  std::setlocale(LC_ALL, "");
  const char* expected = std::getenv("EXPECTED_PLACE");
  if (expected != nullptr && Place() != expected) {
    std::cerr << "the tests run in " << Place() << ", not in " << expected << "\n";
    return EXIT_FAILURE;
  }
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
