#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "foundation/version.h"
#include "screens/qt/qt_settings.h"
#include "support/errors.h"
#include "support/full_disk.h"

namespace screens::qt {
namespace {

constexpr auto kApp = foundation::kProgramName;

// A store of its own for each test.
class SettingsStore : public testing::Test {
 protected:
  SettingsStore() {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder_.path());
  }

  void Save(std::string_view key, std::string_view value) {
    settings_.SaveSetting(kApp, "settings", key, value);
  }

  // As this process has it, or as a new one reads it.
  std::string Held(std::string_view key) {
    return settings_.GetSetting(kApp, "settings", key, "none");
  }
  static std::string Stored(std::string_view key, std::string_view section = "settings",
                            std::string_view application = kApp) {
    return QtSettings().GetSetting(application, section, key, "none");
  }

  void WriteByAnotherProcess(const char* text) {
    QFile file(folder_.filePath(QStringLiteral("Durvela/Durvela.ini")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(text);
  }

  QTemporaryDir folder_;
  QtSettings settings_;
};

TEST_F(SettingsStore, KeepsItsSectionsApartAndItsTextsWhole) {
  EXPECT_EQ(Held("city"), "none");
  EXPECT_FALSE(QFile::exists(folder_.filePath(QStringLiteral("Durvela"))));
  Save("city", "दिल्ली, \"New\"; =");
  settings_.SaveSetting(kApp, "Setting", "city", "not the place");
  EXPECT_EQ(Stored("city"), "दिल्ली, \"New\"; =");
  EXPECT_EQ(Stored("city", "Setting"), "not the place");
  EXPECT_EQ(Stored("city", "settings", "Another"), "none");
}

TEST_F(SettingsStore, ShowsWhatAnotherProcessWrites) {
  Save("city", "Delhi");
  EXPECT_EQ(Held("city"), "Delhi");
  WriteByAnotherProcess("[settings]\ncity=Varanasi\nlat=25.20N, as it is\n");
  EXPECT_EQ(Held("city"), "Varanasi");
  EXPECT_EQ(Held("lat"), "25.20N, as it is");
}

TEST_F(SettingsStore, IsWrittenInSpiteOfALineThatCannotBeRead) {
  Save("lat", "28.40N");
  WriteByAnotherProcess("[settings]\nneither key nor value\nlat=25.20N\n");
  Save("city", "Mumbai");
  EXPECT_EQ(Stored("city") + Stored("lat"), "Mumbai25.20N");
}

TEST_F(SettingsStore, StaysWholeOnAFullDisk) {
  Save("city", "Delhi");
  const std::string longName(1000, 'x');
  const foundation::Setting place[] = {{"city", "Agra"}, {"country", longName}};
  {
    const support::FullDiskScope full(200);
    EXPECT_ERROR(FileAccess, settings_.SaveSettings(kApp, "settings", place));
  }
  EXPECT_EQ(Held("city"), "Delhi");
  EXPECT_EQ(Stored("city") + Stored("country"), "Delhinone");
}

TEST_F(SettingsStore, TellsThatItCannotBeWritten) {
  // A file where the store wants its folder.
  QFile block(folder_.filePath(QStringLiteral("Durvela")));
  ASSERT_TRUE(block.open(QIODevice::WriteOnly));
  EXPECT_ERROR(FileAccess, Save("city", "Mumbai"));
  EXPECT_EQ(Held("city"), "none");
  ASSERT_TRUE(block.remove());
  Save("city", "Mumbai");
  EXPECT_EQ(Stored("city"), "Mumbai");
}

}  // namespace
}  // namespace screens::qt
