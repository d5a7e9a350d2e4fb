// PDFPrinter: a PDF 1.3 document, written to its file as it is drawn.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "bitmap/jpeg_library.h"
#include "forms/drawing_target.h"
#include "forms/screen_services.h"
#include "foundation/machine.h"
#include "pdf/argument.h"
#include "pdf/colours.h"
#include "pdf/font_folder.h"
#include "pdf/jpeg_scan.h"
#include "pdf/link_table.h"
#include "pdf/object_file.h"
#include "pdf/outline.h"
#include "pdf/page_setup.h"
#include "pdf/printer_state.h"
#include "pdf/reader_windows.h"

namespace pdf {

// Converts pictures to the JPEG files that a document embeds.
struct PictureMeans {
  const forms::Rasteriser& rasteriser;
  bitmap::JpegLibrary& library;
};

// Call PDFFileName, PDFBeginDoc, draw with PDFEndPage and PDFNewPage between pages, then PDFEndDoc.
// Texts are UTF-8 and are stored as Windows code page 1252, one byte per character; coordinates are
// user units from the top left of the page. A wrong code shows a message in French and is replaced
// by a default unless stated otherwise. Only the open page and the images are held in memory. A
// document has at most some ten thousand pages; the first thousand may have up to a thousand links
// each.
class PDFPrinter : public forms::DrawingTarget {
 public:
  // Loads the fonts from the program's folder; errors of PDFLoadAfm. Without means, PaintPicture
  // fails.
  PDFPrinter(const foundation::Clock& clock, foundation::MessageBoxes& boxes);
  PDFPrinter(const foundation::Clock& clock, foundation::MessageBoxes& boxes,
             ReaderWindows& readers);
  PDFPrinter(const foundation::Clock& clock, foundation::MessageBoxes& boxes, PictureMeans means);

  // The document. Writing raises ObjectNotSet if the file could not be created, FileAccess if it
  // does not take the bytes. PDFBeginDoc starts over, but keeps the last page setup, the
  // information texts, modes and flags.
  void PDFFileName(std::string_view fileName);
  const std::string& PDFGetFileName() const { return fileName_; }
  void PDFBeginDoc();
  void PDFEndPage();  // required before each PDFNewPage; otherwise PDFEndDoc raises Subscript
  void PDFNewPage();
  void PDFEndDoc();
  int PDFPageNumber() const { return pageNumber_; }
  int PDFNbPage() const { return static_cast<int>(tables_.contents.size()); }  // after PDFEndDoc

  void PDFTitle(std::string_view text);
  void PDFAuthor(std::string_view text);
  void PDFCreator(std::string_view text);
  void PDFKeywords(std::string_view text);
  void PDFSubject(std::string_view text);
  void PDFProducer(std::string_view text);

  void PDFConfirm(bool confirm) { settings_.confirm = confirm; }  // shows a message at the end
  void PDFView(bool view) { settings_.view = view; }              // has no effect
  void PDFUseThumbs(bool thumbs) { settings_.useThumbs = thumbs; }
  void PDFUseOutlines(bool outlines) { settings_.useOutlines = outlines; }
  // 0 whole page, 1 page width, 2 true size, else a percentage.
  void PDFSetZoomMode(std::int32_t zoomMode) { settings_.zoomMode = zoomMode; }
  std::optional<std::int32_t> PDFGetZoomMode() const { return settings_.zoomMode; }
  void PDFSetLayoutMode(std::int32_t layoutMode);  // 0 page, 1 column, 2 two columns, 3 none
  std::optional<std::int32_t> PDFGetLayoutMode() const { return settings_.layoutMode; }
  // Each digit of the code is a preference: 1 no toolbar, 2 no menu bar, 3 no window controls,
  // 4 window fitted, 5 window centred, 6 title shown.
  void PDFSetViewerPreferences(std::int32_t code) { settings_.viewerPreferences = code; }

