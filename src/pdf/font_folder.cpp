#include "pdf/font_folder.h"

#include <algorithm>
#include <utility>

#include "foundation/files.h"
#include "foundation/text.h"

namespace pdf {
namespace {

namespace fs = std::filesystem;

using foundation::Error;
using foundation::ErrorKind;

constexpr std::string_view kExtension = ".afm";

// Names of the metric files, sorted ignoring case.
std::vector<std::string> MetricFileNames(const fs::path& folder) {
  std::error_code failure;
  const std::string named = "The folder " + folder.string();
  if (!fs::is_directory(folder, failure)) {
    throw Error(ErrorKind::FileNotFound, named + " does not exist");
  }
  const fs::directory_iterator entries(fs::absolute(folder), failure);
  if (failure) throw Error(ErrorKind::FileAccess, named + " cannot be read");
  std::vector<std::pair<std::string, std::string>> files;  // folded name, name
  for (const auto& entry : entries) {
    if (!entry.is_regular_file(failure)) continue;
    if (foundation::FoldCase(entry.path().string()).find(kExtension) == std::string::npos) continue;
    const std::string name = entry.path().filename().string();
    files.emplace_back(foundation::FoldCase(name), name);
  }
  std::sort(files.begin(), files.end());
  std::vector<std::string> names;
  for (auto& [folded, name] : files) names.push_back(std::move(name));
  return names;
}

// The file of that name, or else one that differs only in case.
fs::path FileOf(const fs::path& folder, const std::string& name) {
  std::error_code failure;
  if (fs::exists(folder / name, failure)) return folder / name;
  const std::string folded = foundation::FoldCase(name);
  for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end;
       entry.increment(failure)) {
    if (foundation::FoldCase(entry->path().filename().string()) == folded) return entry->path();
  }
  return folder / name;
}

WidthTable WidthsOf(const fs::path& file) {
  const std::string metrics = foundation::ReadFile(file);
  try {
    return ReadWidths(metrics);
  } catch (const Error& error) {
    throw foundation::FileError(error.Kind(), file, "is not a font metric file");
  }
}

std::string WithoutExtension(std::string_view name) {
  const auto length = foundation::Characters(name).size();
  return std::string(
      foundation::FirstCharacters(name, static_cast<int>(length) - int{kExtension.size()}));
}

}  // namespace

void FontFolder::SetPath(fs::path folder) {
  path_ = std::move(folder);
  files_.clear();
}

void FontFolder::PDFLoadAfm(const fs::path& folder) {
  const auto files = MetricFileNames(folder);
  names_.resize(std::max(names_.size(), files.size()));
  for (std::size_t i = 0; i < files.size(); ++i) names_[i] = WithoutExtension(files[i]);
  if (!files.empty()) SetPath(folder);
}

int FontFolder::NumberOf(std::string_view name) const {
  if (name.empty()) return 1;
  const auto found = std::find(names_.begin(), names_.end(), name);
  return found == names_.end() ? 0 : static_cast<int>(found - names_.begin()) + 1;
}

const WidthTable& FontFolder::Widths(std::string_view name) {
  if (name.empty()) {
    if (names_.empty()) throw Error(ErrorKind::Subscript);
    name = names_.front();
  }
  const auto known = files_.find(name);
  if (known != files_.end() && known->second.isFresh) return known->second.widths;

  const fs::path path = FileOf(path_, std::string(name).append(kExtension));
  std::error_code failure;
  const auto size = fs::file_size(path, failure);
  const auto time = fs::last_write_time(path, failure);
  if (failure || known == files_.end() || known->second.size != size ||
      known->second.time != time) {
    const MetricFile read = {size, time, WidthsOf(path), true};
    return (files_.insert_or_assign(std::string(name), read).first)->second.widths;
  }
  known->second.isFresh = true;
  return known->second.widths;
}

void FontFolder::LookAgain() {
  for (auto& [name, file] : files_) file.isFresh = false;
}

}  // namespace pdf
