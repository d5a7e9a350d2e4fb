#include "bitmap/bmp_file.h"

#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>
#include <utility>

#include "foundation/files.h"
#include "foundation/numbers.h"

namespace bitmap {
namespace {

using foundation::Error;
using foundation::ErrorKind;

constexpr std::uint32_t kInfoSize = 40;
constexpr std::uint32_t kHeaderSize = 14 + kInfoSize;
constexpr double kMetresPerInch = 0.0254;

// Appends a little-endian number.
void Put(std::string& bytes, std::uint32_t number, int size) {
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(number >> 8 * i & 0xFF);
}

std::uint32_t Get(std::string_view bytes, std::size_t at, std::size_t size) {
  std::uint32_t number = 0;
  for (std::size_t i = size; i-- > 0;) {
    number = number << 8 | static_cast<unsigned char>(bytes[at + i]);
  }
  return number;
}

std::string HeaderOf(const Pixels& pixels, std::uint32_t pixelsPerMetre) {
  const auto imageSize = static_cast<std::uint32_t>(pixels.Bytes().size());
  std::string header = "BM";
  Put(header, kHeaderSize + imageSize, 4);
  Put(header, 0, 4);
  Put(header, kHeaderSize, 4);
  Put(header, kInfoSize, 4);
  Put(header, static_cast<std::uint32_t>(pixels.Width()), 4);
  Put(header, static_cast<std::uint32_t>(pixels.Height()), 4);
  Put(header, 1, 2);   // plane
  Put(header, 24, 2);  // bits per pixel
  Put(header, 0, 4);   // not compressed
  Put(header, imageSize, 4);
  Put(header, pixelsPerMetre, 4);
  Put(header, pixelsPerMetre, 4);
  Put(header, 0, 4);  // no colour table
  Put(header, 0, 4);
  return header;
}

// The layout of the rows, as the header describes it.
struct Layout {
  std::size_t start = 0;
  std::size_t bytesPerPixel = 0;
  std::int32_t width = 0;
  std::int64_t height = 0;
  bool topDown = false;

  std::size_t Stride() const {
    return (static_cast<std::size_t>(width) * bytesPerPixel + 3) & ~std::size_t{3};
  }
};

Layout LayoutOf(std::string_view bytes, const std::filesystem::path& file) {
  const Error foreign = foundation::FileError(ErrorKind::InvalidCall, file, "is not a bitmap");
  if (bytes.size() < kHeaderSize || !bytes.starts_with("BM")) throw foreign;
  const auto height = static_cast<std::int32_t>(Get(bytes, 22, 4));
  const std::uint32_t bits = Get(bytes, 28, 2);
  const Layout layout = {Get(bytes, 10, 4), bits / 8, static_cast<std::int32_t>(Get(bytes, 18, 4)),
                         std::abs(std::int64_t{height}), height < 0};
  const bool known = Get(bytes, 14, 4) == kInfoSize && Get(bytes, 26, 2) == 1 &&
                     (bits == 24 || bits == 32) && Get(bytes, 30, 4) == 0;
  if (!known || layout.width < 1 || layout.height < 1 || layout.start < kHeaderSize ||
      layout.start > bytes.size() || Get(bytes, 2, 4) > bytes.size() ||
      Get(bytes, 34, 4) > bytes.size() - layout.start ||
      static_cast<std::size_t>(layout.height) > (bytes.size() - layout.start) / layout.Stride()) {
    throw foreign;
  }
  return layout;
}

void CopyRow(std::string_view from, std::size_t bytesPerPixel, std::span<std::uint8_t> to,
             std::int32_t width) {
  for (std::size_t x = 0; x < static_cast<std::size_t>(width); ++x) {
    for (std::size_t channel = 0; channel < 3; ++channel) {
      to[x * 3 + channel] = static_cast<std::uint8_t>(from[x * bytesPerPixel + channel]);
    }
  }
}

}  // namespace

void WriteBmp(const std::filesystem::path& file, const Pixels& pixels, int dotsPerInch) {
  if (pixels.Empty() || dotsPerInch < 1) throw Error(ErrorKind::InvalidCall);
  const auto pixelsPerMetre =
      static_cast<std::uint32_t>(foundation::RoundToInt32(dotsPerInch / kMetresPerInch));
  std::ofstream stream(file, std::ios::binary);
  stream << HeaderOf(pixels, pixelsPerMetre);
  const std::span<const std::uint8_t> bytes = pixels.Bytes();
  stream.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
  stream.close();
  if (!stream) throw foundation::FileError(ErrorKind::FileAccess, file, "cannot be written");
}

BmpPicture ReadBmp(const std::filesystem::path& file) {
  const std::string bytes = foundation::ReadFile(file);
  const Layout layout = LayoutOf(bytes, file);
  const auto height = static_cast<std::int32_t>(layout.height);
  Pixels pixels(layout.width, height);
  for (std::int32_t y = 0; y < height; ++y) {
    const std::size_t start = layout.start + static_cast<std::size_t>(y) * layout.Stride();
    CopyRow(std::string_view(bytes).substr(start, layout.Stride()), layout.bytesPerPixel,
            pixels.Row(layout.topDown ? height - 1 - y : y), layout.width);
  }
  return {std::move(pixels), foundation::RoundToInt32(Get(bytes, 38, 4) * kMetresPerInch)};
}

}  // namespace bitmap
