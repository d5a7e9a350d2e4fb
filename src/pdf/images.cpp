// JPEG pictures.

#include "foundation/checked.h"
#include "foundation/files.h"
#include "pdf/PDFPrinter.h"
#include "pdf/tokens.h"

namespace pdf {
namespace {

using foundation::Divide;

constexpr std::string_view kSubject = "Fichier Image";

// What is wrong with a file name; empty if it can be a JPEG file.
std::string NameFault(std::string_view name) {
  constexpr std::string_view kOutcome = "\r\nImpossible d'inclure l'image dans le fichier PDF.";
  if (name.find('.') == std::string_view::npos) {
    return ("Le fichier image " + std::string(name) + " ne possède pas d'extension.")
        .append(kOutcome);
  }
  if (name.ends_with("jpg") || name.ends_with("jpeg")) return {};
  return std::string(
             "Format d'image non supportée.\r\nSeule les images de types JPG sont supportées.")
      .append(kOutcome);
}

// A missing file reads as empty.
std::string BytesOf(const std::string& path) {
  try {
    return foundation::ReadFile(path);
  } catch (const foundation::Error& error) {
    if (error.Kind() != foundation::ErrorKind::FileNotFound) throw;
    return {};
  }
}

}  // namespace

bool PDFPrinter::ReadImage(std::string_view file, PDFImageRecord& record) {
  std::string fault = NameFault(file);
  if (fault.empty()) fault = PDFParseJpeg(BytesOf(std::string(file)), record);
  if (!fault.empty()) Complain(kSubject, fault);
  return fault.empty();
}

double PDFPrinter::PDFImageWidth(std::string_view file) {
  PDFImageRecord record;
  return ReadImage(file, record) ? record.width.value_or(0) : 0;
}

double PDFPrinter::PDFImageHeight(std::string_view file) {
  PDFImageRecord record;
  return ReadImage(file, record) ? record.height.value_or(0) : 0;
}

void PDFPrinter::PDFImage(std::string_view file, double x, double y, double w, double h,
                          const Argument& link) {
  PDFImageRecord record;
  if (!ReadImage(file, record)) return;
  const double pixelWidth = record.width.value_or(0), pixelHeight = record.height.value_or(0);
  if (w == 0 && h == 0) {
    w = pixelWidth / page_.scale;
    h = pixelHeight / page_.scale;
  }
  if (w == 0) w = Divide(h * pixelWidth, pixelHeight);
  if (h == 0) h = Divide(w * pixelHeight, pixelWidth);

  images_.push_back(std::move(record));
  AddLine({"q"});
  AddLine({PDFFormatNumber(page_.Across(w), 2), " 0 0 ", PDFFormatNumber(page_.Across(h), 2), " ",
           Point(x, y + h), " cm /ImgJPEG", std::to_string(images_.size()), " Do Q"});
  linked_.imageWidth = w;
  linked_.imageHeight = h;
  PDFAttachLink(link, LinkKind::Image, x, y);
  // Deliberately in points, not user units.
  x_ = page_.Across(x + w);
  y_ = page_.Across(y + h);
}

}  // namespace pdf
