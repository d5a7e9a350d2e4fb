// A document's file: numbered objects one after the other, and the table of where they stand.
#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "pdf/reader_windows.h"

namespace pdf {

// An object is composed in a buffer and written whole; the write adds an empty line that the
// offsets do not count, so that entry n of the table stands 2 * n bytes below the true position.
class ObjectFile {
 public:
  // Creates the file anew. When it cannot, every write fails.
  void Open(const std::string& path, ReaderWindows& readers);
  void Close();  // FileAccess where the last bytes cannot be written

  // Back to no objects and no offsets.
  void Restart();

  // Starts the next object in the buffer and returns its number.
  int BeginObject();
  void Add(std::initializer_list<std::string_view> parts);  // one line
  void AddBytes(std::string_view bytes) { buffer_ += bytes; }
  void EndObject();

  // Writes a text and a line end. ObjectNotSet without an open file, FileAccess where the write
  // fails.
  void WriteLine(std::string_view text);
  // Overflow beyond 32766 offsets, or 32 bits.
  void PDFAddOffset(std::size_t length);
  // The table and all after it up to the last offset.
  void PDFPutXref(int catalog);

  int LastObject() const { return counter_; }

 private:
  void OpenStream(const std::string& path);

  std::vector<char> streamRoom_;
  std::ofstream stream_;
  std::string buffer_;
  std::int16_t counter_ = 0;
  std::int32_t offset_ = 0;
  std::vector<std::int32_t> offsets_;
};

}  // namespace pdf
