#include "pdf/object_file.h"

#include <cerrno>

#include "foundation/files.h"
#include "foundation/numbers.h"
#include "pdf/tokens.h"

namespace pdf {
namespace {

std::string_view FileNameOf(std::string_view path) {
  return path.substr(path.find_last_of("\\/") + 1);
}

}  // namespace

void ObjectFile::Open(const std::string& path, ReaderWindows& readers) {
  path_ = path;
  OpenStream(path);
  if (stream_ || errno != EACCES) return;
  readers.Close("Adobe Reader - [" + std::string(FileNameOf(path)) + "]");
  OpenStream(path);
}

// Buffers several pages to save system calls.
void ObjectFile::OpenStream(const std::string& path) {
  constexpr std::size_t kBufferSize = 1 << 18;
  stream_ = std::ofstream();
  streamBuffer_.resize(kBufferSize);
  stream_.rdbuf()->pubsetbuf(streamBuffer_.data(), static_cast<std::streamsize>(kBufferSize));
  stream_.open(path, std::ios::binary | std::ios::trunc);
}

// Without an open document there is no file to name.
foundation::Error ObjectFile::Unwritable(foundation::ErrorKind kind) const {
  return path_.empty() ? foundation::Error(kind)
                       : foundation::FileError(kind, path_, "cannot be written");
}

void ObjectFile::Close() {
  stream_.close();
  if (!stream_) throw Unwritable(foundation::ErrorKind::FileAccess);
  path_.clear();
}

void ObjectFile::Restart() {
  buffer_.clear();
  counter_ = 0;
  offset_ = 0;
  offsets_.clear();
}

int ObjectFile::BeginObject() {
  counter_ = foundation::RoundToInt16(counter_ + 1);
  buffer_.clear();
  Add({std::to_string(counter_), " 0 obj"});
  return counter_;
}

void ObjectFile::Add(std::initializer_list<std::string_view> parts) {
  PDFAddLine(buffer_, parts);
}

void ObjectFile::EndObject() {
  Add({"endobj"});
  PDFAddOffset(buffer_.size());
  WriteLine(buffer_);
}

void ObjectFile::WriteLine(std::string_view text) {
  if (!stream_.is_open()) throw Unwritable(foundation::ErrorKind::ObjectNotSet);
  stream_ << text << "\r\n";
  if (!stream_) throw Unwritable(foundation::ErrorKind::FileAccess);
}

void ObjectFile::PDFAddOffset(std::size_t length) {
  foundation::RoundToInt16(static_cast<double>(offsets_.size()) + 2);  // the next free slot
  offset_ = foundation::RoundToInt32(offset_ + static_cast<double>(length));
  offsets_.push_back(offset_);
}

void ObjectFile::PDFPutXref(int catalog) {
  const std::string size = std::to_string(counter_ + 1);
  buffer_.clear();
  Add({"xref"});
  Add({"0 ", size});
  Add({"0000000000 65535 f"});
  for (std::size_t i = 0; i + 1 < offsets_.size(); ++i) {
    Add({PDFPadOffset(std::to_string(offsets_[i])), " 00000 n"});
  }
  Add({"trailer"});
  Add({"<< /Size ", size});
  Add({"/Root ", std::to_string(catalog), " 0 R"});
  Add({"/Info 1 0 R"});
  Add({">>"});
  Add({"startxref"});
  Add({std::to_string(offsets_.back())});
  WriteLine(buffer_);
}

}  // namespace pdf