  // Levels count from 0; a y of -1 means the current one.
  void PDFSetBookmark(std::string_view text, std::int16_t level, double y);

  // Units, page formats and margins.
  void PDFSetUnit(std::int32_t unit);             // 0 points, 1 millimetres, 2 centimetres, 3 twips
  std::string PDFGetUnit() const;                 // "pt", "mm", "cm" or ""
  void PDFOrientation(std::int32_t orientation);  // 0 swaps width and height, 1 leaves them
  // A code (0 A4, 1 A3, 2 A5, 3 Letter, 4 Legal), or a list of width and height in points.
  void PDFFormatPage(const Argument& format);
  void PDFPageWidth(double points) { page_.Format().width = points; }
  double PDFGetPageWidth() const { return page_.Format().width; }
  void PDFPageHeight(double points) { page_.Format().height = points; }
  double PDFGetPageHeight() const { return page_.Format().height; }

  // Rounded to whole units. Overflow beyond 16 bits.
  void PDFSetLeftMargin(double left);
  void PDFSetTopMargin(double top);
  void PDFSetRightMargin(double right);
  void PDFSetBottomMargin(double bottom);
  void PDFSetCellMargin(double cell);
  void PDFSetMargins(double left, double top, double right, double bottom);  // -1: as the opposite
  double PDFGetLeftMargin() const { return page_.leftMargin; }
  double PDFGetTopMargin() const { return page_.topMargin; }
  double PDFGetRightMargin() const { return page_.rightMargin; }
  double PDFGetBottomMargin() const { return page_.bottomMargin; }
  double PDFGetCellMargin() const { return page_.cellMargin; }

  // Rounded. Overflow beyond 16 bits.
  std::int16_t PDFGetX() const;
  std::int16_t PDFGetY() const;

  // Fonts.
  void PDFPathConfiguration(std::string_view folder);  // for widths only; keeps the list of fonts
  void PDFLoadAfm(std::string_view folder);            // both; errors of FontFolder::PDFLoadAfm
  // 0 Helvetica, 1 Courier, 2 Times, 3 Symbol, 4 ZapfDingbats. Each digit of the style is a flag: 1
  // italic, 2 bold, 3 underlined; underlining stays on until a text uses it. The size is in points,
  // rounded: Overflow beyond 16 bits. A wrong code selects "TimesRoman", for which the usual fonts
  // have no metric file.
  void PDFSetFont(std::int32_t font, double size, std::int32_t style);
  // Width in points; an empty name means the current font. Errors of FontFolder::Widths, Subscript
  // for a character of code 0, Overflow if the widths do not fit 32 bits.
  double PDFGetStringWidth(std::string_view text, std::string_view fontName, double size);
  double PDFTextHeight() const;  // the font size times the points per unit

  // Texts. A coordinate of exactly 0 means the current one. The left margin is added to x here and
  // nowhere else, and not to rotated text. The position then moves right by the text's width and
  // down by the font size, both in points whatever the unit.
  void PDFTextOut(std::string_view text, double x, double y);
  void PDFSetRotation(double angle) { pen_.rotation = -angle; }  // degrees, counterclockwise
  // A watermark, drawn where each page ends and where each but the first begins.
  void PDFFiligran(std::string_view watermark);

  // Cells.
  void PDFSetBorder(std::int32_t border);  // 0 none, 1 all; digits 2 top, 3 bottom, 4 left, 5 right
  void PDFSetFill(bool fill) { cell_.fill = fill; }
  void PDFSetAlignement(std::int32_t alignment);  // 0 centre, 1 left, 2 right, 3 justified
  std::string PDFGetAlignement() const;           // "Center", "Right" or, for the others, "Left"
  // One line, vertically centred in a box given from its top left.
  void PDFCellLine(std::string_view text, double x, double y, double w, double h,
                   const Argument& link);
  // Wraps at blanks; ignores the link. Needs a font size (else DivisionByZero) and a border of 0 or
  // 1, which must be set again before each call (else TypeMismatch).
  void PDFCell(std::string_view text, double x, double y, double w, double h, const Argument& link);

