// Bookmarks of a document and the links between them.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "foundation/byte_text.h"

namespace pdf {

struct PDFBookmarkRecord {
  foundation::ByteText title;
  std::int16_t level = 0;
  double y = 0;  // user units
  int page = 0;

  // Indices of other bookmarks; top-level ones have a parent one past the last.
  int parent = 0;
  std::optional<int> previous, next, first, last;
};

// Fills in the indices from the levels. Returns the last bookmark at level 1, or 0 if there is
// none. Subscript for a level below 0.
int LinkBookmarks(std::vector<PDFBookmarkRecord>& bookmarks);

}  // namespace pdf
