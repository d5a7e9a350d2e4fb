// Attributes of a birth that depend on the Moon.

#include "dayperiods/clsBirthDetails.h"
#include "foundation/bounded_array.h"
#include "foundation/numbers.h"

namespace dayperiods {
namespace {

using foundation::BoundedArray;

struct SignAttributes {
  const char* varna;
  const char* vashya;
  const char* hansak;
};

// By sign, 1 Aries to 12.
constexpr BoundedArray<SignAttributes, 1, 12> kSigns{std::to_array<SignAttributes>({
    // varna, vashya, hansak
    {"KSHATRIYA", "CHATUSHPAD", "AGNI"},
    {"VAISHYA", "CHATUSHPAD", "BHOOMI"},
    {"SHUDRA", "MAANAV", "VAYU"},
    {"BRAHMIN", "JALCHAR", "VAARI"},
    {"KSHATRIYA", "VANCHAR", "AGNI"},
    {"VAISHYA", "MAANAV", "BHOOMI"},
    {"SHUDRA", "MAANAV", "VAYU"},
    {"BRAHMIN", "KEET", "VAARI"},
    {"KSHATRIYA", "MAANAV/CHAT", "AGNI"},
    {"VAISHYA", "CHAT/JAL", "BHOOMI"},
    {"SHUDRA", "MAANAV", "VAYU"},
    {"BRAHMIN", "JALCHAR", "VAARI"},
})};

struct StarAttributes {
  const char* yoni;
  const char* gan;
  const char* nadi;
  const char* yunja;
};

// By nakshatra, 1 Ashwini to 27. Two pulses lack their first letter; leave them so.
constexpr BoundedArray<StarAttributes, 0, 27> kStars{std::to_array<StarAttributes>({
    // yoni, gan, nadi, yunja
    {"", "", "", ""},
    {"ASHVA", "DEV", "AADHYA", "PURVA"},
    {"GAJ", "MANUSHYA", "MADHYA", "PURVA"},
    {"MESH", "RAKSHAS", "ANTYA", "PURVA"},
    {"SARP", "MANUSHYA", "ANTYA", "PURVA"},
    {"SARP", "DEV", "MADHYA", "PURVA"},
    {"SWAN", "MANUSHYA", "AADHYA", "MADHYA"},
    {"MARJAR", "DEV", "AADHYA", "MADHYA"},
    {"MESH", "DEV", "MADHYA", "MADHYA"},
    {"MARJAR", "RAKSHAS", "NTYA", "MADHYA"},
    {"UUDAR", "RAKSHAS", "ANTYA", "MADHYA"},
    {"UUDAR", "MANUSHYA", "MADHYA", "MADHYA"},
    {"GAU", "MANUSHYA", "AADHYA", "MADHYA"},
    {"MAHEESH", "DEV", "AADHYA", "MADHYA"},
    {"VYAGHRA", "RAKSHAS", "MADHYA", "MADHYA"},
    {"MAHI", "DEV", "ANTYA", "MADHYA"},
    {"VYAGH", "RAKSHAS", "ANTYA", "MADHYA"},
    {"MRIG", "DEV", "MADHYA", "MADHYA"},
    {"MRIG", "RAKSHAS", "ADHYA", "ANTYA"},
    {"SWAN", "RAKSHAS", "AADHYA", "ANTYA"},
    {"VAANAR", "MANUSHYA", "MADHYA", "ANTYA"},
    {"NAKUL", "MANUSHYA", "ANTYA", "ANTYA"},
    {"VAANAR", "DEV", "ANTYA", "ANTYA"},
    {"SIMHA", "RAKSHAS", "MADHYA", "ANTYA"},
    {"ASHVA", "RAKSHAS", "AADHYA", "ANTYA"},
    {"SIMHA", "MANUSHYA", "AADHYA", "ANTYA"},
    {"GAU", "MANUSHYA", "MADHYA", "ANTYA"},
    {"GAJ", "DEV", "ANTYA", "PURVA"},
})};

const SignAttributes& SignOf(double moon) {
  return kSigns[foundation::FloorToInt16(moon / 30) + 1];
}

}  // namespace

std::string clsBirthDetails::getVarna(double MoonPos) {
  return SignOf(MoonPos).varna;
}

std::string clsBirthDetails::getVashya(double MoonPos) {
  return SignOf(MoonPos).vashya;
}

std::string clsBirthDetails::getHansak(double MoonPos) {
  return SignOf(MoonPos).hansak;
}

std::string clsBirthDetails::getYoni(std::int16_t Nak) {
  return kStars[Nak].yoni;
}

std::string clsBirthDetails::getGan(std::int16_t Nak) {
  return kStars[Nak].gan;
}

std::string clsBirthDetails::getNadi(std::int16_t Nak) {
  return kStars[Nak].nadi;
}

std::string clsBirthDetails::getYunja(std::int16_t Nak) {
  return kStars[Nak].yunja;
}

std::string clsBirthDetails::GetRashiPaya(std::int16_t sign) {
  switch (sign) {
    case 0:
    case 1:
    case 6:
    case 11:
      return "Gold";
    case 2:
    case 5:
    case 9:
      return "Silver";
    case 3:
    case 7:
    case 10:
      return "Copper";
    case 4:
    case 8:
    case 12:
      return "Iron";
    default:
      return "";
  }
}

std::string clsBirthDetails::GetNakPaya(std::int16_t Nak) {
  if (Nak < 1 || Nak > 27) return "";
  if (Nak <= 5 || Nak == 27) return "Gold";
  if (Nak <= 15) return "Silver";
  return Nak == 16 ? "Iron" : "Copper";
}

}  // namespace dayperiods
