#include "atlas/city_file.h"

#include <algorithm>
#include <fstream>
#include <utility>

#include "foundation/files.h"
#include "foundation/folders.h"
#include "foundation/text.h"

namespace atlas {

namespace fs = std::filesystem;

fs::path CityFile(std::string_view country) {
  const fs::path file = foundation::AtlasFolder() / std::string(country).append(kCityExtension);
  if (country.find('/') != std::string_view::npos) {
    throw foundation::FileError(foundation::ErrorKind::FileNotFound, file, "does not exist");
  }
  return file;
}

std::vector<std::string> Countries() {
  std::vector<std::string> names;
  std::error_code failure;
  for (fs::directory_iterator entry(foundation::AtlasFolder(), failure), end;
       !failure && entry != end; entry.increment(failure)) {
    std::string name = entry->path().filename().string();
    std::error_code unknown;
    if (!name.ends_with(kCityExtension) || !entry->is_regular_file(unknown)) continue;
    name.resize(name.size() - kCityExtension.size());
    names.push_back(std::move(name));
  }
  std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
    const std::string foldedA = foundation::FoldCase(a), foldedB = foundation::FoldCase(b);
    return foldedA != foldedB ? foldedA < foldedB : a < b;
  });
  return names;
}

CityReader::CityReader(fs::path file)
    : file_(std::move(file)), bytes_(foundation::ReadFile(file_)) {}

bool CityReader::AtEnd() {
  if (at_ == bytes_.size()) ReadAppended();
  return at_ == bytes_.size() && !afterComma_;
}

foundation::ByteText CityReader::Item() {
  const std::string_view rest = std::string_view(bytes_).substr(at_);
  const std::size_t begin = std::min(rest.find_first_not_of(' '), rest.size());
  const std::size_t end = std::min(rest.find_first_of(",\r\n", begin), rest.size());
  const std::string_view behind = rest.substr(end);
  afterComma_ = behind.starts_with(',');
  at_ += end + (behind.starts_with("\r\n") ? 2 : behind.empty() ? 0 : 1);
  return foundation::ByteText(std::string(rest.substr(begin, end - begin)));
}

void CityReader::ReadAppended() {
  std::error_code unknown;
  const auto size = fs::file_size(file_, unknown);
  if (unknown || size <= bytes_.size()) return;
  bytes_ += foundation::ReadFile(file_).substr(bytes_.size());
}

void WriteLines(const fs::path& file, Writing writing,
                const std::vector<foundation::ByteText>& lines) {
  const auto mode = writing == Writing::AtEnd ? std::ios::app : std::ios::trunc;
  std::ofstream stream(file, std::ios::binary | std::ios::out | mode);
  for (const foundation::ByteText& line : lines) stream << line.Bytes() << "\r\n";
  stream.close();
  if (!stream) {
    throw foundation::FileError(foundation::ErrorKind::FileAccess, file, "cannot be written");
  }
}

}  // namespace atlas
