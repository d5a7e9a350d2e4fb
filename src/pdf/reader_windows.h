// The programs in which people read documents.
#pragma once

#include <string_view>

namespace pdf {

// A reader that holds a document open keeps it from being written anew.
class ReaderWindows {
 public:
  virtual ~ReaderWindows() = default;
  // Asks the top-level window of that title to close and gives it 17 milliseconds.
  virtual void Close(std::string_view title) = 0;
};

// Where a file that is being read can be written, nothing needs to close.
class NoReaderWindows : public ReaderWindows {
 public:
  void Close(std::string_view) override {}
};

}  // namespace pdf
