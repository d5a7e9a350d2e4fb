#include "pdf/outline.h"

#include <cstddef>

#include "foundation/error.h"

namespace pdf {
namespace {

// The last bookmark seen at each level; a level never seen reads as the first bookmark.
class LastSeen {
 public:
  int At(int level) const {
    const std::size_t at = Checked(level);
    return at < indices_.size() ? indices_[at] : 0;
  }
  void Set(int level, int index) {
    const std::size_t at = Checked(level);
    if (at >= indices_.size()) indices_.resize(at + 1);
    indices_[at] = index;
  }

 private:
  static std::size_t Checked(int level) {
    if (level < 0) throw foundation::Error(foundation::ErrorKind::Subscript);
    return static_cast<std::size_t>(level);
  }

  std::vector<int> indices_;
};

}  // namespace

int LinkBookmarks(std::vector<PDFBookmarkRecord>& bookmarks) {
  const auto at = [&](int index) -> PDFBookmarkRecord& {
    return bookmarks[static_cast<std::size_t>(index)];
  };
  const int count = static_cast<int>(bookmarks.size());
  LastSeen seen;
  int previousLevel = 0;
  for (int i = 0; i < count; ++i) {
    PDFBookmarkRecord& bookmark = at(i);
    const int level = bookmark.level;
    bookmark.parent = count;
    if (level > 0) {
      bookmark.parent = seen.At(level - 1);
      at(bookmark.parent).last = i;
      if (level > previousLevel) at(bookmark.parent).first = i;
    }
    // The second bookmark never gets a previous one: the bound is 1, not 0.
    if (level <= previousLevel && i > 1) {
      bookmark.previous = seen.At(level);
      at(*bookmark.previous).next = i;
    }
    seen.Set(level, i);
    previousLevel = level;
  }
  return seen.At(1);
}

}  // namespace pdf
