// The timetable's page: drawing, scrolling, and marking a list that is out of date.

#include <algorithm>

#include "foundation/date_text.h"
#include "foundation/resume.h"
#include "screens/frmDurvela.h"
#include "screens/place_labels.h"
#include "screens/quick_view.h"

namespace screens {
namespace {

using foundation::Resume;

constexpr float kTwips = layout::kTwipsPerPixel;
constexpr float kMargin = 8 * kTwips;  // above and below the page
constexpr int kScrollStep = 480;       // twips: slightly more than a row

}  // namespace

// If a row fails, the list ends there without a message.
void frmDurvela::cmdShow_Click() {
  Resume([&] {
    CopyPlace(PlaceLabelsOf(*this), services_.session.Current());
    const foundation::DateTimeFields time = foundation::FieldsOf(dtTime.moment);
    const foundation::DateTime start =
        DT1.moment + foundation::TimeFromParts(time.hour, time.minute, time.second);
    DrawQuickView(services_.host.TargetOf(picRes), start, DT2.moment, services_.session);
  });
  Resume([&] { listEnd_ = static_cast<float>(services_.host.TargetOf(picRes).CurrentY()); });
  FitPage();
  SetScroll(VScroll1, 0);  // back to the first row
  shown_ = ReadInputs();
  MarkOldList();
}

frmDurvela::Inputs frmDurvela::ReadInputs() {
  Inputs inputs = {DT1.moment, DT2.moment, dtTime.moment, {}};
  std::ranges::transform(PlaceLabelsOf(*this), inputs.place.begin(),
                         [](const forms::Control* label) { return label->caption; });
  return inputs;
}

// A list for another place or other dates stays until Quick View, dimmed and with a remark. The
// remark also shows while a picker refuses its text, since the list is then for its last value.
void frmDurvela::MarkOldList() {
  picRes.faded = ReadInputs() != shown_;
  picRes.spokenName = timetable_layout::kPageName;
  lblOldList.caption.clear();
  if (!picRes.faded && (DT1.refusal + DT2.refusal + dtTime.refusal).empty()) return;
  const auto& [country, city, latitude, longitude, zone, zoneTime] = shown_.place;
  const foundation::DateTimeFields from = foundation::FieldsOf(shown_.from);
  lblOldList.caption = "Shown: " + city + ", from " +
                       foundation::DayMonthYear(from.day, from.month, from.year, ' ') +
                       (picRes.faded ? ". Press Quick View." : ".");
  picRes.spokenName += ". " + lblOldList.caption;
}

// The page keeps its size unless the frame is too narrow; rows below the frame can be scrolled to.
void frmDurvela::FitPage() {
  constexpr float kWidth = timetable_layout::kPageWidth * kTwips;
  constexpr float kHeight = timetable_layout::kPageHeight * kTwips;
  const float scale = std::min(1.0F, (frRes.place.width - VScroll1.place.width) / kWidth);
  const int scrolled = VScroll1.scroll.value;
  picRes.place = {0, kMargin, scale * kWidth, scale * kHeight};
  const float below = scale * std::min(listEnd_, kHeight) + 2 * kMargin - frRes.place.height;
  VScroll1.scroll = {.maximum = static_cast<int>(std::max(0.0F, below)),
                     .smallChange = kScrollStep,
                     .largeChange = static_cast<int>(frRes.place.height)};
  SetScroll(VScroll1, scrolled);
}

void frmDurvela::VScroll1_Change() {
  picRes.place.top = kMargin - static_cast<float>(VScroll1.scroll.value);
}

}  // namespace screens
