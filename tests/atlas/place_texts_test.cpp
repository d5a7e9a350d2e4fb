// Places as numbers and as texts.
#include "atlas/place_texts.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/table.h"

namespace atlas {
namespace {

using support::Row;

// "Delhi|Delhi|28.667|77.217", rounded to 0.001; "none" for texts that are no place.
std::string Described(const char* city, const char* latitude, const char* longitude) {
  const auto place = PlaceOfTexts({"India", city, latitude, longitude, "-5.30"});
  if (!place) return "none";
  const auto rounded = [](double degrees) {
    return std::to_string(static_cast<int>(std::round(degrees * 1000)));
  };
  EXPECT_EQ(place->country, "India");
  return place->name + "|" + place->state + "|" + rounded(place->latitude) + "|" +
         rounded(place->longitude);
}

TEST(PlaceTexts, AreReadAsDegreesAndMinutes) {
  ExpectRows(Described, Row("Delhi(Delhi)", "28.40N", "77.13E", "Delhi|Delhi|28667|77217"),
             Row("Delhi", "28.40N", "77.00E", "Delhi||28667|77000"),
             Row("Lima(Lima)", "12.03S", "77.02W", "Lima|Lima|-12050|-77033"),
             Row("", "0.30S", "0.30W", "||-500|-500"),
             Row("Chita(Zabaykalskiy (Transbaikal) Kray)", "52.02N", "113.30E",
                 "Chita|Zabaykalskiy (Transbaikal) Kray|52033|113500"),
             Row("4 Arm (Kharwali)(Rajasthan)", "28.45N", "73.04E",
                 "4 Arm (Kharwali)|Rajasthan|28750|73067"),
             Row("Odd)", "90.00N", "180.00W", "Odd)||90000|-180000"),
             Row("(Delhi)", "28.40N", "77.13E", "(Delhi)||28667|77217"));
  for (const auto& [latitude, longitude] : {std::pair("28.40", "77.13E"),
                                            {"28.40E", "77.13E"},
                                            {"-28.40N", "77.13E"},
                                            {"90.01N", "77.13E"},
                                            {"28.40N", "180.01E"},
                                            {"28.40N", ""},
                                            {"28.40N", "E"},
                                            {"nanN", "77.13E"},
                                            {"28.40N", "1E999E"},
                                            {"28.40N", "99999999999E"}}) {
    EXPECT_EQ(Described("Delhi", latitude, longitude), "none") << latitude << " " << longitude;
  }
}

TEST(PlaceTexts, AreWrittenAsTheyAreRead) {
  for (const PlaceTexts& texts : {PlaceTexts{"India", "Delhi(Delhi)", "28.40N", "77.13E", "-5.30"},
                                  PlaceTexts{"Peru", "Lima(Lima)", "12.03S", "77.02W", "+5"},
                                  PlaceTexts{"Atlantis", "Deep", "0.30S", "0.01E", ""}}) {
    EXPECT_EQ(TextsOfPlace(*PlaceOfTexts(texts)), texts) << texts.city;
  }
}

}  // namespace
}  // namespace atlas
