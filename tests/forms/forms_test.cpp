// Forms, lists, drawing targets, and resizing.

#include <functional>
#include <utility>
#include <vector>

#include "forms/clsVSZ.h"
#include "forms/drawing_target.h"
#include "forms/item_list.h"
#include "forms/moment_picker.h"
#include "forms/picture.h"
#include "foundation/legacy_hindi.h"
#include "support/test.h"

namespace forms {
namespace {

TEST(DrawingTarget, RejectsMissingMembers) {
  struct : DrawingTarget {
  } bare;
  EXPECT_ERROR(NoSuchMember, bare.SetDrawWidth(2));
}

TEST(ItemList, ReturnsTheIndexOfANewEntry) {
  ItemList sorted{true}, inOrder{false};
  ExpectRows([&](auto text) { return sorted.AddItem(text); }, Row("Mumbai", 0), Row("agra", 0),
             Row("Agra Cantt", 1), Row("Zira", 3), Row("AGRA", 1), Row("mumbai", 4),
             Row("Agra, Uttar Pradesh", 2));
  ExpectRows([&](auto text) { return inOrder.AddItem(text); }, Row("b", 0), Row("a", 1));
}

TEST(ItemList, KeepsSelectionAndItemDataWithTheEntry) {
  ItemList list{true};
  list.AddItem("b");
  EXPECT_ERROR(InvalidCall, list.SetListIndex(1));
  EXPECT_ERROR(InvalidCall, list.SetListIndex(-1));
  list.SetListIndex(0);
  list.SetItemData(0, 7);
  list.AddItem("a");
  list.AddItem("c");
  EXPECT_EQ(std::tuple(list.ListIndex(), list.ItemData(1), list.List(1)), std::tuple(1, 7, "b"));
  list.Clear();
  EXPECT_EQ(list.ListIndex(), -1);
}

TEST(MomentPicker, TakesWhatIsTypedOrSaysWhyNot) {
  Control date, time;
  date.kind = Kind::DatePicker;
  time.kind = Kind::TimePicker;
  int events = 0;
  date.onChange = time.onChange = [&] { ++events; };
  // The text that is shown, whether the typed one is refused, and the change events.
  const auto type = [&](Control* picker, const char* typed) {
    TypeMoment(*picker, typed);
    return std::tuple(MomentText(*picker), !picker->refusal.empty(), std::exchange(events, 0));
  };
  ExpectRows(type, Row(&date, "05/3/2011", std::tuple("5/March/2011", false, 1)),
             Row(&date, "31/2/2011", std::tuple("5/March/2011", true, 1)),
             Row(&date, "", std::tuple("5/March/2011", true, 0)),
             Row(&date, "5 mar 2011", std::tuple("5/March/2011", false, 1)),
             Row(&date, "5-3-11", std::tuple("5/March/2011", false, 0)),
             Row(&time, "6:05 PM", std::tuple("06:05 PM", false, 1)),
             Row(&time, "6:05:30 PM", std::tuple("06:05 PM", true, 1)),
             Row(&time, "5/3/2011", std::tuple("06:05 PM", true, 0)),
             Row(&time, "0730pm", std::tuple("07:30 PM", false, 1)),
             Row(&time, "905", std::tuple("09:05 AM", false, 1)),
             Row(&time, "12345", std::tuple("09:05 AM", true, 1)),
             Row(&time, "0:30", std::tuple("12:30 AM", false, 1)));
}

TEST(MomentPicker, StepsPartByPart) {
  const auto stepped = [](Kind kind, const char* from, int part, int steps) {
    Control picker;
    picker.kind = kind;
    TypeMoment(picker, from);
    StepMoment(picker, part, steps);
    return MomentText(picker);
  };
  ExpectRows(std::bind_front(stepped, Kind::DatePicker), Row("31/12/2011", 0, 1, "1/January/2012"),
             Row("31/1/2011", 1, 1, "28/February/2011"),
             Row("15/1/2011", 1, -13, "15/December/2009"),
             Row("29/2/2012", 2, -1, "28/February/2011"), Row("1/1/100", 0, -1, "1/January/100"),
             Row("1/1/100", 1, -1, "1/January/100"), Row("5/3/9999", 2, 1, "5/March/9999"),
             Row("31/12/9999", 0, 10, "31/December/9999"));
  ExpectRows(std::bind_front(stepped, Kind::TimePicker), Row("23:59", 1, 1, "12:00 AM"),
             Row("0:30", 0, -1, "11:30 PM"), Row("6:05", 2, 1, "06:05 PM"),
             Row("11:59", 1, 1, "12:00 PM"), Row("12:00", 1, -1, "11:59 AM"));
}

// Drawn column by column; the head has a face with another baseline and its own encoding.
TEST(Picture, IsReadLineByLine) {
  const std::string hindi(foundation::kLegacyHindiFace);
  const auto page = NewPicture(900, 900);
  page->items = {Lettering{.text = "fnukad", .at = {10, 95}, .face = hindi}, Outline{},
                 Lettering{.text = "1-Sat", .at = {10, 120}},
                 Lettering{.text = "Rise", .at = {80, 100}},
                 Lettering{.text = "07:14", .at = {80, 120}}};
  EXPECT_EQ(LinesOf(*page), "दिनांक Rise\n1-Sat 07:14\n");
}

// One control for each way of resizing.
struct SampleForm : Form {
  SampleForm() : Form("SampleForm", "Sample", 6000, 4000) {}

