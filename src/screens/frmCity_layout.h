// Rows of the city picker's table of controls, for a window of 4770 by 3930 twips.
#pragma once

#include "forms/control.h"
#include "screens/palette.h"

namespace screens::city_layout {

using forms::Properties;

inline constexpr float kWidth = 4770;
inline constexpr float kHeight = 3930;

// Behind the country and the search text.
inline Properties Head() {
  return {.place = {0, 0, kWidth, 780}, .backColour = palette::kEarth};
}

inline Properties Country() {
  return {.place = {570, 0, 4140, 360},
          .font = {.name = "Arial", .size = 9.75F},
          .spokenName = "Country",
          .foreColour = palette::kInk,
          .backColour = palette::kPaper,
          .tabStop = true,
          .tabIndex = 2};
}

inline Properties CountryCaption() {
  return {.place = {0, 150, 570, 210},
          .caption = "Country",
          .font = {.name = "Arial", .size = 8.25F},
          .foreColour = palette::kCream,
          .alignment = forms::Alignment::Centre,
          .tabIndex = 3};
}

inline Properties SearchText() {
  return {.place = {570, 390, 4140, 375},
          .caption = "Delhi",
          .font = {.name = "Arial", .size = 11.25F},
          .spokenName = "City",
          .whenEmpty = "Name of a place",
          .foreColour = palette::kInk,
          .backColour = palette::kPaper,
          .tabStop = true,
          .tabIndex = 0};
}

inline Properties CityCaption() {
  return {.place = {150, 480, 345, 240},
          .caption = "City",
          .font = {.name = "Arial", .size = 9.75F},
          .foreColour = palette::kCream,
          .tabIndex = 4};
}

inline Properties Cities() {
  return {.place = {0, 780, 4755, 3150},
          .font = {.name = "Tahoma", .size = 9.75F},
          .spokenName = "Places",
          .foreColour = palette::kInk,
          .backColour = palette::kPaper,
          .tabStop = true,
          .tabIndex = 1,
          .sorted = true};
}

}  // namespace screens::city_layout
