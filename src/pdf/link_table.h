// The links of all pages.
#pragma once

#include <map>
#include <optional>
#include <vector>

#include "foundation/byte_text.h"

namespace pdf {

// Points, the origin at the bottom left of the page; y is the upper edge. The size of a text, in
// points already, has also been multiplied by the unit.
struct LinkRecord {
  double x = 0, y = 0, width = 0, height = 0;
  std::optional<foundation::ByteText> address;  // nothing if the target is no text
};

class LinkTable {
 public:
  static constexpr int kPages = 1000;
  static constexpr int kLinksOfPage = 1000;

  void Clear();
  // Restarts the count of links for a new page.
  void BeginPage() { count_ = 0; }
  // Subscript for a page that is not 1 to 1000, or beyond the thousandth link of a page.
  void Add(int page, LinkRecord link);
  const std::vector<LinkRecord>& Of(int page) const;

 private:
  std::map<int, std::vector<LinkRecord>> pages_;
  int count_ = 0;
};

}  // namespace pdf
