// Reports for Delhi in the preview, in a temporary program folder.
#pragma once

#include "screens/show_report.h"
#include "support/app_folder.h"
#include "support/machine_fakes.h"
#include "support/screen_fakes.h"

namespace screens {

template <typename Host, typename Rasteriser, typename Printer>
struct PreviewingWith {
  support::AppFolderScope folder;
  support::FakeSettings settings;
  support::FakeMessageBoxes boxes;
  support::FakeYielder yielder;
  foundation::SessionTable session;
  Host host;
  Rasteriser rasteriser;
  Printer printer;
  PreviewServices services{settings, session, boxes, yielder, host, rasteriser, printer};
  frmSPkun preview{services};
  forms::Control status;

  explicit PreviewingWith(const auto&... ofPrinter) : printer(ofPrinter...) {
    foundation::InitSessionRecord(session, foundation::DateFromParts(2011, 3, 5));
  }

  void Make(foundation::DateTime from, foundation::DateTime to) {
    ShowReport({from, to, 0.5, "28.40N", "77.13E", "82.30E", "-5.30", "Delhi", "India"}, status,
               preview, services);
  }
};

}  // namespace screens
