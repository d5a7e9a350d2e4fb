// Colours and languages that forms are shown in.

#include <gtest/gtest.h>

#include "report/display_settings.h"
#include "report/modDispRUNTIME.h"
#include "support/app_folder.h"

namespace report {
namespace {

struct Chart : forms::Form {
  Chart() : Form("Chart", "", 1000, 1000) {}
  CONTROL(Label, Planet, {.caption = "mOON", .font = {.name = "Arial", .size = 10, .bold = true}});
  CONTROL(Label, Head, {.caption = "Sun", .tag = "ch"});
  CONTROL(Label, Based, {.caption = "Sun"});
  CONTROL(Label, Marked, {.caption = "Sun", .tag = "hhh"});
  CONTROL(Label, Kept, {.caption = "Sun", .font = {.name = "Arial"}, .tag = "n"});
  CONTROL(Label, Faced, {.caption = "12", .font = {.name = "Arial"}, .tag = "hcon"});
  CONTROL(Label, Unknown, {.caption = "12", .font = {.name = "Arial"}});
  CONTROL(Shape, Box, {.tag = "cs"});
};

TEST(DisplayColours, AreThoseOfThePlanetsNamed) {
  const auto& colours = display::kPlanetColours;
  const std::pair<const char*, forms::Colour> captions[] = {
      {"Sun", colours[1].colour}, {"moo", colours[2].colour}, {"MERCURY", colours[4].colour},
      {"Mercur", forms::Rgb(0)},  {"", forms::Rgb(0)},        {"yXu", forms::Rgb(0)}};
  for (const auto& [caption, colour] : captions) EXPECT_EQ(PlanetColourOf(caption), colour);
  Chart chart;
  ColourForm(chart, false);
  EXPECT_EQ(chart.Planet.foreColour, forms::Colour());
  ColourForm(chart, true);
  EXPECT_EQ(chart.Planet.foreColour, colours[2].colour);
  EXPECT_EQ(chart.Head.foreColour, forms::Rgb(0));
  EXPECT_EQ(chart.Box.borderColour, (forms::Colour{0xF5, 0xB0, 0x17}));  // 1552629
}

TEST(LanguageFonts, DressLabelsWithAPhrase) {
  const support::AppFolderScope folder;
  folder.Write("Language/ehindi.txt", "sun\xA7सूर्य\nmoon\xA7चन्द्र");
  Chart chart;
  ApplyLanguageFonts(chart, 1, 2, false);
  EXPECT_EQ(chart.Planet.caption, "चन्द्र");
  EXPECT_EQ(chart.Planet.font.name, "Lohit Devanagari");
  EXPECT_EQ(chart.Planet.font.size, 17);  // a step of 5 and 2 more
  EXPECT_FALSE(chart.Planet.font.bold);
  EXPECT_EQ(chart.Based.caption, "Sun");
  EXPECT_EQ(chart.Marked.caption, "सूर्य");
  EXPECT_EQ(chart.Kept.caption, "Sun");
  EXPECT_EQ(chart.Faced.caption, "12");
  EXPECT_EQ(chart.Faced.font.name, "Lohit Devanagari");
  EXPECT_EQ(chart.Unknown.font.name, "Arial");
  ApplyLanguageFonts(chart, 4, 0, false);  // whose file is not there
  EXPECT_EQ(chart.Unknown.caption, "12");
}

}  // namespace
}  // namespace report