  // A text that leads to the link, or to itself if the link is empty.
  void PDFLink(double x, double y, std::string_view text, const Argument& link);

  // Colours: three numbers of 0 to 255, "#RRGGBB", or red + 256 green + 65536 blue. Subscript for
  // fewer than three numbers, Overflow beyond 32 bits. Getters return operators: "0 g".
  void PDFSetTextColor(const Argument& colour);
  void PDFSetLineColor(const Argument& colour);
  void PDFSetDrawColor(const Argument& colour);
  const std::string& PDFGetTextColor() const { return pen_.textColour; }
  const std::string& PDFGetLineColor() const { return pen_.lineColour; }
  const std::string& PDFGetDrawColor() const { return pen_.fillColour; }

  // Shapes. A rectangle or ellipse stands in a box from its top left. A polygon is x1, y1, x2,
  // y2...; half a point at the end is dropped behind an even number of points (5 or 9 numbers).
  // Subscript for half a point behind an odd number (3 or 7), and for no point.
  void PDFSetLineWidth(double width) { pen_.lineWidth = width; }
  void PDFSetLineStyle(std::int32_t style);  // 0 solid, 1 dashes, 2 dash dot, 3 dash dot dot
  void PDFSetDrawMode(std::int32_t mode);    // 0 outline, 1 filled, 2 both
  void PDFDrawLineHor(double x, double y, double length);
  void PDFDrawLineVer(double x, double y, double length);
  void PDFDrawLine(double x1, double y1, double x2, double y2);
  void PDFDrawRectangle(double x, double y, double w, double h, const Argument& link);
  void PDFDrawEllipse(double x, double y, double w, double h, const Argument& link);  // h 0: circle
  void PDFDrawPolygon(const std::vector<double>& points);

  // JPEG files, ending in lower-case "jpg" or "jpeg". A width or height of 0 follows from the
  // other, or both from the pixels. DivisionByZero if the file has no size to derive it from,
  // FileAccess if it cannot be read. Leaves the position in points.
  void PDFImage(std::string_view file, double x, double y, double w, double h,
                const Argument& link);
  double PDFImageWidth(std::string_view file);  // pixels; 0 if the file cannot be used
  double PDFImageHeight(std::string_view file);

  // A printer's interface, for drawing forms with twips as the unit: texts are blue, lines red.
  // Other members of a drawing target are not supported.
  void CurrentX(double x) { x_ = x; }
  double CurrentX() const override { return x_; }
  void CurrentY(double y) { y_ = y; }
  double CurrentY() const override { return y_; }
  void ForeColor(const Argument& ignored);
  void FontSize(std::int16_t points);  // sets 2 more; Overflow
  double FontSize() const override { return font_.size; }
  void FontUnderLine(bool underline) { font_.underline = underline; }  // for the next text
  // These have no effect.
  void FontBold(bool) {}
  void FontItalic(bool) {}
  void FontStrikethru(bool) {}
  void Font(std::string_view) {}
  void RightToLeft(bool) {}
  // Prints at the current position and advances it.
  void Print1(std::string_view text);
  // Vertical if both points have the same x, else horizontal from the first point.
  void DrawLINE(double x1, double y1, double x2, double y2, const Argument& ignored);
  // Goes through a JPEG file in the temp folder, which is deleted afterwards. ObjectNotSet for no
  // picture or without means; JpegLibraryError. A picture that cannot be written is skipped after
  // two messages: one from SaveJPG, one as for any invalid image file.
  void PaintPicture(const forms::PicturePtr& Picture, double x, double y, double Width1,
                    double Height1) override;

 private:
  using ByteText = foundation::ByteText;

  PDFPrinter(const foundation::Clock& clock, foundation::MessageBoxes& boxes,
             ReaderWindows& readers, std::optional<PictureMeans> means);

  void Complain(std::string_view subject, std::string_view text);