  CONTROL(Label, lblHead, {.place = {100, 200, 3000, 300}, .font = {.size = 9}});
  CONTROL(Timer, Timer1, {.place = {1, 2, 3, 4}, .interval = 10});
  CONTROL(Line, Line1, {.ends = {150, 1000, 5850, 1100}});
  CONTROL(Shape, Shape1, {.place = {10, 20, 30, 40}});
  CONTROL(ComboBox, cmbPage, {.place = {500, 600, 700, 315}, .font = {.size = 12}});
  CONTROL(Label, Fixed, {.place = {1, 2, 3, 4}, .font = {.size = 9}, .tag = "nr"});
  CONTROL(Label, SameFont, {.place = {1000, 2000, 400, 500}, .font = {.size = 9}, .tag = "nf"});
  CONTROL_ARRAY(Label, LBL, {{.caption = "first"}, {.caption = "second"}});

  void Resize(float width, float height, bool keepSizes = false) {
    scaleWidth = width;
    scaleHeight = height;
    sizes.ResizeControls(*this, keepSizes ? foundation::kTrue16 : foundation::kFalse16);
  }
  std::vector<Properties> Layout() { return {Controls().begin(), Controls().end()}; }

  clsVSZ sizes;
};

TEST(Form, KeepsControlsInTableOrder) {
  SampleForm form;
  std::string names;
  for (const Control& control : form.Controls()) names += control.name + " ";
  EXPECT_EQ(names, "lblHead Timer1 Line1 Shape1 cmbPage Fixed SameFont LBL LBL ");
  EXPECT_EQ(form.LBL[1].caption + std::to_string(form.LBL[1].index), "second1");
  EXPECT_ERROR(Subscript, form.LBL[2]);
}

struct Resizing : testing::Test {
  Resizing() { form.sizes.SaveSizes(form); }
  SampleForm form;
};

TEST_F(Resizing, ScalesAxesSeparatelyAndFontsByHeight) {
  form.Resize(12000, 6000);
  const auto place = [](const Control* control) { return control->place; };
  ExpectRows(place, Row(&form.lblHead, Place{200, 300, 6000, 450}),
             Row(&form.Shape1, Place{20, 30, 60, 60}),
             Row(&form.cmbPage, Place{1000, 900, 1400, 315}),  // the toolkit sets its height
             Row(&form.Fixed, Place{1, 2, 3, 4}), Row(&form.Timer1, Place{1, 2, 3, 4}),
             Row(&form.SameFont, Place{2000, 3000, 800, 750}));
  EXPECT_EQ(form.Line1.ends, (LineEnds{300, 1500, 11700, 1650}));
  EXPECT_TRUE(form.autoRedraw);
  EXPECT_EQ(form.paintedPicture, (Place{0, 0, 12000, 6000}));

  const auto size = [](const Control* control) { return control->font.size; };
  ExpectRows(size, Row(&form.lblHead, 13.5F), Row(&form.cmbPage, 18.0F), Row(&form.Fixed, 9.0F),
             Row(&form.SameFont, 9.0F));
  form.Resize(4000, 2666.6667F);  // keeps them readable
  ExpectRows(size, Row(&form.lblHead, 7.5F), Row(&form.cmbPage, 8.0F));
}

TEST_F(Resizing, RestoresTheLayoutExactlyAndIgnoresMinimisedForms) {
  const auto before = form.Layout();
  for (const float width : {7001.0F, 3333.0F, 19.0F, 6000.0F}) form.Resize(width, width * 2 / 3);
  EXPECT_EQ(form.Layout(), before);
  form.windowState = WindowState::Minimised;
  form.Resize(2400, 400);
  EXPECT_EQ(form.Layout(), before);
}

TEST_F(Resizing, CanMoveWithoutResizing) {
  form.Resize(12000, 8000, true);
  EXPECT_EQ(form.lblHead.place, (Place{200, 400, 3000, 300}));
  EXPECT_EQ(form.lblHead.font.size, 9);
  EXPECT_EQ(form.Line1.ends, (LineEnds{300, 2000, 11700, 2200}));
}

}  // namespace
}  // namespace forms
