// Colours shared by all screens.
#pragma once

#include "forms/colour.h"

namespace forms::palette {

// The sky from top to horizon; text goes on the first three or on a scrim.
inline constexpr auto kNight = Rgb(0x1B1E45);
inline constexpr auto kDusk = Rgb(0x3F2F5E);
inline constexpr auto kPlum = Rgb(0x7A4560);
inline constexpr auto kEmber = Rgb(0xB5605A);
inline constexpr auto kDawn = Rgb(0xF2B263);

inline constexpr auto kEarth = Rgb(0x221C33);  // below the horizon, tool bars, desks
inline constexpr auto kHill = Rgb(0x3A2B4C);
inline constexpr auto kDesk = Rgb(0x2E2642);    // behind pages
inline constexpr auto kPaper = Rgb(0xFFF8EC);   // cards, pages, lists
inline constexpr auto kRule = Rgb(0xE6D8C3);    // lines on paper
inline constexpr auto kInk = Rgb(0x2A2238);     // text on paper
inline constexpr auto kGroove = Rgb(0xF3E8D6);  // track of a scroll bar; its thumb is next
inline constexpr auto kThumb = Rgb(0xBFAF97);
inline constexpr auto kQuiet = Rgb(0x6B5F78);  // captions on paper
inline constexpr auto kCream = Rgb(0xFFF6E5);  // text on sky and earth
inline constexpr auto kFaintCream = Rgb(0xF3E3CF);
inline constexpr auto kFaintOnEarth = Rgb(0xA99BB8);
inline constexpr auto kWhite = Rgb(0xFFFFFF);
inline constexpr auto kGold = Rgb(0xFFD166);         // the sun, the focus ring, selections
inline constexpr auto kGoldOnPaper = Rgb(0xFFECC4);  // at 30 per cent
inline constexpr auto kFocus = Rgb(0xA86F00);        // the focus ring on paper
inline constexpr auto kError = Rgb(0xB3261E);        // a field that refuses its text
inline constexpr auto kSun = Rgb(0xFFE08A);

// The three periods, the same everywhere. Use the OnPaper shades for text on paper or as fields
// behind cream text.
inline constexpr auto kDurvela = Rgb(0xE4572E);
inline constexpr auto kDurvelaOnPaper = Rgb(0xB83A17);
inline constexpr auto kDurvelaHot = Rgb(0x9C2F10);
inline constexpr auto kGulik = Rgb(0xA78BFA);
inline constexpr auto kGulikOnPaper = Rgb(0x6B4FC9);
inline constexpr auto kYum = Rgb(0x34B3A0);
inline constexpr auto kYumOnPaper = Rgb(0x14776A);

}  // namespace forms::palette
