#include "screens/qt/qt_settings.h"

#include "foundation/error.h"
#include "screens/qt/qt_painting.h"

namespace screens::qt {
namespace {

QString Entry(std::string_view section, std::string_view key) {
  return ToQt(section) + u'/' + ToQt(key);
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
  store.sync();  // takes in what another process has written; a look at the file's date if nothing
  const QVariant value = store.value(Entry(section, key));
  if (!value.isValid()) return std::string(fallback);
  // A comma typed into the file by hand makes a list of the value.
  return value.toStringList().join(QStringLiteral(", ")).toStdString();
}

void QtSettings::SaveSetting(std::string_view application, std::string_view section,
                             std::string_view key, std::string_view value) {
  QSettings& store = StoreOf(application);
  const QString entry = Entry(section, key);
  const QVariant before = store.value(entry);
  store.setValue(entry, ToQt(value));
  store.sync();
  // A file with a line that cannot be read is written all the same.
  if (store.status() != QSettings::AccessError) return;

  // What was not saved is not shown either; and the next try gets an object without this error.
  if (before.isValid()) {
    store.setValue(entry, before);
  } else {
    store.remove(entry);
  }
  stores_.erase(stores_.find(application));
  throw foundation::Error(foundation::ErrorKind::FileAccess);
}

}  // namespace screens::qt
