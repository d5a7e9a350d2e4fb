// Lines, rectangles, ellipses and polygons. Operators must keep their order, even where a width
// follows the painting that it can no longer affect.

#include <algorithm>
#include <cmath>

#include "foundation/error.h"
#include "foundation/numbers.h"
#include "pdf/PDFPrinter.h"
#include "pdf/tokens.h"

namespace pdf {
namespace {

using foundation::FloorToInt32;

constexpr double kWhite = 16777215;

// Distance of a quarter ellipse's control points from its centre, along an axis.
double Control(double axis) {
  return axis / 2 * 11 / 20;
}

std::string_view Paint(DrawMode mode, std::string_view filled) {
  switch (mode) {
    case DrawMode::Fill:
      return filled;
    case DrawMode::Both:
      return "B";
    default:
      return "s";
  }
}

}  // namespace

std::string PDFPrinter::ColourOperator(const Argument& colour, std::string_view colourOperator) {
  if (const auto* parts = colour.List()) {
    if (parts->size() < 3) throw foundation::Error(foundation::ErrorKind::Subscript);
    return PDFColorString({(*parts)[0], (*parts)[1], (*parts)[2]}, colourOperator);
  }
  if (const auto* number = colour.Number()) {
    return PDFColorString(PDFColorFromLong(foundation::RoundToInt32(*number)), colourOperator);
  }
  const auto html = PDFColorFromHtml(*colour.Text());
  if (!html) {
    Complain("Couleur HTMl", "Code couleur HTMl invalide " + colour.Shown() +
                                 ".\r\nLa couleur utilisée sera le noir.");
  }
  return PDFColorString(html.value_or(Rgb{}), colourOperator);
}

void PDFPrinter::PDFSetTextColor(const Argument& colour) {
  pen_.textColour = ColourOperator(colour, "rg");
}

void PDFPrinter::PDFSetLineColor(const Argument& colour) {
  pen_.lineColour = ColourOperator(colour, "RG");
}

void PDFPrinter::PDFSetDrawColor(const Argument& colour) {
  pen_.fillColour = ColourOperator(colour, "rg");
}

void PDFPrinter::PDFSetLineStyle(std::int32_t style) {
  pen_.lineStyle = PDFDashString(style);
}

std::string PDFPrinter::PDFDashString(std::int32_t style) {
  const auto length = [this](double units) {
    return std::to_string(FloorToInt32(units * page_.scale)) + " ";
  };
  switch (style) {
    case 0:
      return "[] 0 d";
    case 1:
      return "[" + length(16) + length(8) + "] 0 d";
    case 2:
      return "[" + length(8) + length(7) + length(2) + length(7) + "] 0 d";
    case 3:
      return "[" + length(8) + length(4) + length(2) + length(4) + length(2) + length(4) + "] 0 d";
    default:
      Complain("Style de Ligne", "Code style de ligne incorrect : " + std::to_string(style) +
                                     ".\r\nLe style de ligne utilisé sera pSolid.");
      return "[] 0 d";
  }
}

// The message for a wrong code names a different mode from the one used.
void PDFPrinter::PDFSetDrawMode(std::int32_t mode) {
  constexpr DrawMode kModes[] = {DrawMode::Outline, DrawMode::Fill, DrawMode::Both};
  if (mode >= 0 && mode < std::int32_t{std::size(kModes)}) {
    pen_.drawMode = kModes[mode];
    return;
  }
  Complain("Objet Rectangle", "Code type de traçage incorrect : " + std::to_string(mode) +
                                  ".\r\nLe type de traçage utilisé sera bordure et remplissage.");
  pen_.drawMode = DrawMode::Outline;
}

void PDFPrinter::FillWithLineColour() {
  pen_.fillColour = FillOperatorOf(pen_.lineColour);
}

void PDFPrinter::ModeColours() {
  if (pen_.drawMode != DrawMode::Outline) AddLine({pen_.fillColour});
  if (pen_.drawMode != DrawMode::Fill) AddLine({pen_.lineColour});
}

std::string PDFPrinter::Width() const {
  return PDFFormatNumber(pen_.lineWidth * page_.scale, 2) + " w";
}

void PDFPrinter::StrokeLine(double x1, double y1, double x2, double y2) {
  AddLine({pen_.lineStyle});
  AddLine({Point(x1, y1), " m"});
  AddLine({Point(x2, y2), " l"});
  AddLine({pen_.lineColour});
  AddLine({Width(), " S"});
}

void PDFPrinter::PDFDrawLineHor(double x, double y, double length) {
  FillWithLineColour();
  AddLine({"%DEBUT_LNH/%"});
  StrokeLine(x, y, x + length, y);
  AddLine({"%FIN_LNH/%"});
  x_ = x + length;
  y_ = y;
}

void PDFPrinter::PDFDrawLineVer(double x, double y, double length) {
  FillWithLineColour();
  AddLine({"%DEBUT_LNV/%"});
  StrokeLine(x, y, x, y + length);
  AddLine({"%FIN_LNV/%"});
  x_ = x;
  y_ = y + length;
}

void PDFPrinter::PDFDrawLine(double x1, double y1, double x2, double y2) {
  AddLine({"%DEBUT_LN/%"});
  StrokeLine(x1, y1, x2, y2);
  AddLine({"%FIN_LN/%"});
  x_ = std::max(x1, x2);
  y_ = std::max(y1, y2);
}

void PDFPrinter::PDFDrawRectangle(double x, double y, double w, double h, const Argument& link) {
  AddLine({"%DEBUT_RECT/%"});
  ModeColours();
  AddLine({pen_.lineStyle});
  AddLine({Point(x, y), " ", JoinedNumbers({page_.Across(w), page_.Across(-h)}), " re ",
           Paint(pen_.drawMode, "f")});
  AddLine({Width(), " S"});
  PDFSetTextColor(kWhite);
  linked_.text = ByteText("LINK");
  linked_.kind = LinkKind::Rectangle;
  linked_.width = foundation::RoundToInt32(w);
  PDFAttachLink(link, LinkKind::Rectangle, std::floor(x + 5), std::floor(h / 2 + y));
  AddLine({"%FIN_RECT/%"});
  x_ = x;
  y_ = y + h;
}

void PDFPrinter::PDFDrawEllipse(double x, double y, double w, double h, const Argument& link) {
  if (h == 0) h = w;
  const double cx = x + w / 2, cy = y + h / 2;
  const double dx = Control(w), dy = Control(h);
  ModeColours();
  AddLine({pen_.lineStyle});
  AddLine({Point(x, h / 2 + y), " m"});
  PDFCurveTo(x, cy - dy, cx - dx, y, cx, y);
  PDFCurveTo(cx + dx, y, x + w, cy - dy, x + w, cy);
  PDFCurveTo(x + w, cy + dy, cx + dx, y + h, cx, y + h);
  PDFCurveTo(cx - dx, y + h, x, cy + dy, x, cy);
  AddLine({Width(), " ", Paint(pen_.drawMode, "h f")});
  PDFSetTextColor(kWhite);
  linked_.text = ByteText("LINK");
  linked_.kind = LinkKind::Ellipse;
  PDFAttachLink(link, LinkKind::Ellipse, std::floor(x - w / 2), std::floor(cy - dy));
  linked_.kind = LinkKind::None;
  x_ = x;
  y_ = cy;
}

void PDFPrinter::PDFCurveTo(double x1, double y1, double x2, double y2, double x3, double y3) {
  AddLine({Point(x1, y1), " ", Point(x2, y2), " ", Point(x3, y3), " c"});
}

void PDFPrinter::PDFDrawPolygon(const std::vector<double>& points) {
  const auto corner = [&](std::size_t number) {
    if (2 * number > points.size()) throw foundation::Error(foundation::ErrorKind::Subscript);
    return Point(points[2 * number - 2], points[2 * number - 1]);
  };
  const auto corners =
      static_cast<std::size_t>(foundation::RoundToInt32(static_cast<double>(points.size()) / 2));
  ModeColours();
  AddLine({"%DEBUT_POLY/%"});
  AddLine({pen_.lineStyle});
  AddLine({corner(1), " m"});
  for (std::size_t number = 2; number <= corners; ++number) AddLine({corner(number), " l"});
  AddLine({corner(1), " l"});
  AddLine({Width(), " ", Paint(pen_.drawMode, "h f")});
  AddLine({"%FIN_POLY/%"});
}

}  // namespace pdf
