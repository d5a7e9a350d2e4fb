// Texts in boxes.

#include <algorithm>

#include "foundation/checked.h"
#include "foundation/numbers.h"
#include "pdf/PDFPrinter.h"
#include "pdf/tokens.h"
#include "pdf/wrapping.h"

namespace pdf {
namespace {

using foundation::ByteText;
using foundation::RoundToInt32;

// PDFCell measures at this size and scales its limit to match.
constexpr double kMeasuringSize = 10;

bool Holds(std::string_view letters, char letter) {
  return letters.find(letter) != std::string_view::npos;
}

// Drops the second half of a trailing line end, but only from a text of three characters.
std::string WithoutTrailingHalf(std::string text) {
  if (text.size() == 3 && text.ends_with("\r\n")) text.pop_back();
  return text;
}

}  // namespace

void PDFPrinter::PDFSetBorder(std::int32_t border) {
  cell_.border = std::to_string(border);
  if (border == 0 || border == 1) return;
  std::string letters;
  for (const std::string_view side : {"4L", "5R", "2T", "3B"}) {
    if (Holds(cell_.border, side[0])) letters += side[1];
  }
  cell_.border = letters;
}

void PDFPrinter::PDFSetAlignement(std::int32_t alignment) {
  constexpr CellAlignment kAlignments[] = {CellAlignment::Centre, CellAlignment::Left,
                                           CellAlignment::Right, CellAlignment::Justified};
  if (alignment >= 0 && alignment < std::int32_t{std::size(kAlignments)}) {
    cell_.alignment = kAlignments[alignment];
    return;
  }
  Complain("Code Alignement de Cellule",
           "Code alignement incorrect : " + std::to_string(alignment) +
               ".\r\nL'alignement utilisé sera l'alignement à "
               "gauche.");
  cell_.alignment = CellAlignment::Left;
}

std::string PDFPrinter::PDFGetAlignement() const {
  if (cell_.alignment == CellAlignment::Centre) return "Center";
  return cell_.alignment == CellAlignment::Right ? "Right" : "Left";
}

void PDFPrinter::PDFCellLine(std::string_view text, double x, double y, double w, double h,
                             const Argument& link) {
  CellLine(Encoded(text), x, y, w, h, link);
}

void PDFPrinter::CellLine(const ByteText& plainText, double x, double y, double w, double h,
                          const Argument& link) {
  const ByteText text = Escaped(plainText);
  const int font = BeginText();
  AddLine({pen_.lineColour});
  AddLine({pen_.fillColour});
  const std::string frame = CellFrame(x, y, w, h);
  const double offset = CellOffset(text, w);
  if (!frame.empty()) AddLine({frame});
  if (!link.IsEmptyText()) {
    font_.underline = true;
    PDFAddLinkRect(x + offset, y + h * 0.5 - 0.5 * font_.size,
                   RoundToInt32(StringWidth(text, font_.size)), font_.size, AddressOf(link));
  }

  const double k = page_.scale;
  const double left = x * k + offset;
  const double base = page_.Format().height - (y * k + 0.5 * h * k + 0.3 * font_.size);
  std::string underline;
  if (font_.underline) underline = PDFUnderlineOp(true, text, left, base);
  AddLine({"q ", pen_.textColour, " "});
  if (font_.underline) AddLine({underline});
  AddLine({"BT"});
  AddLine({"/F", std::to_string(font), " ", std::to_string(font_.size), " Tf"});
  AddLine({JoinedNumbers({left, base}), " Td"});
  AddLine({"(", text.Bytes(), ") Tj"});
  AddLine({"ET"});
  AddLine({"Q"});

  linked_.text = text;
  linked_.kind = LinkKind::Cell;
  PDFAttachLink(link, LinkKind::Cell, x, y);
  linked_.kind = LinkKind::None;
  x_ = x + w;
  y_ = y + h;
}

// The box for a full border or a fill, followed by single borders.
std::string PDFPrinter::CellFrame(double x, double y, double w, double h) {
  const bool whole = cell_.border == "1";
  std::string frame;
  if (whole || cell_.fill) {
    const std::string_view paint = !cell_.fill ? "S" : whole ? "B" : "f";
    frame = Point(x, y) + " " + JoinedNumbers({w * page_.scale, -h * page_.scale}) + " re ";
    frame.append(paint) += '\r';
  }
  if (whole || cell_.border == "0") return frame;
  AddLine({Width()});
  return frame + CellBorders(x, y, w, h);
}

std::string PDFPrinter::CellBorders(double x, double y, double w, double h) const {
  const std::string topLeft = Point(x, y), topRight = Point(x + w, y);
  const std::string bottomLeft = Point(x, y + h), bottomRight = Point(x + w, y + h);
  std::string borders;
  if (Holds(cell_.border, 'L')) borders += topLeft + " m " + bottomLeft + " l S\r";
  if (Holds(cell_.border, 'T')) borders += topLeft + " m " + topRight + " l S \r";
  if (Holds(cell_.border, 'R')) borders += topRight + " m " + bottomRight + " l S \r";
  if (Holds(cell_.border, 'B')) borders += bottomLeft + " m " + bottomRight + " l S \r";
  return borders;
}

// Points from the left edge to the text. Justified text has no offset; this sets its word spacing.
double PDFPrinter::CellOffset(const ByteText& text, double w) {
  const double inner = w * page_.scale;
  const auto width = [&] { return StringWidth(text, font_.size); };
  switch (cell_.alignment) {
    case CellAlignment::Right:
      return foundation::LeadingNumber(PDFFormatNumber(inner - page_.cellMargin, 2)) -
             RoundToInt32(width());
    case CellAlignment::Centre:
      return RoundToInt32((inner - RoundToInt32(width())) / 2);
    case CellAlignment::Justified: {
      const auto blanks =
          static_cast<double>(std::count(text.Bytes().begin(), text.Bytes().end(), ' '));
      const double free = inner - (blanks + 1) * page_.cellMargin - width();
      cell_.wordSpacing = free / std::max(blanks, 1.0);
      AddLine({PDFFormatNumber(cell_.wordSpacing * page_.scale, 3), " Tw"});
      return 0;
    }
    default:
      return page_.cellMargin;
  }
}

void PDFPrinter::PDFCell(std::string_view text, double x, double y, double w, double h,
                         const Argument&) {
  const double limit =
      foundation::Divide((w - 2.0 * page_.cellMargin) * kMeasuringSize, font_.size);
  const auto number = foundation::WholeNumber(cell_.border);
  if (!number) throw foundation::Error(foundation::ErrorKind::TypeMismatch);
  const bool hasBorder = *number == 1;

  AddLine({"%DEBUT_CELL/%"});
  std::string border = hasBorder ? "LRT" : "";
  const auto draw = [&](const std::string& line, double left) {
    cell_.border = border;
    CellLine(ByteText(line), left, y, w, h, "");
    y = y_;
  };
  Wrapping lines(WithoutTrailingHalf(Encoded(text).Bytes()), limit,
                 [&](char c) { return StringWidth(ByteText(std::string(1, c)), kMeasuringSize); });
  while (const auto line = lines.Next()) {
    draw(line->bytes, line->endsAtBlank ? x - page_.cellMargin : x);
    border = hasBorder ? "LR" : "";
  }
  if (hasBorder) border += "B";
  draw(lines.Rest(), x - page_.cellMargin);

  font_.underline = false;
  if (cell_.alignment == CellAlignment::Justified) {
    AddLine({"0 Tw"});
    cell_.wordSpacing = 0;
  }
  AddLine({"%FIN_CELL/%"});
}

}  // namespace pdf
