// Reports with fake services, in a temporary program folder.
#pragma once

#include <gtest/gtest.h>

#include "report/make_report.h"
#include "support/app_folder.h"
#include "support/machine_fakes.h"
#include "support/screen_fakes.h"

namespace report {

struct Reporting {
  support::AppFolderScope folder;
  support::FakeSettings settings;
  support::FakeMessageBoxes boxes;
  support::FakeYielder yielder;
  support::FakeHost host;
  support::RecordingTarget printer;
  foundation::SessionTable session;
  support::FakeRasteriser rasteriser;
  Services services{settings, session, boxes, yielder, host, rasteriser, printer};
  frmSPkun preview{services};
  forms::Control status;

  Reporting() { foundation::InitSessionRecord(session, foundation::DateFromParts(2011, 3, 5)); }

  // From one day to another in Delhi.
  void Make(foundation::DateTime from, foundation::DateTime to, foundation::DateTime time = 0.5) {
    MakeReport({from, to, time, "28.40N", "77.13E", "82.30E", "-5.30", "Delhi", "India", status},
               preview, services);
  }
};

struct ReportingTest : testing::Test, Reporting {};

}  // namespace report
