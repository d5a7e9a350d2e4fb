// The settings store: one file per user and application, "<application>/<application>.ini" in the
// user's configuration folder, with a group for each section.
#pragma once

#include <QSettings>
#include <map>
#include <memory>
#include <string>

#include "foundation/settings.h"

namespace screens::qt {

class QtSettings : public foundation::Settings {
 public:
  std::string GetSetting(std::string_view application, std::string_view section,
                         std::string_view key, std::string_view fallback) override;
  void SaveSettings(std::string_view application, std::string_view section,
                    std::span<const foundation::Setting> settings) override;

 private:
  QSettings& StoreOf(std::string_view application);

  std::map<std::string, std::unique_ptr<QSettings>, std::less<>> stores_;
};

}  // namespace screens::qt
