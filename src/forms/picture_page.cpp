#include "forms/picture_page.h"

#include <utility>

#include "forms/units.h"

namespace forms {

PicturePage::PicturePage(Control& pictureBox, const TextMeasure& measure)
    : box_(pictureBox),
      measure_(measure),
      picture_(NewPicture(pictureBox.place.width, pictureBox.place.height)),
      font_(pictureBox.font),
      colour_(pictureBox.foreColour) {
  if (!box_.picture) return;
  picture_->items.emplace_back(Inset{box_.picture, {}, picture_->width, picture_->height});
}

// Once something else holds the picture, it no longer changes: the page continues on a copy, so
// that comparing pointers reveals the change.
Picture& PicturePage::Editable() {
  const bool taken = picture_.use_count() > (box_.picture == picture_ ? 2 : 1);
  if (taken) picture_ = std::make_shared<Picture>(*picture_);
  box_.picture = picture_;
  return *picture_;
}

void PicturePage::Cls() {
  Editable().items.clear();
  x_ = y_ = 0;
}

void PicturePage::Line(double x1, double y1, double x2, double y2, Colour colour, LineStyle style) {
  Outline outline;
  if (style == LineStyle::Straight) {
    outline.path.MoveTo({x1, y1}).LineTo({x2, y2});
  } else {
    outline.path = Path::Box({x1, y1}, x2 - x1, y2 - y1);
  }
  if (style == LineStyle::FilledBox) {
    outline.fill = colour;
  } else {
    outline.stroke = {colour, lineWidth_ * kTwipsPerPixel};
  }
  Editable().items.emplace_back(std::move(outline));
}

void PicturePage::PaintPicture(const PicturePtr& picture, double x, double y, double width,
                               double height) {
  if (picture) Editable().items.emplace_back(Inset{picture, {x, y}, width, height});
}

void PicturePage::Print(std::string_view text) {
  Picture& picture = Editable();
  if (y_ < picture.height) {
    picture.items.emplace_back(Lettering{.text = std::string(text),
                                         .at = {x_, y_ + measure_.Ascent(font_)},
                                         .size = measure_.LetterSize(font_),
                                         .bold = font_.bold,
                                         .colour = colour_,
                                         .face = font_.name,
                                         .italic = font_.italic,
                                         .underline = font_.underline,
                                         .strikethrough = font_.strikethrough});
  }
  x_ = 0;
  y_ += TextHeight(text);
}

double PicturePage::TextWidth(std::string_view text) const {
  return measure_.TextWidth(text, font_);
}

double PicturePage::TextHeight(std::string_view) const {
  return measure_.LineHeight(font_);
}

}  // namespace forms
