// Text on the page.

#include <algorithm>
#include <cmath>

#include "foundation/numbers.h"
#include "pdf/PDFPrinter.h"
#include "pdf/tokens.h"

namespace pdf {

using foundation::RoundToInt16;
using foundation::RoundToInt32;

void PDFPrinter::AddLine(std::initializer_list<std::string_view> parts) {
  PDFAddLine(content_, parts);
}

// User coordinates as two numbers in points.
std::string PDFPrinter::Point(double x, double y) const {
  return JoinedNumbers({page_.Across(x), page_.Up(y)});
}

int PDFPrinter::BeginText() {
  if (font_.size == 0) font_.size = 10;
  return fonts_.NumberOf(font_.name);
}

void PDFPrinter::PDFTextOut(std::string_view text, double x, double y) {
  TextOut(Encoded(text), x, y);
}

void PDFPrinter::TextOut(const ByteText& text, double x, double y) {
  if (x == 0) x = x_;
  if (y == 0) y = y_;
  const int font = BeginText();
  AddLine({"q ", pen_.textColour, " "});
  std::string underline;
  if (font_.underline) underline = PDFUnderlineOp(false, text, page_.Across(x), page_.Across(y));
  AddLine({"%DEBUT_TEXT/%\r\nBT"});
  if (pen_.rotation != 0) {
    AddLine({PDFRotationMatrix(pen_.rotation, x, y)});
    pen_.rotation = 0;
  } else {
    AddLine({Point(page_.leftMargin + x, y), " Td"});
  }
  AddLine({"/F", std::to_string(font), " ", PDFFormatNumber(font_.size, 2), " Tf"});
  content_ += '(';
  AppendEscaped(content_, text);
  AddLine({") Tj\r\nET"});
  if (font_.underline) AddLine({underline});
  AddLine({"Q\r\n%FIN_TEXT/%"});
  font_.underline = false;
  x_ = x + StringWidth(text, font_.size);
  y_ = y + font_.size;
}

// A filled rectangle under a text whose position is in points, with y from the top of the page, or
// from the bottom for a cell.
std::string PDFPrinter::PDFUnderlineOp(bool forCell, const ByteText& text, double x, double y) {
  const std::int32_t up = RoundToInt32(StringWidth(ByteText("up"), font_.size));
  const double blank = StringWidth(ByteText(" "), font_.size);
  const std::string& bytes = text.Bytes();
  const auto blanks = static_cast<std::int32_t>(std::count(bytes.begin(), bytes.end(), ' '));

  double w = blanks * blank + StringWidth(text, font_.size) + blanks * cell_.wordSpacing;
  if (cell_.wordSpacing != 0) w -= static_cast<double>(blanks + 1) * page_.cellMargin;
  const double thickness = w * (-2.0 / 1000);
  const std::int16_t left = RoundToInt16(page_.leftMargin * page_.scale + x);
  if (forCell) return JoinedNumbers({x, y - 3, w - font_.size, thickness}) + " re f";
  const double top = page_.Format().height - (y - up / 1000.0 * font_.size);
  return JoinedNumbers({static_cast<double>(left), top, w, thickness}) + " re f";
}

std::string PDFPrinter::PDFRotationMatrix(double angle, double x, double y) const {
  const double radians = angle * 3.1416 / 180;
  const double cosine = std::cos(radians), sine = std::sin(radians);
  return JoinedNumbers({cosine, -sine, sine, cosine}, 5) + " " + Point(x, y) + " Tm";
}

void PDFPrinter::PDFRotatedText(const ByteText& text, double x, double y) {
  PDFSetRotation(45);
  TextOut(text, x, y);
  PDFSetRotation(0);
}

void PDFPrinter::PDFFiligran(std::string_view watermark) {
  watermark_ = {true, Encoded(watermark)};
}

// The position deliberately uses the sine and cosine of 45 radians, and points as if they were user
// units.
void PDFPrinter::PDFDrawWatermark() {
  if (!watermark_.isOn) return;
  PDFSetFont(2, 50, 0);
  PDFSetTextColor({255, 192, 203});
  const double width = StringWidth(watermark_.text, 50);
  const PageFormat& format = page_.Format();
  PDFRotatedText(watermark_.text, (format.width - std::cos(45.0) * width) / 2.75,
                 (std::sin(45.0) * width + format.height) / 2.15);
}

}  // namespace pdf
