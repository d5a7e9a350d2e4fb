// Reports in the preview with fake services, in a temporary program folder.
#pragma once

#include "report/reporting.h"
#include "screens/show_report.h"
#include "support/app_folder.h"

namespace screens {

struct Previewing {
  support::AppFolderScope folder;
  support::FakeSettings settings;
  support::FakeMessageBoxes boxes;
  support::FakeYielder yielder;
  support::FakeHost host;
  support::RecordingTarget printer;
  foundation::SessionTable session;
  support::FakeRasteriser rasteriser;
  PreviewServices services{settings, session, boxes, yielder, host, rasteriser, printer};
  frmSPkun preview{services};
  forms::Control status;

  Previewing() { foundation::InitSessionRecord(session, foundation::DateFromParts(2011, 3, 5)); }

  // From one day to another in Delhi.
  void Make(foundation::DateTime from, foundation::DateTime to) {
    ShowReport(report::InDelhi(from, to), status, preview, services);
  }
};

struct PreviewTest : testing::Test, Previewing {};

}  // namespace screens
