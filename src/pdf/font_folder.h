// A folder of metric files; each defines a font of the document.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "pdf/font_metrics.h"

namespace pdf {

class FontFolder {
 public:
  // Sets the folder that widths are read from; keeps the names.
  void SetPath(std::filesystem::path folder);

  // Names the fonts after the folder's files whose path contains ".afm", sorted by name ignoring
  // case. Overwrites existing names from the first; any beyond stay. Sets the path if there is such
  // a file. FileNotFound if the folder does not exist, FileAccess if it cannot be listed.
  void PDFLoadAfm(const std::filesystem::path& folder);

  const std::vector<std::string>& Names() const { return names_; }

  // A font's number, from 1; 1 for the empty name, 0 for an unknown one.
  int NumberOf(std::string_view name) const;

  // Widths of the font's characters; the empty name means the first font. FileNotFound if its file
  // is missing, Subscript if there are no fonts, errors of ReadWidths. Files are cached; LookAgain
  // has each checked for a new size or time.
  const WidthTable& Widths(std::string_view name);
  void LookAgain();

 private:
  struct MetricFile {
    std::uintmax_t size = 0;
    std::filesystem::file_time_type time;
    WidthTable widths;
    bool isFresh = false;
  };

  std::filesystem::path path_;
  std::vector<std::string> names_;
  std::map<std::string, MetricFile, std::less<>> files_;
};

}  // namespace pdf
