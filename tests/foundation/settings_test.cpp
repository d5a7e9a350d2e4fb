// The settings file, also when several programs use it.

#include <sys/resource.h>
#include <sys/stat.h>

#include <fstream>
#include <thread>
#include <vector>

#include "foundation/files.h"
#include "foundation/settings_file.h"
#include "support/full_disk.h"
#include "support/temporary_folder.h"
#include "support/test.h"

namespace foundation {
namespace {

namespace fs = std::filesystem;
using namespace std::literals;

struct Store : testing::Test {
  void Save(std::string_view key, std::string_view value) {
    settings.SaveSetting("Durvela", "settings", key, value);
  }

  // The value in this process, and as a new process reads it.
  std::string Held(std::string_view key) {
    return settings.GetSetting("Durvela", "settings", key, "none");
  }
  static std::string Stored(std::string_view key, std::string_view section = "settings") {
    return SettingsFile().GetSetting("Durvela", section, key, "none");
  }

  void Write(std::string_view bytes) const { home.Write("Durvela/Durvela.ini", bytes); }
  auto FilesInFolder() const {
    return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
  }

  support::ConfigFolderScope home;
  fs::path folder = home.path / "Durvela";
  fs::path file = folder / "Durvela.ini";
  SettingsFile settings;
};

TEST_F(Store, KeepsItsSectionsApart) {
  EXPECT_EQ(Held("city"), "none");
  Save("city", "दिल्ली");
  settings.SaveSetting("Durvela", "Setting", "city", "not the place");
  EXPECT_EQ(Stored("city") + ", " + Stored("city", "Setting"), "दिल्ली, not the place");
}

// Changes of the same size, many within one tick of the clock for file times; one keeps the time.
TEST_F(Store, SeesEveryChangeToItsFile) {
  Write("[settings]\ncity=\n");
  for (int i = 100; i < 400; ++i) {
    std::fstream(file, std::ios::in | std::ios::out) << "[settings]\ncity=" << i;
    ASSERT_EQ(Held("city"), std::to_string(i));
  }
  const auto time = fs::last_write_time(file);
  std::this_thread::sleep_for(50ms);
  EXPECT_EQ(Held("city"), "399");
  Write("[settings]\ncity=400");
  fs::last_write_time(file, time);
  EXPECT_EQ(Held("city"), "400");
  fs::remove(file);
  EXPECT_EQ(Held("city"), "none");
}

// No file can be opened for a while, and none changes.
TEST_F(Store, ReadsAgainAfterAFailure) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "The sanitizer opens a pipe to check objects, so it needs free file numbers.";
#endif
  Write("[settings]\ncity=Agra\n");
  std::this_thread::sleep_for(50ms);
  rlimit before = {};
  getrlimit(RLIMIT_NOFILE, &before);
  const rlimit none = {0, before.rlim_max};
  setrlimit(RLIMIT_NOFILE, &none);
  EXPECT_EQ(Held("city"), "none");
  setrlimit(RLIMIT_NOFILE, &before);
  EXPECT_EQ(Held("city"), "Agra");
}

TEST_F(Store, KeepsPermissionsAndLinks) {
  const fs::path target = home.path / "dotfiles" / "mine.ini";
  fs::create_directories(folder);
  fs::create_directory(target.parent_path());
  fs::create_symlink("../dotfiles/link", file);
  fs::create_symlink("mine.ini", target.parent_path() / "link");
  Save("city", "Agra");  // the links still point nowhere
  chmod(target.c_str(), 0640);
  Save("city", "Pune");
  EXPECT_TRUE(fs::is_symlink(file));
  EXPECT_EQ(fs::status(target).permissions(), fs::perms(0640));
  EXPECT_EQ(ReadFile(target), "[settings]\ncity=Pune\n");
}

TEST_F(Store, SurvivesAFullDisk) {
  Write("; mine\n[settings]\ncity=Delhi\n");
  const std::string longName(1000, 'x');
  const Setting place[] = {{"city", "Agra"}, {"country", longName}};
  {
    const support::FullDiskScope full(200);
    EXPECT_ERROR(FileAccess, settings.SaveSettings("Durvela", "settings", place));
  }
  EXPECT_EQ(ReadFile(file), "; mine\n[settings]\ncity=Delhi\n");
  EXPECT_EQ(FilesInFolder(), 1);
  settings.SaveSettings("Durvela", "settings", place);
  EXPECT_EQ(Stored("city") + Stored("country"), "Agra" + longName);
}

// A file instead of the folder, a folder instead of the file, a link to itself.
TEST_F(Store, NamesAnUnusableFileAndTriesAgain) {
  const auto failure = [&] {
    const std::string message = support::FailureOf([&] { Save("city", "Mumbai"); });
    EXPECT_EQ(Held("city"), "none");
    fs::remove(fs::is_directory(folder) ? file : folder);
    return message;
  };
  const std::string named = "The file " + file.string();
  std::ofstream(folder).close();
  EXPECT_EQ(failure(), named + " cannot be written");
  fs::create_directories(file);
  EXPECT_EQ(failure(), named + " cannot be read");
  fs::create_symlink("Durvela.ini", file);
  EXPECT_EQ(failure(), named + " cannot be written");
  Save("city", "Mumbai");
  EXPECT_EQ(Stored("city"), "Mumbai");
  EXPECT_EQ(FilesInFolder(), 1);
}

// Threads lock each other out like processes, because each opens the folder separately.
TEST_F(Store, LosesNoKeyToSimultaneousSaves) {
  constexpr int kSavers = 4, kKeys = 40;
  {
    std::vector<std::jthread> savers;
    for (int saver = 0; saver < kSavers; ++saver) {
      savers.emplace_back([saver] {
        for (int i = saver; i < kKeys; i += kSavers) {
          SettingsFile().SaveSetting("Durvela", "settings", std::to_string(i), std::to_string(i));
        }
      });
    }
  }
  for (int i = 0; i < kKeys; ++i) EXPECT_EQ(Held(std::to_string(i)), std::to_string(i));
  EXPECT_EQ(FilesInFolder(), 1);
}

}  // namespace
}  // namespace foundation
