// A document's file: consecutive numbered objects and the table of their offsets.
#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/error.h"
#include "pdf/reader_windows.h"

namespace pdf {

// Composes an object in a buffer and writes it in one go. The write adds an empty line that the
// offsets do not count, so entry n of the table is 2 * n bytes too low.
class ObjectFile {
 public:
  // Creates or truncates the file. If that fails, so does every write.
  void Open(const std::string& path, ReaderWindows& readers);
  void Close();  // FileAccess if the last bytes cannot be written

  // Discards all objects and offsets.
  void Restart();

  // Starts the next object in the buffer and returns its number.
  int BeginObject();
  void Add(std::initializer_list<std::string_view> parts);  // one line
  void AddBytes(std::string_view bytes) { buffer_ += bytes; }
  void EndObject();

  // Writes a text and a line end. ObjectNotSet without an open file, FileAccess if the write fails.
  void WriteLine(std::string_view text);
  // Overflow beyond 32766 offsets, or 32 bits.
  void PDFAddOffset(std::size_t length);
  // Writes the table and everything after it up to the last offset.
  void PDFPutXref(int catalog);

  int LastObject() const { return counter_; }

 private:
  void OpenStream(const std::string& path);

  foundation::Error Unwritable(foundation::ErrorKind kind) const;

  std::string path_;
  std::vector<char> streamBuffer_;
  std::ofstream stream_;
  std::string buffer_;
  std::int16_t counter_ = 0;
  std::int32_t offset_ = 0;
  std::vector<std::int32_t> offsets_;
};

}  // namespace pdf
