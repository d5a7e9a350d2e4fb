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

  QString File() const { return folder_.filePath(QStringLiteral("Durvela/Durvela.ini")); }

  void WriteByAnotherProcess(const char* text) {
    QFile file(File());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(text);
  }

  QTemporaryDir folder_;
  QtSettings settings_;
};

TEST_F(SettingsStore, GivesDefaultsWhileItIsEmpty) {
  EXPECT_EQ(settings_.GetSetting(kApp, "settings", "city", "Delhi"), "Delhi");
  EXPECT_FALSE(QFile::exists(File()));
}

TEST_F(SettingsStore, KeepsItsSectionsApartAndItsTextsWhole) {
  settings_.SaveSetting(kApp, "settings", "city", "दिल्ली, \"New\"; =");
  settings_.SaveSetting(kApp, "Setting", "city", "not the place");
  EXPECT_EQ(QtSettings().GetSetting(kApp, "settings", "city", ""), "दिल्ली, \"New\"; =");
  EXPECT_EQ(QtSettings().GetSetting(kApp, "Setting", "city", ""), "not the place");
  EXPECT_EQ(QtSettings().GetSetting("Another", "settings", "city", "none"), "none");
}

TEST_F(SettingsStore, ShowsWhatAnotherProcessWrites) {
  settings_.SaveSetting(kApp, "settings", "city", "Delhi");
  EXPECT_EQ(settings_.GetSetting(kApp, "settings", "city", ""), "Delhi");
  WriteByAnotherProcess("[settings]\ncity=Varanasi\nlat=25.20N, as it is\n");
  EXPECT_EQ(settings_.GetSetting(kApp, "settings", "city", ""), "Varanasi");
  EXPECT_EQ(settings_.GetSetting(kApp, "settings", "lat", ""), "25.20N, as it is");
}

TEST_F(SettingsStore, IsWrittenInSpiteOfALineThatCannotBeRead) {
  settings_.SaveSetting(kApp, "settings", "lat", "28.40N");
  WriteByAnotherProcess("[settings]\nneither key nor value\nlat=25.20N\n");
  settings_.SaveSetting(kApp, "settings", "city", "Mumbai");
  EXPECT_EQ(QtSettings().GetSetting(kApp, "settings", "city", ""), "Mumbai");
  EXPECT_EQ(QtSettings().GetSetting(kApp, "settings", "lat", ""), "25.20N");
}

TEST_F(SettingsStore, StaysWholeOnAFullDisk) {
  settings_.SaveSetting(kApp, "settings", "city", "Delhi");
  const std::string longName(1000, 'x');
  const foundation::Setting place[] = {{"city", "Agra"}, {"country", longName}};
  {
    const support::FullDiskScope full(200);
    EXPECT_ERROR(FileAccess, settings_.SaveSettings(kApp, "settings", place));
  }
  EXPECT_EQ(settings_.GetSetting(kApp, "settings", "city", ""), "Delhi");
  EXPECT_EQ(QtSettings().GetSetting(kApp, "settings", "city", ""), "Delhi");
  EXPECT_EQ(QtSettings().GetSetting(kApp, "settings", "country", "none"), "none");
}

TEST_F(SettingsStore, TellsThatItCannotBeWritten) {
  // A file where the store wants its folder.
  QFile block(folder_.filePath(QStringLiteral("Durvela")));
  ASSERT_TRUE(block.open(QIODevice::WriteOnly));
  EXPECT_ERROR(FileAccess, settings_.SaveSetting(kApp, "settings", "city", "Mumbai"));
  EXPECT_EQ(settings_.GetSetting(kApp, "settings", "city", "Delhi"), "Delhi");
  ASSERT_TRUE(block.remove());
  settings_.SaveSetting(kApp, "settings", "city", "Mumbai");
  EXPECT_EQ(QtSettings().GetSetting(kApp, "settings", "city", ""), "Mumbai");
}

}  // namespace
}  // namespace screens::qt
