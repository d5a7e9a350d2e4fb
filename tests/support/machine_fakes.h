// Fakes of the machine's services.
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "foundation/machine.h"
#include "foundation/settings.h"

namespace support {

// A machine whose clock shows `now`, a fixed time east of Greenwich.
struct FakeClock : foundation::Clock {
  foundation::DateTime now = 0;
  std::chrono::seconds east = std::chrono::minutes(330);

  void SetInstant(std::chrono::sys_seconds instant) {
    now = foundation::DateTimeOf(std::chrono::local_seconds((instant + east).time_since_epoch()));
  }

  foundation::DateTime Now() const override { return now; }
  std::chrono::sys_seconds InstantNow() const override {
    return std::chrono::sys_seconds(foundation::CivilTimeOf(now).time_since_epoch()) - east;
  }
  std::chrono::seconds OffsetAt(std::chrono::sys_seconds) const override { return east; }
};

struct FakeSettings : foundation::Settings {
  using Entry = std::tuple<std::string, std::string, std::string>;  // application, section, key
  std::map<Entry, std::string> values;

  std::string GetSetting(std::string_view application, std::string_view section,
                         std::string_view key, std::string_view fallback) override {
    const auto found = values.find(Entry(application, section, key));
    return found == values.end() ? std::string(fallback) : found->second;
  }
  void SaveSettings(std::string_view application, std::string_view section,
                    std::span<const foundation::Setting> settings) override {
    for (const auto& [key, value] : settings) values[Entry(application, section, key)] = value;
  }
};

// Records the boxes and returns a preset answer.
struct FakeMessageBoxes : foundation::MessageBoxes {
  struct Box {
    std::string text;
    foundation::MessageIcon icon;
    foundation::MessageButtons buttons;
    std::string title;
  };
  std::vector<Box> shown;
  foundation::MessageAnswer answer = foundation::MessageAnswer::No;

  foundation::MessageAnswer Show(std::string_view text, foundation::MessageIcon icon,
                                 foundation::MessageButtons buttons,
                                 std::string_view title) override {
    shown.push_back({std::string(text), icon, buttons, std::string(title)});
    return answer;
  }
};

// Counts calls and runs the test's code in between.
struct FakeYielder : foundation::Yielder {
  int turns = 0;
  std::function<void(int turn)> between;
  void Yield() override {
    ++turns;
    if (between) between(turns);
  }
};

// Cycles through its numbers.
struct FakeRandomNumbers : foundation::RandomNumbers {
  std::vector<double> numbers = {0.5};
  std::size_t next = 0;
  double Next() override { return numbers[next++ % numbers.size()]; }
};

struct FakeBrowser : foundation::Browser {
  std::vector<std::string> opened;
  void Open(std::string_view address) override { opened.emplace_back(address); }
};

}  // namespace support
