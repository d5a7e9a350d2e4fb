// PDFPrinter: a PDF 1.3 document, written to its file while it is being drawn.
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

// What turns pictures into the JPEG files that a document takes.
struct PictureMeans {
  const forms::Rasteriser& rasteriser;
  bitmap::JpegLibrary& library;
};

// PDFFileName, PDFBeginDoc, drawing with PDFEndPage and PDFNewPage between pages, PDFEndDoc. Texts
// are UTF-8 and go into the file as one byte of Windows code page 1252 a character; coordinates
// are user units from the top left of the page. A wrong code is told to the user in French and
// replaced by a default where no other outcome is named. Only the open page and the images are held
// in memory; a document has some ten thousand pages at most, of which the first thousand may have
// links, a thousand each.
class PDFPrinter : public forms::DrawingTarget {
 public:
  // The fonts are those of the program's own folder; the errors of PDFLoadAfm. Without means,
  // PaintPicture fails.
  PDFPrinter(const foundation::Clock& clock, foundation::MessageBoxes& boxes);
  PDFPrinter(const foundation::Clock& clock, foundation::MessageBoxes& boxes,
             ReaderWindows& readers);
  PDFPrinter(const foundation::Clock& clock, foundation::MessageBoxes& boxes, PictureMeans means);

  // The document. Without a file that could be created, writing raises ObjectNotSet, and where it
  // does not take the bytes, FileAccess. PDFBeginDoc begins again with the page that was set up
  // last, the information texts, modes and flags.
  void PDFFileName(std::string_view fileName);
  const std::string& PDFGetFileName() const { return fileName_; }
  void PDFBeginDoc();
  void PDFEndPage();  // has to come before each PDFNewPage; Subscript in PDFEndDoc otherwise
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

  void PDFConfirm(bool confirm) { settings_.confirm = confirm; }  // the user is told of the end
  void PDFView(bool view) { settings_.view = view; }              // changes nothing
  void PDFUseThumbs(bool thumbs) { settings_.useThumbs = thumbs; }
  void PDFUseOutlines(bool outlines) { settings_.useOutlines = outlines; }
  // 0 whole page, 1 page width, 2 true size, else a percentage.
  void PDFSetZoomMode(std::int32_t zoomMode) { settings_.zoomMode = zoomMode; }
  std::optional<std::int32_t> PDFGetZoomMode() const { return settings_.zoomMode; }
  void PDFSetLayoutMode(std::int32_t layoutMode);  // 0 single page, 1 a column, 2 two columns
  std::optional<std::int32_t> PDFGetLayoutMode() const { return settings_.layoutMode; }
  // Each digit of the code is a preference: 1 no toolbar, 2 no menu bar, 3 no window controls,
  // 4 window fitted, 5 window centred, 6 title shown.
  void PDFSetViewerPreferences(std::int32_t code) { settings_.viewerPreferences = code; }

  // Levels count from 0; a y of -1 is the present one.
  void PDFSetBookmark(std::string_view text, std::int16_t level, double y);

  // Units, page formats and margins.
  void PDFSetUnit(std::int32_t unit);             // 0 points, 1 millimetres, 2 centimetres, 3 twips
  std::string PDFGetUnit() const;                 // "pt", "mm", "cm" or nothing
  void PDFOrientation(std::int32_t orientation);  // 0 exchanges width and height, 1 leaves them
  // A code (0 A4, 1 A3, 2 A5, 3 Letter, 4 Legal), or width and height in points.
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
  void PDFSetMargins(double left, double top, double right, double bottom);  // -1: as its opposite
  double PDFGetLeftMargin() const { return page_.leftMargin; }
  double PDFGetTopMargin() const { return page_.topMargin; }
  double PDFGetRightMargin() const { return page_.rightMargin; }
  double PDFGetBottomMargin() const { return page_.bottomMargin; }
  double PDFGetCellMargin() const { return page_.cellMargin; }

  // Rounded. Overflow beyond 16 bits.
  std::int16_t PDFGetX() const;
  std::int16_t PDFGetY() const;

