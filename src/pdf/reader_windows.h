// Windows of document readers.
#pragma once

#include <string_view>

namespace pdf {

// A reader that holds a document open prevents it from being overwritten.
class ReaderWindows {
 public:
  virtual ~ReaderWindows() = default;
  // Asks the top-level window with this title to close and gives it 17 milliseconds.
  virtual void Close(std::string_view title) = 0;
};

// For systems on which a file can be written while it is open elsewhere.
class NoReaderWindows : public ReaderWindows {
 public:
  void Close(std::string_view) override {}
};

}  // namespace pdf
