// The catalog: where a reader starts, and how the document opens.

#include "pdf/PDFPrinter.h"
#include "pdf/tokens.h"

namespace pdf {
namespace {

struct Preference {
  char digit;  // of the code
  std::string_view name;
};

// In writing order.
constexpr Preference kPreferences[] = {{'2', "HideMenubar"},  {'1', "HideToolbar"},
                                       {'3', "HideWindowUI"}, {'6', "DisplayDocTitle"},
                                       {'5', "CenterWindow"}, {'4', "FitWindow"}};

std::string View(std::int32_t zoomMode) {
  switch (zoomMode) {
    case 0:
      return "Fit";
    case 1:
      return "FitH null";
    case 2:
      return "XYZ null null 1";
    default:
      return "XYZ null null " + PDFFormatNumber(zoomMode / 100.0, 2);
  }
}

}  // namespace

void PDFPrinter::PDFPutCatalog() {
  objects_.catalog = file_.BeginObject();
  file_.Add({"<<"});
  file_.Add({"/Type /Catalog"});
  file_.Add({"/Pages ", std::to_string(objects_.pages), " 0 R"});
  // Object 3 is the length of the first page's content, not the page, but must stay here.
  file_.Add({"/OpenAction [3 0 R /", View(settings_.zoomMode.value_or(0)), "]"});
  AddLayoutMode();
  if (settings_.useThumbs) file_.Add({"/PageMode /UseThumbs"});
  if (settings_.useOutlines) {
    file_.Add({"/Outlines ", std::to_string(objects_.outlines), " 0 R"});
    file_.Add({"/PageMode /UseOutlines"});
  }
  AddViewerPreferences();
  file_.Add({">>"});
  file_.EndObject();
}

void PDFPrinter::AddLayoutMode() {
  constexpr std::string_view kLayouts[] = {"SinglePage", "OneColumn", "TwoColumnLeft"};
  const std::int32_t layout = settings_.layoutMode.value_or(0);
  if (layout < 3) file_.Add({"/PageLayout /", kLayouts[layout]});
}

void PDFPrinter::AddViewerPreferences() {
  if (!settings_.viewerPreferences) return;
  const std::string code = std::to_string(*settings_.viewerPreferences);
  file_.Add({"/ViewerPreferences<<"});
  for (const Preference& preference : kPreferences) {
    if (code.find(preference.digit) == std::string::npos) continue;
    file_.Add({"/", preference.name, " true"});
  }
  file_.Add({">>"});
}

}  // namespace pdf