  // structure.cpp
  void OpenStream();
  void PDFPutHeader();
  void PDFPutInfo();
  void PDFBeginStream();
  void PDFEndStream();
  void PDFPutFonts();
  void PDFPutFontObject(std::string_view type, std::string_view name, std::string_view encoding);
  void PDFPutPages();
  void PDFPutResources();
  void PDFPutImage(int image);
  void PDFPutPage(int page);
  void PDFPutOutlines();
  void PDFPutBookmark(const PDFBookmarkRecord& bookmark, int firstObject);
  // catalog.cpp
  void PDFPutCatalog();
  void AddLayoutMode();
  void AddViewerPreferences();

  // texts.cpp
  void AddLine(std::initializer_list<std::string_view> parts);  // adds to the page's content
  std::string Point(double x, double y) const;
  double StringWidth(const ByteText& text, double size);
  int BeginText();  // returns the font's number
  void TextOut(const ByteText& text, double x, double y);
  std::string PDFUnderlineOp(bool forCell, const ByteText& text, double x, double y);
  std::string PDFRotationMatrix(double angle, double x, double y) const;
  void PDFDrawWatermark();
  void PDFRotatedText(const ByteText& text, double x, double y);

  // cells.cpp
  void CellLine(const ByteText& text, double x, double y, double w, double h, const Argument& link);
  std::string CellFrame(double x, double y, double w, double h);
  std::string CellBorders(double x, double y, double w, double h) const;
  double CellOffset(const ByteText& text, double w);

  // links.cpp
  static std::optional<ByteText> AddressOf(const Argument& link);  // empty unless a text
  void Link(double x, double y, const ByteText& text, const Argument& link);
  void PDFAddLinkRect(double x, double y, double w, double h, std::optional<ByteText> target);
  void PDFAttachLink(const Argument& link, LinkKind kind, double x, double y);

  // shapes.cpp
  std::string ColourOperator(const Argument& colour, std::string_view colourOperator);
  std::string PDFDashString(std::int32_t style);
  void FillWithLineColour();
  void ModeColours();
  std::string Width() const;
  void StrokeLine(double x1, double y1, double x2, double y2);
  void PDFCurveTo(double x1, double y1, double x2, double y2, double x3, double y3);

  // images.cpp
  bool ReadImage(std::string_view file, PDFImageRecord& record);

  // printer_face.cpp
  void SetCurrentX(double x) override;
  void SetCurrentY(double y) override;
  void SetForeColor(forms::Colour) override;
  void SetFont(std::string_view name) override;
  void SetFontSize(double points) override;  // rounds to whole points
  void SetFontBold(bool on) override;
  void SetFontItalic(bool on) override;
  void SetFontStrikethru(bool on) override;
  void SetFontUnderLine(bool on) override;
  void SetRightToLeft(bool on) override;
  void Print(std::string_view text) override;
  void Line(double x1, double y1, double x2, double y2, forms::Colour, forms::LineStyle) override;
  void PictureToJpegFile(const forms::Picture& Picture, const std::filesystem::path& path);

  const foundation::Clock& clock_;
  foundation::MessageBoxes& boxes_;
  ReaderWindows& readers_;
  std::optional<PictureMeans> means_;

  std::string fileName_;
  ObjectFile file_;
  std::string content_;  // of the open page
  int pageNumber_ = 0;
  PageTables tables_;
  RootObjects objects_;
  std::vector<int> fontObjects_;
  DocumentInfo info_;
  DocumentSettings settings_;
  std::vector<PDFBookmarkRecord> bookmarks_;
  std::vector<PDFImageRecord> images_;
  LinkTable links_;

  PageSetup page_;
  double x_ = page_.leftMargin;  // the current position, user units
  double y_ = page_.topMargin;
  FontFolder fonts_;
  FontChoice font_;
  Pen pen_;
  CellStyle cell_;
  LinkedObject linked_;
  Watermark watermark_;
};

}  // namespace pdf
