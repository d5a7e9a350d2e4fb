// Reports for Delhi, and a receiver that records them without a window.
#pragma once

#include <gtest/gtest.h>

#include "report/make_report.h"
#include "support/machine_fakes.h"
#include "support/screen_fakes.h"

namespace report {

inline ReportInput InDelhi(foundation::DateTime from, foundation::DateTime to,
                           foundation::DateTime time = 0.5) {
  return {from, to, time, "28.40N", "77.13E", "82.30E", "-5.30", "Delhi", "India"};
}

struct ReportingTest : testing::Test, PageReceiver {
  support::RecordingTarget target;
  support::FakeYielder yielder;
  foundation::SessionTable session;
  std::string progress;
  std::vector<std::string> titles;
  float width = 0;

  ReportingTest() { foundation::InitSessionRecord(session, foundation::DateFromParts(2011, 3, 5)); }

  void Make(const ReportInput& input) { MakeReport(input, session, yielder, *this); }

  void Begin(const pk_Durvela& page) override { width = page.scaleWidth; }
  forms::DrawingTarget& Target() override { return target; }
  void TakePage(std::int16_t number, const std::string& title) override {
    titles.push_back(std::to_string(number) + ": " + title);
  }
  void ShowProgress(const std::string& text) override { progress = text; }
};

}  // namespace report
