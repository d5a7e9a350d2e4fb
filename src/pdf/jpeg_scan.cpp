#include "pdf/jpeg_scan.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "foundation/error.h"

namespace pdf {
namespace {

constexpr std::size_t kMinFileSize = 250;
constexpr int kStartOfImage = 0xFFD8, kEndOfImage = 0xFFD9;
constexpr int kFillBytes = 0xFFFF;
constexpr int kJfifHeader = 0xFFE0;
constexpr std::array kFrameHeaders = {0xFFC0, 0xFFC1, 0xFFC2, 0xFFC3, 0xFFC5, 0xFFC6, 0xFFC7};
constexpr std::array<std::string_view, 3> kResolutionUnits = {"Dots", "Dots/inch (DPI)", "Dots/cm"};

constexpr std::string_view kNotIncluded = "\r\nImpossible d'inclure l'image dans le fichier PDF.";

// Bytes by position, counted from 1.
class JpegBytes {
 public:
  explicit JpegBytes(std::string_view bytes) : bytes_(bytes) {}

  std::size_t Size() const { return bytes_.size(); }
  int Byte(std::size_t position) const {
    if (position > Size()) throw foundation::Error(foundation::ErrorKind::Subscript);
    return static_cast<unsigned char>(bytes_[position - 1]);
  }
  // High byte first.
  int PDFByteWord(std::size_t position) const { return Byte(position) * 256 + Byte(position + 1); }

 private:
  std::string_view bytes_;
};

std::string Refusal(std::string_view reason) {
  return std::string(reason).append(kNotIncluded);
}

void ReadFrame(const JpegBytes& bytes, std::size_t at, PDFImageRecord& record) {
  record.width = bytes.PDFByteWord(at + 7);
  record.height = bytes.PDFByteWord(at + 5);
  switch (const int bits = bytes.Byte(at + 9) * 8) {
    case 8:
      record.colourSpace = "DeviceGray";
      break;
    case 24:
      record.colourSpace = "DeviceRGB";
      break;
    case 32:
      record.colourSpace = "DeviceCMYK";
      break;
    default:
      record.bitsPerComponent = bits;
  }
}

std::string ReadResolution(const JpegBytes& bytes, std::size_t at, PDFImageRecord& record) {
  const int unit = bytes.Byte(at + 11);
  if (unit >= int{kResolutionUnits.size()}) {
    return Refusal("Erreur de résolution d'image , l'Opcode est " + std::to_string(unit) +
                   "Les Opcodes valides sont  0, 1, 2.");
  }
  record.resolutionUnit = kResolutionUnits[static_cast<std::size_t>(unit)];
  return {};
}

std::string ScanMarkers(const JpegBytes& bytes, PDFImageRecord& record) {
  for (std::size_t at = 3; at + 1 < bytes.Size();) {
    const int marker = bytes.PDFByteWord(at);
    if (marker == kFillBytes) {
      while (bytes.Byte(at + 1) == 0xFF) ++at;
    }
    const int length = bytes.PDFByteWord(at + 2);
    if (marker == kJfifHeader) {
      if (auto refusal = ReadResolution(bytes, at, record); !refusal.empty()) return refusal;
    }
    if (std::find(kFrameHeaders.begin(), kFrameHeaders.end(), marker) != kFrameHeaders.end()) {
      ReadFrame(bytes, at, record);
    }
    at += static_cast<std::size_t>(length) + 2;
  }
  return {};
}

}  // namespace

std::string PDFParseJpeg(std::string file, PDFImageRecord& record) {
  const JpegBytes bytes(file);
  if (bytes.Size() < kMinFileSize) return Refusal("Fichier image non JPEG.");
  if (bytes.PDFByteWord(1) != kStartOfImage || bytes.PDFByteWord(bytes.Size() - 1) != kEndOfImage) {
    return Refusal("Marqueur de début JPEG ou marqueur de fin JPEG non valide.");
  }
  if (auto refusal = ScanMarkers(bytes, record); !refusal.empty()) return refusal;
  if (!record.bitsPerComponent) record.bitsPerComponent = 8;
  record.filter = "DCTDecode";
  record.data = std::move(file);
  return {};
}

}  // namespace pdf
