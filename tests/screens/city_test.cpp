// The city picker, without a screen.

#include "screens/find_in_list.h"
#include "screens/picker.h"
#include "support/test.h"

namespace screens {
namespace {

struct CityPicker : testing::Test, Picker {
  CityPicker() { form.Load("India", "Delhi", caller); }

  void Press(forms::Key key, int times = 1) {
    for (int i = 0; i < times; ++i) {
      forms::KeyPress press = {key};
      form.Form_KeyDown(press);
      if (!press.handled) form.txtCity_KeyDown(press);
    }
  }
  void Choose(std::string_view country) { FindInCombo(country, form.cmbCountry); }
};

TEST_F(CityPicker, OpensOnTheCallersPlace) {
  form.Load("india", "delhi", caller);
  EXPECT_EQ(Chosen(), "Delhi, Delhi, India");
  EXPECT_EQ(form.txtCity.caption + form.txtCity.trailing, "delhi4 places");
  EXPECT_EQ(form.activeControl, &form.txtCity);
  form.Load("India", "Nowhere", caller);
  EXPECT_EQ(Chosen() + form.txtCity.trailing, "Delhi, Delhi, India4 places");
}

TEST_F(CityPicker, FollowsTypingAndArrows) {
  const auto typed = [&](const char* text) {
    SetText(form.txtCity, text);
    EXPECT_EQ(form.lstCity.emphasis, text);
    return Chosen() + ": " + form.txtCity.trailing;
  };
  const auto pressed = [&](forms::Key key, int times) {
    Press(key, times);
    return Chosen();
  };
  ExpectRows(typed, Row("UJ", "Ujjain, Madhya Pradesh, India: 4 places"),
             Row("ujx", "Ujjain, Madhya Pradesh, India: no match"),
             Row("", "Bombay, Maharashtra, India: 4 places"),
             Row("delhi ", "Delhi Cantonment, Delhi, India: 4 places"));
  ExpectRows(pressed, Row(forms::Key::Down, 2, "Ujjain, Madhya Pradesh, India"),
             Row(forms::Key::Up, 5, "Bombay, Maharashtra, India"));
  EXPECT_EQ(form.activeControl, &form.lstCity);
}

TEST_F(CityPicker, WritesThePlaceIntoTheCallersLabelsUnlessCancelled) {
  const std::string before = PlaceOf(caller);
  SetText(form.txtCity, "Bom");
  Press(forms::Key::Escape);
  form.Form_Deactivate();
  bool cancel = false;
  form.Form_QueryUnload(cancel);
  EXPECT_TRUE(cancel);
  EXPECT_EQ(PlaceOf(caller), before);
  SetText(form.txtCity, "Bombastic");
  Press(forms::Key::Enter);
  EXPECT_EQ(PlaceOf(caller), "India Mumbai(Maharashtra) 18.58N 72.50E 82.30E -5.30 ");
  EXPECT_EQ(host.calls, std::vector<std::string>(4, "Hide frmCity"));
  // A country without a zone: the failing label stays, the others are written.
  form.Load("Atlantis", "P", caller);
  form.lstCity.onDoubleClick();
  EXPECT_EQ(PlaceOf(caller), "Atlantis Poseidonis(Old) 31.15N 24.16W 0.0W  ");
}

TEST_F(CityPicker, CannotAcceptWithoutAChoice) {
  Choose("Fiji");
  EXPECT_EQ(Chosen(), "none");
  EXPECT_ERROR(InvalidCall, Press(forms::Key::Enter));
  Choose("Void");
  EXPECT_EQ(form.lstCity.whenEmpty + form.txtCity.trailing, "No places here.");
  EXPECT_ERROR(InvalidCall, Press(forms::Key::Enter));
  // A record number beyond 16 bits fails too.
  Choose("India");
  SetText(form.txtCity, "Ujjain");
  form.lstCity.items->SetItemData(form.lstCity.items->ListIndex(), 32767);
  EXPECT_ERROR(Overflow, Press(forms::Key::Enter));
}

TEST_F(CityPicker, EndsWithTheCountryChosenLast) {
  Choose("Atlantis");
  yielder.turns = 0;
  yielder.between = [&](int turn) {
    EXPECT_EQ(form.txtCity.trailing, "loading…");
    SetText(form.txtCity, turn % 2 == 0 ? "N" : "Nad");
    EXPECT_EQ(form.txtCity.trailing, "loading…");
    if (turn != 2) return;
    Press(forms::Key::Escape);
    Choose("Fiji");
  };
  form.Load("India", "Nad", caller);
  EXPECT_EQ(form.txtCity.trailing, "1 place");
  Press(forms::Key::Enter);
  EXPECT_EQ(caller.lblCity.caption, "Nadi(Western)");
}

}  // namespace
}  // namespace screens
