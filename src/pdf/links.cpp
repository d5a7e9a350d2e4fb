// Areas of the page that link to an address.

#include "foundation/numbers.h"
#include "pdf/PDFPrinter.h"
#include "pdf/tokens.h"

namespace pdf {
namespace {

using foundation::ByteText;
using foundation::RoundToInt32;

constexpr double kBlue = 16711680;

struct Refusal {
  LinkKind kind;
  std::string_view subject, text, outcome;
};

// A rectangle has none: its bad link passes in silence.
constexpr Refusal kRefusals[] = {
    {LinkKind::Cell, "Lien URL Objet Cellule",
     "URL objet cellule non valide : ", "Impossible d'inclure le lien dans la cellule."},
    {LinkKind::Image, "Lien URL Fichier Image",
     "URL objet image non valide : ", "Impossible d'inclure le lien dans l'image."},
    {LinkKind::Ellipse, "Lien URL Objet Ellipse",
     "URL objet ellipse non valide : ", "Impossible d'inclure le lien dans l'ellipse."},
};

}  // namespace

std::optional<ByteText> PDFPrinter::AddressOf(const Argument& link) {
  if (link.Text() == nullptr) return std::nullopt;
  return Encoded(*link.Text());
}

void PDFPrinter::PDFLink(double x, double y, std::string_view text, const Argument& link) {
  Link(x, y, Encoded(text), link);
}

void PDFPrinter::Link(double x, double y, const ByteText& text, const Argument& link) {
  AddLine({"%DEBUT_LINK/%"});
  font_.underline = true;
  double w = 0, h = font_.size;
  if (linked_.isImage) {
    PDFSetTextColor(kBlue);
    w = RoundToInt32(linked_.imageWidth);
    h = RoundToInt32(linked_.imageHeight);
    TextOut(ByteText(), x, y);
  } else if (linked_.kind == LinkKind::Rectangle) {
    w = linked_.width;
    TextOut(ByteText(), x, y);
  } else if (linked_.kind == LinkKind::None) {
    w = RoundToInt32(StringWidth(text, font_.size));
    TextOut(text, x, y);
  } else {
    w = RoundToInt32(StringWidth(linked_.text, font_.size));
    TextOut(ByteText(), x, y);
  }
  linked_.isImage = false;
  font_.underline = false;
  linked_.kind = LinkKind::None;

  const bool leadsToText = link.IsEmptyText() || (link.Number() != nullptr && *link.Number() == 0);
  PDFAddLinkRect(x, y, w, h, leadsToText ? text : AddressOf(link));
  AddLine({"%FIN_LINK/%"});
}

void PDFPrinter::PDFAddLinkRect(double x, double y, double w, double h,
                                std::optional<ByteText> target) {
  links_.Add(pageNumber_,
             {page_.Across(x), page_.Up(y), page_.Across(w), page_.Across(h), std::move(target)});
}

void PDFPrinter::PDFAttachLink(const Argument& link, LinkKind kind, double x, double y) {
  if (link.Text() == nullptr) {
    for (const Refusal& refusal : kRefusals) {
      if (refusal.kind != kind) continue;
      Complain(refusal.subject,
               std::string(refusal.text) + link.Shown() + ".\r\n" + std::string(refusal.outcome));
    }
    return;
  }
  // Other links do not clear the flag, which a picture whose link has failed leaves set.
  if (kind == LinkKind::Image) linked_.isImage = true;
  if (!link.IsEmptyText()) Link(x, y, Encoded(*link.Text()), "");
  linked_.text = {};
  linked_.isImage = false;
}

}  // namespace pdf
