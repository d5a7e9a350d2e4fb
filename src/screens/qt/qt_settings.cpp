#include "screens/qt/qt_settings.h"

#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <QTemporaryFile>

#include "foundation/files.h"
#include "screens/qt/qt_painting.h"

namespace screens::qt {
namespace {

QString Entry(std::string_view section, std::string_view key) {
  return ToQt(section) + u'/' + ToQt(key);
}

foundation::Error Unwritable(const QFileInfo& file) {
  return foundation::FileError(foundation::ErrorKind::FileAccess, file.filePath().toStdString(),
                               "cannot be written");
}

// QSettings does not notice a short write and replaces the old file. FileAccess, with the old file
// untouched, if a disk is nearly full.
void RequireRoomFor(const QFileInfo& file) {
  constexpr qint64 kSpare = 16384;  // for the new values, a lock file and block sizes
  const QDir folder = file.absoluteDir();
  QTemporaryFile trial(folder.filePath(QStringLiteral("trial-XXXXXX")));
  const QByteArray bytes(file.size() + kSpare, ' ');
  if (!folder.mkpath(QStringLiteral(".")) || !trial.open() || trial.write(bytes) != bytes.size() ||
      !trial.flush()) {
    throw Unwritable(file);
  }
}

}  // namespace

QSettings& QtSettings::StoreOf(std::string_view application) {
  auto found = stores_.find(application);
  if (found == stores_.end()) {
    const QString name = ToQt(application);
    auto store =
        std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, name, name);
    store->setFallbacksEnabled(false);
    found = stores_.emplace(application, std::move(store)).first;
  }
  return *found->second;
}

std::string QtSettings::GetSetting(std::string_view application, std::string_view section,
                                   std::string_view key, std::string_view fallback) {
  QSettings& store = StoreOf(application);
  store.sync();  // reads changes by other processes; otherwise only checks the file's date
  const QVariant value = store.value(Entry(section, key));
  if (!value.isValid()) return std::string(fallback);
  // An unquoted comma turns the value into a list.
  return value.toStringList().join(QStringLiteral(", ")).toStdString();
}

void QtSettings::SaveSettings(std::string_view application, std::string_view section,
                              std::span<const foundation::Setting> settings) {
  // A QSettings object that has failed once, even to read, reports every later save as failed.
  if (const auto used = stores_.find(application); used != stores_.end()) stores_.erase(used);
  QSettings& store = StoreOf(application);
  const QFileInfo file(store.fileName());
  RequireRoomFor(file);
  QMap<QString, QVariant> before;
  for (const auto& [key, value] : settings) {
    const QString entry = Entry(section, key);
    before.insert(entry, store.value(entry));
    store.setValue(entry, ToQt(value));
  }
  store.sync();
  // Unreadable lines do not prevent saving.
  if (store.status() != QSettings::AccessError) return;

  // Values that were not saved are not shown either.
  for (auto entry = before.cbegin(); entry != before.cend(); ++entry) {
    if (entry->isValid()) {
      store.setValue(entry.key(), *entry);
    } else {
      store.remove(entry.key());
    }
  }
  throw Unwritable(file);
}

}  // namespace screens::qt
