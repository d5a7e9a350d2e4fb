// The first syllable of a name, and its class, by the Moon's quarter.

#include <array>
#include <map>

#include "dayperiods/clsBirthDetails.h"
#include "foundation/numbers.h"

namespace dayperiods {
namespace {

using QuarterTexts = std::array<const char*, 4>;

struct StarSyllables {
  QuarterTexts syllables;
  QuarterTexts classes;
};

// By nakshatra, 1 Ashwini to 27, with an example name in brackets. One syllable was never filled
// in.
constexpr auto kStars = std::to_array<StarSyllables>({
    // syllables of quarters 1 to 4, classes of quarters 1 to 4
    {{"Choo (Chooha)", "Che (Chetan)", "Cho (Choudhary)", "Laa (Laara)"},
     {"SIMHA", "SIMHA", "SIMHA", "MRIG"}},
    {{"Lee (Leena)", "Loo", "Le ", "Lo (Lokesh)"}, {"MRIG", "MRIG", "MRIG", "MRIG"}},
    {{"A (Aparna)", "E (Eesha)", "Oo (Umesh)", "A (Ekta)"}, {"GARUD", "GARUD", "GARUD", "GARUD"}},
    {{"O (Om Prakash)", "Vaa (Vaageesh)", "Vee (Veena)", "Woo"}, {"GARUD", "MRIG", "MRIG", "MRIG"}},
    {{"Way (Vetan)", "Wo (Vohra)", "Ka (Kamal)", "Kee (Keerti)"},
     {"MRIG", "MRIG", "MARJAR", "MARJAR"}},
    {{"Ka", "Gha", "Gha", "Chha"}, {"MARJAR", "MARJAR", "MARJAR", "SIMHA"}},
    {{"Ke", "Ko (Komal)", "Haa", "Hee"}, {"MARJAR", "MARJAR", "MESH", "MESH"}},
    {{"Hoo", "Hey", "Ho", "Da (Dalada)"}, {"MESH", "MESH", "MESH", "SWAN"}},
    {{"Dee", "Doo", "Day", "Do"}, {"SWAN", "SWAN", "SWAN", "SWAN"}},
    {{"Maa", "Mee", "Moo", "Mey"}, {"UUDAR", "UUDAR", "UUDAR", "UUDAR"}},
    {{"Mo", "Taa", "Tee", "Too"}, {"UUDAR", "SWAN", "SWAN", "SWAN"}},
    {{"Te", "To", "Paa", "Pee"}, {"SWAN", "SWAN", "UUDAR", "UUDAR"}},
    {{"Poo", "Dha", "Ana", "Ttha"}, {"UUDAR", "MESH", "SWAN", "SWAN"}},
    {{"Pe", "Po", "Ra", "Ree"}, {"UUDAR", "UUDAR", "MRIG", "MRIG"}},
    {{"Roo", "Re", "Ro", "Taa"}, {"MRIG", "MRIG", "MRIG", "SARP"}},
    {{"Tee", "Too", "Te", "To"}, {"SARP", "SARP", "SARP", "SARP"}},
    {{"Naa", "Nee", "Noo", "Ne"}, {"SARP", "SARP", "SARP", "SARP"}},
    {{"No", "Yaa", "Yee", "Yoo"}, {"SARP", "MRIG", "MRIG", "MRIG"}},
    {{"Ye", "Yo", "Bhaa", "Bhee"}, {"MRIG", "MRIG", "UUDAR", "UUDAR"}},
    {{"Bhoo", "Dhaa", "Pha", "Dha"}, {"UUDAR", "SARP", "UUDAR", "SWAN"}},
    {{"Bhe", "Bho", "Jaa", "Jee"}, {"UUDAR", "UUDAR", "SIMHA", "SIMHA"}},
    {{"Khee", "Khu", "Khe", "Kho"}, {"MARJAR", "MARJAR", "MARJAR", "MARJAR"}},
    {{"Gaa", "Gee", "Goo", "Ge"}, {"MARJAR", "MARJAR", "MARJAR", "MARJAR"}},
    {{"Go", "Saa", "See", "Soo"}, {"MARJAR", "MESH", "MESH", "MESH"}},
    {{"Se", "So", "Daa", "Dee"}, {"MESH", "MESH", "SARP", "SARP"}},
    {{"Doo", "Tha", "Jha", "Jha"}, {"SARP", "MESH", "SIMHA", "SARP"}},
    {{"De", "", "Cha", "Chee"}, {"SARP", "SARP", "SIMHA", "SIMHA"}},
});
static_assert(kStars.size() == 27);

struct Quarter {
  std::string syllable;
  std::string varga;
};

// Concatenates both numbers, so that (1, 11) has the key of (11, 1).
std::string KeyOf(std::int16_t nak, std::int16_t quarter) {
  return "RL" + foundation::NumberText(nak) + foundation::NumberText(quarter);
}

std::map<std::string, Quarter> AllQuarters() {
  std::map<std::string, Quarter> quarters;
  std::int16_t nak = 0;
  for (const StarSyllables& star : kStars) {
    ++nak;
    for (std::int16_t quarter = 1; quarter <= 4; ++quarter) {
      const auto i = static_cast<std::size_t>(quarter - 1);
      quarters[KeyOf(nak, quarter)] = {star.syllables[i], star.classes[i]};
    }
  }
  return quarters;
}

// Returns empty texts if there is no such quarter.
const Quarter& Find(std::int16_t nak, std::int16_t quarter) {
  static const std::map<std::string, Quarter> quarters = AllQuarters();
  static const Quarter none;
  const auto found = quarters.find(KeyOf(nak, quarter));
  return found == quarters.end() ? none : found->second;
}

}  // namespace

std::string clsBirthDetails::getNaamAkshar(std::int16_t Nak, std::int16_t Quarter) {
  return Find(Nak, Quarter).syllable;
}

std::string clsBirthDetails::getNaamAksharVarga(std::int16_t Nak, std::int16_t Quarter) {
  return Find(Nak, Quarter).varga;
}

std::string clsBirthDetails::getVarga(std::int16_t Nak, std::int16_t Quarter) {
  const std::string varga = getNaamAksharVarga(Nak, Quarter);
  return varga.empty() ? "" : "_" + varga;
}

}  // namespace dayperiods
