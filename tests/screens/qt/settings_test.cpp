#include <gtest/gtest.h>

#include <QDir>
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
struct SettingsStore : testing::Test {
  SettingsStore() { QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path()); }

  void Save(std::string_view key, std::string_view value) {
    settings.SaveSetting(kApp, "settings", key, value);
  }

  // As this process has it, or as a new one reads it.
  std::string Held(std::string_view key) {
    return settings.GetSetting(kApp, "settings", key, "none");
  }
  static std::string Stored(std::string_view key, std::string_view section = "settings") {
    return QtSettings().GetSetting(kApp, section, key, "none");
  }

  QTemporaryDir home;
  QString folder = home.filePath(QStringLiteral("Durvela"));
  QFile file{folder + QStringLiteral("/Durvela.ini")};
  QtSettings settings;
};

TEST_F(SettingsStore, KeepsItsSectionsApartAndItsTextsWhole) {
  EXPECT_EQ(Held("city"), "none");
  Save("city", "दिल्ली, \"New\"; =");
  settings.SaveSetting(kApp, "Setting", "city", "not the place");
  EXPECT_EQ(Stored("city"), "दिल्ली, \"New\"; =");
  EXPECT_EQ(Stored("city", "Setting"), "not the place");
}

TEST_F(SettingsStore, TakesInWhatIsWrittenIntoItsFile) {
  Save("city", "Delhi");
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("[settings]\nneither key nor value\ncity=Varanasi\nlat=25.20N, as it is\n");
  file.close();
  EXPECT_EQ(Held("city") + " " + Held("lat"), "Varanasi 25.20N, as it is");
  Save("city", "Mumbai");
  EXPECT_EQ(Stored("city") + " " + Stored("lat"), "Mumbai 25.20N, as it is");
}

TEST_F(SettingsStore, StaysWholeOnAFullDisk) {
  Save("city", "Delhi");
  const std::string longName(1000, 'x');
  const foundation::Setting place[] = {{"city", "Agra"}, {"country", longName}};
  {
    const support::FullDiskScope full(200);
    EXPECT_ERROR(FileAccess, settings.SaveSettings(kApp, "settings", place));
  }
  EXPECT_EQ(Held("city"), "Delhi");
  EXPECT_EQ(Stored("city") + Stored("country"), "Delhinone");
}

TEST_F(SettingsStore, NamesAFileThatCannotBeWrittenAndTriesAgain) {
  const auto fail = [&] {
    EXPECT_EQ(support::FailureOf([&] { Save("city", "Mumbai"); }),
              "The file " + file.fileName().toStdString() + " cannot be written");
    EXPECT_EQ(Held("city"), "none");
  };
  QFile block(folder);
  ASSERT_TRUE(block.open(QIODevice::WriteOnly));
  fail();
  ASSERT_TRUE(block.remove());
  ASSERT_TRUE(QDir().mkpath(file.fileName()));  // which the toolkit finds out when it writes
  fail();
  ASSERT_TRUE(QDir().rmdir(file.fileName()));
  Save("city", "Mumbai");
  EXPECT_EQ(Stored("city"), "Mumbai");
}

}  // namespace
}  // namespace screens::qt
