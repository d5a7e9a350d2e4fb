// The city picker, without a screen.

#include <gtest/gtest.h>

#include "screens/find_in_list.h"
#include "screens/picker.h"
#include "support/errors.h"

namespace screens {
namespace {

class CityPicker : public testing::Test {
 protected:
  frmCity& Form() { return picker_.form; }
  void Press(forms::Key key) {
    forms::KeyPress press = {key};
    Form().Form_KeyDown(press);
    if (!press.handled) Form().txtCity_KeyDown(press);
  }
  void Choose(std::string_view country) { FindInCombo(country, Form().cmbCountry); }

  Picker picker_;
};

TEST_F(CityPicker, OpensOnTheCallersPlace) {
  picker_.form.Load("india", "delhi", picker_.caller);
  EXPECT_EQ(Form().cmbCountry.items->ListIndex(), 2);
  EXPECT_EQ(picker_.Chosen(), "Delhi, Delhi, India");
  EXPECT_EQ(Form().txtCity.caption, "delhi");
  EXPECT_EQ(Form().txtCity.trailing, "4 places");
  EXPECT_EQ(Form().activeControl, &Form().txtCity);
  const int turns = picker_.yielder.turns;
  picker_.form.Load("India", "Nowhere", picker_.caller);
  EXPECT_EQ(picker_.yielder.turns, turns);  // the country is there already
  EXPECT_EQ(picker_.Chosen(), "Delhi, Delhi, India");
  EXPECT_EQ(Form().txtCity.trailing, "4 places");
  forms::Choose(Form().cmbCountry, 2);
  EXPECT_GT(picker_.yielder.turns, turns);  // the user's own choice
}

TEST_F(CityPicker, FollowsWhatIsTypedAndTheArrows) {
  Form().Load("India", "Delhi", picker_.caller);
  const std::pair<std::string_view, std::string_view> typed[] = {
      {"UJ", "Ujjain, Madhya Pradesh, India"},
      {"ujx", "Ujjain, Madhya Pradesh, India"},
      {"", "Bombay, Maharashtra, India"},
      {"delhi ", "Delhi Cantonment, Delhi, India"}};
  for (const auto& [text, chosen] : typed) {
    SetText(Form().txtCity, text);
    EXPECT_EQ(picker_.Chosen(), chosen) << text;
    EXPECT_EQ(Form().lstCity.emphasis, text);
    EXPECT_EQ(Form().txtCity.trailing, text == "ujx" ? "no match" : "4 places");
  }
  Press(forms::Key::Down);
  EXPECT_EQ(picker_.Chosen(), "Ujjain, Madhya Pradesh, India");
  EXPECT_EQ(Form().activeControl, &Form().lstCity);
  Press(forms::Key::Down);
  EXPECT_EQ(picker_.Chosen(), "Ujjain, Madhya Pradesh, India");
  for (int i = 0; i < 5; ++i) Press(forms::Key::Up);
  EXPECT_EQ(picker_.Chosen(), "Bombay, Maharashtra, India");
}

TEST_F(CityPicker, WritesThePlaceIntoTheCallersLabels) {
  Form().Load("India", "Bom", picker_.caller);
  Press(forms::Key::Enter);
  EXPECT_EQ(picker_.caller.Place(), "Mumbai(Maharashtra) India 18.58N 72.50E -5.30 82.30E ");
  EXPECT_EQ(picker_.host.calls, std::vector<std::string>{"Hide frmCity"});
  // A country without a zone: the failing label stays, the others are written.
  Form().Load("Atlantis", "P", picker_.caller);
  Form().lstCity.onDoubleClick();
  EXPECT_EQ(picker_.caller.Place(), "Poseidonis(Old) Atlantis 31.15N 24.16W  0.0W ");
}

TEST_F(CityPicker, LeavesTheLabelsAtAnyOtherEnd) {
  Form().Load("India", "Bom", picker_.caller);
  const std::string before = picker_.caller.Place();
  Press(forms::Key::Escape);
  Form().Form_Deactivate();
  bool cancel = false;
  Form().Form_QueryUnload(cancel);
  EXPECT_TRUE(cancel);
  EXPECT_EQ(picker_.host.calls, std::vector<std::string>(3, "Hide frmCity"));
  EXPECT_EQ(picker_.caller.Place(), before);
}

TEST_F(CityPicker, CannotAcceptWithoutAChoice) {
  Form().Load("India", "Delhi", picker_.caller);
  Choose("Fiji");
  EXPECT_EQ(picker_.Chosen(), "none");
  EXPECT_ERROR(InvalidCall, Press(forms::Key::Enter));
  Choose("Void");
  EXPECT_EQ(Form().lstCity.whenEmpty, "No places here.");
  EXPECT_EQ(Form().txtCity.trailing, "");
  EXPECT_ERROR(InvalidCall, Press(forms::Key::Enter));
  // Nor with a number that 16 bits do not hold.
  Choose("India");
  SetText(Form().txtCity, "Ujjain");
  const int place = Form().lstCity.items->ListIndex();
  Form().lstCity.items->SetItemData(place, 32767);
  EXPECT_ERROR(Overflow, Press(forms::Key::Enter));
  Form().lstCity.items->SetItemData(place, 32766);
  Press(forms::Key::Enter);
  EXPECT_EQ(Form().lstCity.items->ListCount(), 4);
}

TEST_F(CityPicker, HoldsTheCountryChosenLastWhateverComesInBetween) {
  picker_.yielder.between = [&](int turn) {
    EXPECT_EQ(Form().txtCity.trailing, "loading…");
    SetText(Form().txtCity, turn % 2 == 0 ? "N" : "Nad");
    EXPECT_EQ(Form().txtCity.trailing, "loading…");
    if (turn != 2) return;
    Press(forms::Key::Escape);
    Choose("Fiji");
  };
  Form().Load("India", "Nad", picker_.caller);
  EXPECT_EQ(Form().lstCity.items->ListCount(), 1);
  EXPECT_EQ(Form().txtCity.trailing, "1 place");
  EXPECT_EQ(Form().cmbCountry.items->List(Form().cmbCountry.items->ListIndex()), "Fiji");
  Press(forms::Key::Enter);
  EXPECT_EQ(picker_.caller.lblCity.caption, "Nadi(Western)");
}

}  // namespace
}  // namespace screens
