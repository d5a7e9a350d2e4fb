// Hand-made JPEG files, and how a document embeds them.

#include "paper.h"

namespace pdf {
namespace {

std::string Word(std::size_t value) {
  return {static_cast<char>(value / 256), static_cast<char>(value % 256)};
}

std::string Jfif(char unit) {
  return "\xFF\xE0" + Word(16) + std::string("JFIF\0\1\1", 7) + unit + std::string(6, '\0');
}

std::string Frame(char marker, std::size_t width, std::size_t height, char components) {
  return std::string("\xFF") + marker + Word(8) + '\x08' + Word(height) + Word(width) + components;
}

// Padded to a size with a comment that ends at the end marker.
std::string Jpeg(const std::string& segments, std::size_t size = 250) {
  std::string file = "\xFF\xD8" + segments;
  const std::size_t rest = size - file.size() - 4;
  return file + "\xFF\xFE" + Word(rest) + std::string(rest - 2, 'x') + "\xFF\xD9";
}

TEST(JpegScan, FindsSizeAndColours) {
  const auto found = [](const std::string& segments) {
    PDFImageRecord record;
    EXPECT_EQ(PDFParseJpeg(Jpeg(segments), record), "");
    return std::tuple(record.width, record.height, record.bitsPerComponent, record.colourSpace);
  };
  using Scan = std::tuple<int, int, int, const char*>;
  ExpectRows(
      found, Row(Jfif(0) + Frame('\xC0', 20, 12, 1), Scan(20, 12, 8, "DeviceGray")),
      Row(Jfif(2) + Frame('\xC2', 600, 400, 3), Scan(600, 400, 8, "DeviceRGB")),
      Row(Frame('\xC7', 1, 65535, 4), Scan(1, 65535, 8, "DeviceCMYK")),
      Row(Frame('\xC3', 1, 2, 3), Scan(1, 2, 8, "DeviceRGB")),
      Row(Frame('\xC5', 3, 4, 3), Scan(3, 4, 8, "DeviceRGB")),
      Row(Frame('\xC6', 5, 6, 3), Scan(5, 6, 8, "DeviceRGB")),
      Row(Frame('\xC1', 3, 2, 2), Scan(3, 2, 16, "")),
      Row(Frame('\xC4', 3, 2, 3) + Frame('\xC0', 20, 12, 3), Scan(20, 12, 8, "DeviceRGB")),
      // Fill bytes hide the marker after them.
      Row("\xFF" + Frame('\xC0', 20, 12, 3) + Frame('\xC0', 9, 8, 1), Scan(9, 8, 8, "DeviceGray")));
  // A comment that ends one byte before the end marker.
  PDFImageRecord record;
  EXPECT_ERROR(Subscript, PDFParseJpeg(Jpeg("\xFF\xFE" + Word(243)), record));
}

using Images = PaperTest;

TEST_F(Images, ArePlacedAtTheirSize) {
  const std::string jpeg = Jpeg(Frame('\xC0', 60, 30, 3));
  folder.Write("a.jpeg", jpeg);
  const std::string path = (folder.path / "a.jpeg").string();
  EXPECT_EQ(std::pair(printer.PDFImageWidth(path), printer.PDFImageHeight(path)),
            std::pair(60.0, 30.0));
  printer.PDFSetUnit(3);
  const auto place = [&](double width, double height) {
    printer.PDFImage(path, 200, 200, width, height, "");
    return Place();
  };
  ExpectRows(place, Row(0, 0, std::pair(70, 40)), Row(2880, 0, std::pair(154, 82)),
             Row(0, 2880, std::pair(298, 154)), Row(1440, 1440, std::pair(82, 82)));
  printer.PDFImage(path, 200, 200, 1440, 1440, 5);
  EXPECT_EQ(TakeMessages(),
            "Lien URL Fichier Image - vrPDF 4.0: URL objet image non valide : 5.\r\n"
            "Impossible d'inclure le lien dans l'image.\n");
  const std::string file = Finish();
  EXPECT_EQ(Between(file, "\nq\n", "Do Q"),
            "60.00 0 0 30.00 10.00 801.89 cm /ImgJPEG1 144.00 0 0 72.00 10.00 759.89 cm /ImgJPEG2 "
            "288.00 0 0 144.00 10.00 687.89 cm /ImgJPEG3 72.00 0 0 72.00 10.00 759.89 cm /ImgJPEG4 "
            "72.00 0 0 72.00 10.00 759.89 cm /ImgJPEG5 ");
  EXPECT_TRUE(Holds(file, "/XObject << \n/ImgJPEG1 9 0 R\n/ImgJPEG2 10 0 R\n"));
  EXPECT_TRUE(Holds(
      file,
      "9 0 obj\n<</Type /XObject\n/Subtype /Image\n/Filter [/DCTDecode ]\n/Width 60\n/Height 30\n"
      "/ColorSpace /DeviceRGB\n/BitsPerComponent 8\n/Length 250\n/Name /ImgJPEG1>>\nstream\n" +
          jpeg + "\nendstream\nendobj\n\n10 0 obj\n"));
}

TEST_F(Images, LendTheirSizeToTheNextLinkIfTheirOwnFails) {
  folder.Write("a.jpg", Jpeg(Frame('\xC0', 60, 30, 3)));
  printer.PDFSetFont(9, 10, 0);  // a face without metrics
  EXPECT_ERROR(FileNotFound, printer.PDFImage((folder.path / "a.jpg").string(), 10, 20, 0, 0, "u"));
  printer.PDFSetFont(0, 10, 0);
  printer.PDFDrawEllipse(50, 100, 40, 20, "u");
  printer.PDFDrawEllipse(50, 100, 40, 20, "u");
  // 60 by 30 from the picture, then 20 by 10 from the ellipse.
  EXPECT_EQ(Between(Finish(), "/Rect ", " /Border"), "[30 737.89 90 707.89][30 737.89 50 727.89]");
}

TEST_F(Images, AreRejectedUnlessJpeg) {
  const auto message = [&](const std::string& name, const std::string& bytes) {
    if (!bytes.empty()) folder.Write(name, bytes);
    printer.PDFImage((folder.path / name).string(), 1, 1, 1, 1, "");
    return Between(TakeMessages(), "Fichier Image - vrPDF 4.0: ",
                   "\r\nImpossible d'inclure l'image dans le fichier PDF.\n");
  };
  const char kNotJpeg[] = "Fichier image non JPEG.";
  const char kMarks[] = "Marqueur de début JPEG ou marqueur de fin JPEG non valide.";
  ExpectRows(
      message, Row("missing.jpg", "", kNotJpeg), Row("short.jpg", Jpeg("", 249), kNotJpeg),
      Row("head.jpg", "x" + Jpeg(""), kMarks), Row("tail.jpg", Jpeg("") + "\n", kMarks),
      Row("a.png", "",
          "Format d'image non supportée.\r\nSeule les images de types JPG sont supportées."),
      Row("unit.jpg", Jpeg(Jfif(3)),
          "Erreur de résolution d'image , l'Opcode est 3Les Opcodes valides sont  0, 1, 2."));
  EXPECT_EQ(Content(), "");
}

}  // namespace
}  // namespace pdf