  // Fonts.
  void PDFPathConfiguration(std::string_view folder);  // of the widths; the list of fonts stays
  void PDFLoadAfm(std::string_view folder);            // both; the errors of FontFolder::PDFLoadAfm
  // 0 Helvetica, 1 Courier, 2 Times, 3 Symbol, 4 ZapfDingbats. Each digit of the style is a flag:
  // 1 italic, 2 bold, 3 underlined; an underline stays on until a text has used it. The size is
  // points, rounded: Overflow beyond 16 bits. A wrong code chooses "TimesRoman", which no metric
  // file of the usual set is called.
  void PDFSetFont(std::int32_t font, double size, std::int32_t style);
  // In points; the present font for an empty name. The errors of FontFolder::Widths, Subscript for
  // a character of code 0, Overflow where the widths do not fit 32 bits.
  double PDFGetStringWidth(std::string_view text, std::string_view fontName, double size);
  double PDFTextHeight() const;  // the size times the points of a unit

  // Texts. A coordinate of exactly 0 is the present one; the left margin is added to x, here alone.
  // The position moves right by the text's width and down by the font size, both in points whatever
  // the unit.
  void PDFTextOut(std::string_view text, double x, double y);
  void PDFSetRotation(double angle) { pen_.rotation = -angle; }  // degrees, counterclockwise
  void PDFFiligran(std::string_view watermark);  // where a page begins and where it ends

  // Cells.
  void PDFSetBorder(std::int32_t border);  // 0 none, 1 all; digits 2 T, 3 B, 4 L, 5 R
  void PDFSetFill(bool fill) { cell_.fill = fill; }
  void PDFSetAlignement(std::int32_t alignment);  // 0 centre, 1 left, 2 right, 3 justified
  std::string PDFGetAlignement() const;           // "Center", "Right" or, for the others, "Left"
  // One line in the middle of a box's height; the box from its top left.
  void PDFCellLine(std::string_view text, double x, double y, double w, double h,
                   const Argument& link);
  // Wraps at blanks, and does without the link. Needs a font size and a border of 0 or 1, which
  // has to be set anew before each call: DivisionByZero, TypeMismatch otherwise.
  void PDFCell(std::string_view text, double x, double y, double w, double h, const Argument& link);

  // A text that leads to the link, or to itself where the link is empty.
  void PDFLink(double x, double y, std::string_view text, const Argument& link);

  // Colours: three numbers of 0 to 255, "#RRGGBB", or red + 256 green + 65536 blue. Subscript for
  // fewer than three numbers, Overflow beyond 32 bits. They are told as operators: "0 g".
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

  // JPEG files, "jpg" or "jpeg" in small letters. A width or height of 0 follows from the other,
  // both from the pixels. DivisionByZero where a file without a size is to give one, FileAccess
  // where it cannot be read. The position is left in points.
  void PDFImage(std::string_view file, double x, double y, double w, double h,
                const Argument& link);
  double PDFImageWidth(std::string_view file);  // pixels; 0 where the file cannot be used
  double PDFImageHeight(std::string_view file);

  // The face of a printer, on which forms are drawn with twips as the unit: texts are blue, lines
  // red. It has no other members of a drawing target.
  void CurrentX(double x) { x_ = x; }
  double CurrentX() const override { return x_; }
  void CurrentY(double y) { y_ = y; }
  double CurrentY() const override { return y_; }
  void ForeColor(const Argument& ignored);
  void FontSize(std::int16_t points);  // 2 more than asked for; Overflow
  double FontSize() const override { return font_.size; }
  void FontUnderLine(bool underline) { font_.underline = underline; }  // of the next text
  // These change nothing.
  void FontBold(bool) {}
  void FontItalic(bool) {}
  void FontStrikethru(bool) {}
  void Font(std::string_view) {}
  void RightToLeft(bool) {}
  // At the present position, of which its end is the next.
  void Print1(std::string_view text);
  // Vertical between points of one x, else horizontal from the first of them.
  void DrawLINE(double x1, double y1, double x2, double y2, const Argument& ignored);
  // By way of a JPEG file in the temp folder, which is gone afterwards. ObjectNotSet for no picture
  // or without means, JpegLibraryError; one that cannot be written is left out, and the user told
  // twice: by SaveJPG, and as of any file that is no picture.
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
  void AddLine(std::initializer_list<std::string_view> parts);  // of the page's content
  std::string Point(double x, double y) const;
  double StringWidth(const ByteText& text, double size);
  int BeginText();  // the font's number
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
  static std::optional<ByteText> AddressOf(const Argument& link);  // nothing for no text
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
  void SetFontSize(double points) override;  // rounded to whole points
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
  double x_ = page_.leftMargin;  // the present position, user units
  double y_ = page_.topMargin;
  FontFolder fonts_;
  FontChoice font_;
  Pen pen_;
  CellStyle cell_;
  LinkedObject linked_;
  Watermark watermark_;
};

}  // namespace pdf
