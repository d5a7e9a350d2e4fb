// The objects around the pages' contents.

#include "foundation/error.h"
#include "foundation/time_text.h"
#include "pdf/PDFPrinter.h"
#include "pdf/tokens.h"

namespace pdf {
namespace {

constexpr std::string_view kVersion = "1.3";

// Element `number`, counted from 1; Subscript outside.
template <typename List>
auto& Nth(List& list, int number) {
  if (number < 1 || static_cast<std::size_t>(number) > list.size()) {
    throw foundation::Error(foundation::ErrorKind::Subscript);
  }
  return list[static_cast<std::size_t>(number) - 1];
}

std::string Text(int number) {
  return std::to_string(number);
}

// YYYYMMDDHHmmSS.
std::string Stamp(foundation::DateTime moment) {
  const auto fields = foundation::FieldsOf(moment);
  std::string stamp = foundation::PadDigits(fields.year, 4);
  for (const int field : {fields.month, fields.day, fields.hour, fields.minute, fields.second}) {
    stamp += foundation::PadDigits(field, 2);
  }
  return stamp;
}

// A target that is no text leaves its dictionary open.
std::string Annotation(const LinkRecord& link) {
  std::string text = "<</Type /Annot /Subtype /Link /Rect [" + GeneralNumber(link.x) + " " +
                     GeneralNumber(link.y) + " " + GeneralNumber(link.x + link.width) + " " +
                     GeneralNumber(link.y - link.height) + "] /Border [0 0 0] ";
  if (link.address && !link.address->Bytes().empty()) {
    PDFAddLine(text, {"/A <</S /URI /URI (", Escaped(*link.address).Bytes(), ")>>>>"});
  }
  return text;
}

}  // namespace

void PDFPrinter::PDFPutHeader() {
  const std::string header = std::string("%PDF-").append(kVersion);
  file_.WriteLine(header);
  file_.PDFAddOffset(header.size());
}

void PDFPrinter::PDFPutInfo() {
  file_.BeginObject();
  file_.Add({"<<"});
  file_.Add({"/Producer (", info_.producer.Bytes(), ")"});
  file_.Add({"/Author (", info_.author.Bytes(), ")"});
  file_.Add({"/CreationDate (D:", Stamp(clock_.Now()), ")"});
  file_.Add({"/Creator (", info_.creator.Bytes(), ")"});
  file_.Add({"/Keywords (", info_.keywords.Bytes(), ")"});
  file_.Add({"/Subject (", info_.subject.Bytes(), ")"});
  file_.Add({"/Title (", info_.title.Bytes(), ")"});
  file_.Add({"/ModDate ()"});
  file_.Add({">>"});
  file_.EndObject();
}

void PDFPrinter::OpenStream() {
  const int stream = file_.BeginObject();
  file_.Add({"<< /Length ", Text(stream + 1), " 0 R"});
  file_.Add({" >>"});
  file_.Add({"stream"});
}

void PDFPrinter::PDFBeginStream() {
  OpenStream();
  content_.clear();
}

void PDFPrinter::PDFEndStream() {
  const std::size_t length = content_.size();
  file_.AddBytes(content_);
  content_.clear();
  file_.Add({"endstream"});
  file_.EndObject();

  file_.BeginObject();
  file_.Add({std::to_string(length)});
  file_.EndObject();
}

void PDFPrinter::PDFPutFonts() {
  for (const std::string& name : fonts_.Names()) {
    PDFPutFontObject("Type1", name, "WinAnsiEncoding");
  }
}

void PDFPrinter::PDFPutFontObject(std::string_view type, std::string_view name,
                                  std::string_view encoding) {
  fontObjects_.push_back(file_.BeginObject());
  file_.Add({"<< /Type /Font"});
  file_.Add({"/Subtype /", type});
  file_.Add({"/Name /F", std::to_string(fontObjects_.size())});
  file_.Add({"/BaseFont /", Encoded(name).Bytes()});
  file_.Add({"/Encoding /", encoding});
  file_.Add({">>"});
  file_.EndObject();
}

void PDFPrinter::PDFPutPages() {
  objects_.pages = file_.BeginObject();
  file_.Add({"<< /Type /Pages"});
  file_.Add({"/Kids ["});
  tables_ = {};
  for (int page = 1; page <= pageNumber_; ++page) {
    const PageFormat& format = Nth(page_.formats, page);
    tables_.widths.push_back(format.width);
    tables_.heights.push_back(format.height);
    tables_.contents.push_back(2 * page);
    file_.Add({Text(page + objects_.pages + 1 + static_cast<int>(images_.size())), " 0 R"});
  }
  file_.Add({"]"});
  file_.Add({"/Count ", Text(pageNumber_)});
  file_.Add({">>"});
  file_.EndObject();
}

void PDFPrinter::PDFPutResources() {
  objects_.resources = file_.BeginObject();
  file_.Add({"<< /ProcSet [ /PDF /Text /ImageC]"});
  file_.Add({"/XObject << "});
  for (int image = 1; image <= static_cast<int>(images_.size()); ++image) {
    file_.Add({"/ImgJPEG", Text(image), " ", Text(objects_.resources + image), " 0 R"});
  }
  file_.Add({">>"});
  file_.Add({"/Font << "});
  for (int font = 1; font <= static_cast<int>(fontObjects_.size()); ++font) {
    file_.Add({"/F", Text(font), " ", Text(Nth(fontObjects_, font)), " 0 R "});
  }
  file_.Add({">>"});
  file_.Add({">>"});
  file_.EndObject();
}

void PDFPrinter::PDFPutImage(int image) {
  const PDFImageRecord& record = Nth(images_, image);
  const auto shown = [](const std::optional<int>& size) { return size ? Text(*size) : ""; };
  file_.BeginObject();
  file_.Add({"<</Type /XObject"});
  file_.Add({"/Subtype /Image"});
  file_.Add({"/Filter [/", record.filter, " ]"});
  file_.Add({"/Width ", shown(record.width)});
  file_.Add({"/Height ", shown(record.height)});
  file_.Add({"/ColorSpace /", record.colourSpace});
  file_.Add({"/BitsPerComponent ", shown(record.bitsPerComponent)});
  file_.Add({"/Length ", std::to_string(record.data.size())});
  file_.Add({"/Name /ImgJPEG", Text(image), ">>"});
  file_.Add({"stream"});
  file_.Add({record.data});
  file_.Add({"endstream"});
  file_.EndObject();
}

void PDFPrinter::PDFPutPage(int page) {
  tables_.pageObjects.push_back(file_.BeginObject());
  file_.Add({"<< /Type /Page"});
  file_.Add({"/Parent ", Text(objects_.pages), " 0 R"});
  file_.Add({"/MediaBox [ 0 0 ", GeneralNumber(Nth(tables_.widths, page)), " ",
             GeneralNumber(Nth(tables_.heights, page)), "]"});
  file_.Add({"/Resources ", Text(objects_.resources), " 0 R"});
  if (const auto& links = links_.Of(page); !links.empty()) {
    file_.AddBytes("/Annots [");
    for (const LinkRecord& link : links) file_.AddBytes(Annotation(link));
    file_.Add({"]"});
  }
  file_.Add({"/Contents ", Text(Nth(tables_.contents, page)), " 0 R"});
  file_.Add({">>"});
  file_.EndObject();
}

void PDFPrinter::PDFPutOutlines() {
  if (bookmarks_.size() < 2) return;
  const int lastOfLevel1 = LinkBookmarks(bookmarks_);
  const int first = file_.LastObject() + 1;
  for (const PDFBookmarkRecord& bookmark : bookmarks_) PDFPutBookmark(bookmark, first);
  objects_.outlines = file_.BeginObject();
  file_.Add({"<</Type /Outlines /First ", Text(first), " 0 R"});
  file_.Add({"/Last ", Text(first + lastOfLevel1), " 0 R>>"});
  file_.EndObject();
}

void PDFPrinter::PDFPutBookmark(const PDFBookmarkRecord& bookmark, int firstObject) {
  const auto refer = [&](std::string_view name, const std::optional<int>& index) {
    if (index) file_.Add({name, Text(firstObject + *index), " 0 R"});
  };
  const double height = Nth(tables_.heights, bookmark.page);
  file_.BeginObject();
  file_.Add({"<</Title (", bookmark.title.Bytes(), ")"});
  refer("/Parent ", bookmark.parent);
  refer("/Prev ", bookmark.previous);
  refer("/Next ", bookmark.next);
  refer("/First ", bookmark.first);
  refer("/Last ", bookmark.last);
  file_.Add({"/Dest [", Text(Nth(tables_.pageObjects, bookmark.page)), " 0 R /XYZ 0 ",
             PDFFormatNumber(height - bookmark.y * page_.scale, 2), " null]"});
  file_.Add({"/Count 0>>"});
  file_.EndObject();
}

}  // namespace pdf
