// The bookmarks of a document and how they hang together.
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

  // Indices of other bookmarks; the parent of those at the top is one beyond the last.
  int parent = 0;
  std::optional<int> previous, next, first, last;
};

// Fills in the indices from the levels and returns the last bookmark at level 1, 0 if there is
// none. Subscript for a level below 0.
int TieBookmarks(std::vector<PDFBookmarkRecord>& bookmarks);

}  // namespace pdf
