#include "pdf/link_table.h"

#include <utility>

#include "foundation/error.h"

namespace pdf {

void LinkTable::Clear() {
  pages_.clear();
  BeginPage();
}

void LinkTable::Add(int page, LinkRecord link) {
  ++count_;
  if (page < 1 || page > kPages || count_ > kLinksOfPage) {
    throw foundation::Error(foundation::ErrorKind::Subscript);
  }
  pages_[page].push_back(std::move(link));
}

const std::vector<LinkRecord>& LinkTable::Of(int page) const {
  static const std::vector<LinkRecord> kNone;
  const auto found = pages_.find(page);
  return found == pages_.end() ? kNone : found->second;
}

}  // namespace pdf
