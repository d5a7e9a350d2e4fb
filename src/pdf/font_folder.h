// The folder of metric files, each of which is a font of the document.
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
  // The folder that widths are read from; the names stay.
  void SetPath(std::filesystem::path folder);

  // Names the fonts after the folder's files whose path holds ".afm", in the order of their names,
  // case aside. Names that stood before are overwritten from the first one on; those beyond stay.
  // Sets the path if there is any such file. FileNotFound without the folder, FileAccess where it
  // cannot be listed.
  void PDFLoadAfm(const std::filesystem::path& folder);

  const std::vector<std::string>& Names() const { return names_; }

  // A font's number, from 1; 1 for the empty name, 0 for one that is not here.
  int NumberOf(std::string_view name) const;

  // Widths of the font's characters, those of the first font for the empty name. FileNotFound
  // without its file, Subscript without any font, and the errors of ReadWidths. Files are kept
  // until LookAgain, and then looked at for a new size or time.
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
