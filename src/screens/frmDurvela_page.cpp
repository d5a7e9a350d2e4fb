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
constexpr float kNarrowest = timetable_layout::kPageWidth * kTwips;
constexpr float kMargin = 8 * kTwips;  // above and below the page
constexpr int kScrollStep = 480;       // twips: slightly more than a row

}  // namespace

// By the country's clock, the list ends without a message if a row fails.
void frmDurvela::cmdShow_Click() {
  ReadClock();
  SetListWidth(kNarrowest);
  Resume([&] {
    CopyPlace(PlaceLabelsOf(*this), services_.session.Current());
    DrawList();
  });
  Resume([&] { listEnd_ = static_cast<float>(services_.host.TargetOf(picRes).CurrentY()); });
  FitPage();
  SetScroll(VScroll1, 0);  // back to the first row
  shown_ = ReadInputs();
  ShowClock();
  MarkOldList();
}

// Notes beside the rows need a wider page, and are known only once it is drawn.
void frmDurvela::DrawList() {
  const foundation::DateTimeFields time = foundation::FieldsOf(dtTime.moment);
  const foundation::DateTime start =
      DT1.moment + foundation::TimeFromParts(time.hour, time.minute, time.second);
  if (!ownClock_) {
    DrawQuickView(services_.host.TargetOf(picRes), start, DT2.moment, services_.session);
    return;
  }
  const auto draw = [&] {
    return static_cast<float>(DrawQuickView(services_.host.TargetOf(picRes), start, DT2.moment,
                                            services_.session, place_));
  };
  const float width = draw();
  if (width <= listWidth_) return;
  SetListWidth(width);
  draw();
}

// The page of another width is a new one.
void frmDurvela::SetListWidth(float width) {
  if (width == listWidth_) return;
  listWidth_ = width;
  services_.host.ForgetTarget(picRes);
  picRes.picture = nullptr;
  picRes.place.width = width;
  picRes.place.height = timetable_layout::kPageHeight * kTwips;
}

frmDurvela::Inputs frmDurvela::ReadInputs() {
  Inputs inputs = {DT1.moment, DT2.moment, dtTime.moment, {}};
  if (ownClock_) inputs.zone = place_.Clock().zone;
  std::ranges::transform(PlaceLabelsOf(*this), inputs.place.begin(),
                         [](const forms::Control* label) { return label->caption; });
  return inputs;
}

// A list for another place, clock or other dates stays until Quick View, dimmed and with a
// remark. The remark also shows while a picker refuses its text, since the list is then for its
// last value.
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
  constexpr float kHeight = timetable_layout::kPageHeight * kTwips;
  const float scale = std::min(1.0F, (frRes.place.width - VScroll1.place.width) / listWidth_);
  const int scrolled = VScroll1.scroll.value;
  picRes.place = {0, kMargin, scale * listWidth_, scale * kHeight};
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
