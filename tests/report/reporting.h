// The report on fakes, in a program folder of its own.
#pragma once

#include <gtest/gtest.h>

#include <utility>

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

  // From one day to another at noon in Delhi.
  void Make(foundation::DateTime from, foundation::DateTime to) {
    MakeReport({from, to, 0.5, "28.40N", "77.13E", "82.30E", "-5.30", "Delhi", "India", status},
               preview, services);
  }

  // The entries of the page list, with a stroke behind each.
  std::string Pages() const {
    std::string pages;
    for (int i = 0; i < preview.cmbPage.items->ListCount(); ++i) {
      pages += std::string(preview.cmbPage.items->List(i)) + "|";
    }
    return pages;
  }

  auto Files() const {
    return std::distance(std::filesystem::directory_iterator(folder.path / "temp"), {});
  }

  // Texts of the target's Print calls, of the last page drawn.
  std::vector<std::string> Printed() const {
    std::vector<std::string> printed, before;
    for (const std::string& call : host.target.calls) {
      if (call == "Cls" && !printed.empty()) before = std::exchange(printed, {});
      if (call.starts_with("Print ")) printed.push_back(call);
    }
    return printed.empty() ? before : printed;
  }
};

struct ReportingTest : testing::Test, Reporting {};

}  // namespace report
