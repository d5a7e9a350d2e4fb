// Receives a report without a window.
#pragma once

#include "report/make_report.h"
#include "support/machine_fakes.h"
#include "support/screen_fakes.h"
#include "support/test.h"

namespace report {

struct Receiver : testing::Test, PageReceiver {
  support::RecordingTarget target;
  support::FakeYielder yielder;
  foundation::SessionTable session;
  std::string shown, titles;  // the texts of progress; numbers and titles of pages

  void Begin(const pk_Durvela& page) override { EXPECT_EQ(page.scaleWidth, 13635); }
  forms::DrawingTarget& Target() override { return target; }
  void TakePage(std::int16_t number, const std::string& title) override {
    titles += std::to_string(number) + ": " + title + "|";
  }
  void ShowProgress(const std::string& text) override { shown += text + "|"; }

  void Make(const ReportInput& input) {
    target.calls.clear();
    titles.clear();
    MakeReport(input, session, yielder, *this);
  }

  // The ten columns of a row, from 0, of the page last drawn, each after a blank.
  std::string RowOf(int row) const {
    const std::string top = std::to_string(1320 + 270 * row);
    std::string texts;
    for (int left : {1125, 2250, 3420, 4500, 5730, 6810, 8010, 9120, 10320, 11460}) {
      if (row >= 27) left -= 15;
      texts += target.After("Print " + std::to_string(left) + " " + top).back();
    }
    return texts;
  }
};

}  // namespace report
