// JPEG files put together by hand, and what a document makes of them.

#include <gtest/gtest.h>

#include "paper.h"
#include "support/errors.h"

namespace pdf {
namespace {

std::string Word(std::size_t value) {
  return {static_cast<char>(value / 256), static_cast<char>(value % 256)};
}

std::string Jfif(char unit) {
  return "\xFF\xE0" + Word(16) + std::string("JFIF\0\1\1", 7) + unit + std::string(6, '\0');
}

std::string Frame(char marker, int width, int height, char components) {
  return std::string("\xFF") + marker + Word(8) + '\x08' + Word(static_cast<std::size_t>(height)) +
         Word(static_cast<std::size_t>(width)) + components;
}

// Filled up to a size with a comment that ends at the end marker.
std::string Jpeg(const std::string& segments, std::size_t size = 250) {
  std::string file = "\xFF\xD8" + segments;
  const std::size_t rest = size - file.size() - 4;
  return file + "\xFF\xFE" + Word(rest) + std::string(rest - 2, 'x') + "\xFF\xD9";
}

TEST(JpegScan, FindsSizeAndColours) {
  const auto finds = [](const std::string& segments, int width, int height, int bits,
                        std::string_view colourSpace) {
    PDFImageRecord record;
    EXPECT_EQ(PDFParseJpeg(Jpeg(segments), record), "");
    EXPECT_EQ(std::tuple(record.width, record.height, record.bitsPerComponent, record.colourSpace),
              std::tuple(width, height, bits, colourSpace));
    EXPECT_EQ(record.data, Jpeg(segments));
  };
  finds(Jfif(0) + Frame('\xC0', 20, 12, 1), 20, 12, 8, "DeviceGray");
  finds(Jfif(2) + Frame('\xC2', 600, 400, 3), 600, 400, 8, "DeviceRGB");
  finds(Frame('\xC7', 1, 65535, 4), 1, 65535, 8, "DeviceCMYK");
  finds(Frame('\xC1', 3, 2, 2), 3, 2, 16, "");
  finds(Frame('\xC4', 3, 2, 3) + Frame('\xC0', 20, 12, 3), 20, 12, 8, "DeviceRGB");
  finds(Frame('\xC0', 20, 12, 3) + Frame('\xC5', 9, 8, 1), 9, 8, 8, "DeviceGray");
  // Fill bytes hide the marker behind them.
  finds("\xFF" + Frame('\xC0', 20, 12, 3) + Frame('\xC0', 9, 8, 1), 9, 8, 8, "DeviceGray");
}

TEST(JpegScan, RefusesWhatItCannotUse) {
  const std::string outcome = "\r\nImpossible d'inclure l'image dans le fichier PDF.";
  const std::string marker = "Marqueur de début JPEG ou marqueur de fin JPEG non valide.";
  std::string late = Jpeg("");
  late[0] = 'x';
  const std::pair<std::string, std::string> rows[] = {
      {Jpeg("", 249), "Fichier image non JPEG."},
      {Jpeg("") + "\n", marker},
      {late, marker},
      {Jpeg(Jfif(3)),
       "Erreur de résolution d'image , l'Opcode est 3Les Opcodes valides sont  0, 1, 2."}};
  for (const auto& [file, text] : rows) {
    PDFImageRecord record;
    EXPECT_EQ(PDFParseJpeg(file, record), text + outcome);
  }
  // A comment that ends one byte short of the end marker.
  std::string lying = Jpeg("");
  lying[5] = static_cast<char>(lying[5] - 1);
  PDFImageRecord record;
  EXPECT_ERROR(Subscript, PDFParseJpeg(lying, record));
}

using Images = PaperTest;

TEST_F(Images, ArePlacedInTheirSize) {
  // Inches to an operation, and the position then: points, whatever the unit.
  const auto placed = [](double width, double height, const std::string& operation, int x, int y) {
    Paper paper;
    paper.folder.Write("a.jpg", Jpeg(Frame('\xC0', 60, 30, 3)));
    PDFPrinter& p = paper.printer;
    p.PDFSetUnit(3);
    p.PDFImage((paper.folder.path / "a.jpg").string(), 200, 200, width * 1440, height * 1440, "");
    EXPECT_EQ(std::tuple(p.PDFGetX(), p.PDFGetY()), std::tuple(x, y));
    EXPECT_EQ(paper.Content(), AsWritten("q\n" + operation + " /ImgJPEG1 Do Q\n"));
  };
  placed(0, 0, "60.00 0 0 30.00 10.00 801.89 cm", 70, 40);
  placed(2, 0, "144.00 0 0 72.00 10.00 759.89 cm", 154, 82);
  placed(0, 2, "288.00 0 0 144.00 10.00 687.89 cm", 298, 154);
  placed(1, 1, "72.00 0 0 72.00 10.00 759.89 cm", 82, 82);
}

TEST_F(Images, StandWholeInTheirObjects) {
  const std::string jpeg = Jpeg(Jfif(1));
  folder.Write("a.jpeg", jpeg);
  const std::string file = (folder.path / "a.jpeg").string();
  EXPECT_EQ(printer.PDFImageWidth(file), 0);
  printer.PDFImage(file, 1, 1, 5, 5, 7);
  EXPECT_EQ(boxes.shown.at(0).title, "Lien URL Fichier Image - vrPDF 4.0");
  EXPECT_ERROR(DivisionByZero, printer.PDFImage(file, 1, 1, 0, 0, ""));
  const std::string whole = Whole();
  EXPECT_TRUE(Holds(whole, AsWritten("/XObject << \n/ImgJPEG1 9 0 R\n>>\n")));
  EXPECT_TRUE(
      Holds(whole,
            AsWritten("9 0 obj\n<</Type /XObject\n/Subtype /Image\n/Filter [/DCTDecode ]\n/Width \n"
                      "/Height \n/ColorSpace /\n/BitsPerComponent 8\n/Length 250\n"
                      "/Name /ImgJPEG1>>\nstream\n") +
                jpeg + AsWritten("\nendstream\nendobj\n\n10 0 obj\n")));
}

TEST_F(Images, AreRefusedByTheirNames) {
  const std::string outcome = "\r\nImpossible d'inclure l'image dans le fichier PDF.";
  const std::string kind =
      "Format d'image non supportée.\r\nSeule les images de types JPG sont supportées.";
  const std::pair<std::string_view, std::string> rows[] = {
      {"picture", "Le fichier image picture ne possède pas d'extension."},
      {"A.JPG", kind},
      {"a.png", kind},
      {"missing.jpg", "Fichier image non JPEG."}};
  for (const auto& [name, text] : rows) {
    Paper paper;
    EXPECT_EQ(paper.printer.PDFImageHeight(name), 0);
    ASSERT_EQ(paper.boxes.shown.size(), 1U);
    EXPECT_EQ(paper.boxes.shown[0].text, text + outcome);
    EXPECT_EQ(paper.boxes.shown[0].title, "Fichier Image - vrPDF 4.0");
    paper.printer.PDFImage(name, 1, 1, 1, 1, "");
    EXPECT_EQ(paper.Content(), "");
  }
}

}  // namespace
}  // namespace pdf
