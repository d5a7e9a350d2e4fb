// The inauspicious combinations of each Moon sign.

#include "dayperiods/clsBirthDetails.h"
#include "foundation/bounded_array.h"

namespace dayperiods {
namespace {

// By sign, 1 Aries to 12, in their established spelling: number, month, lunar days, weekday,
// nakshatra, yoga, karana, watch of the day, animal, and nine signs.
constexpr foundation::BoundedArray<GhatRow, 0, 11> kGhat{std::to_array<GhatRow>({
    {{"1", "KARTIK", "1-6-11 (Nanda)", "SUNDAY", "MAGHA", "VISHKUMBH", "BAVA", "1", "MRIG", "ARIES",
      "CANCER", "ARIES", "LEO", "TAURUS", "VIRGO", "LIBRA", "GEMINI", "SCORPIO"}},
    {{"2", "MARGSHIRSH", "5-10-15 (Poorna)", "SATURDAY", "HASTA", "SHUKL", "SHAKUNI", "4", "SARP",
      "TAURUS", "SCORPIO", "VIRGO", "SAGGITARIUS", "VIRGO", "CAPRICORN", "CAPRICORN", "LIBRA",
      "CAPRICORN"}},
    {{"3", "ASADH", "02-07-12 (Bhadra)", "MONDAY", "SWATI", "PARIDH", "KAULAV", "3", "MOOSAK",
      "CANCER", "PISCES", "AQUARIUS", "ARIES", "CAPRICORN", "TAURUS", "GEMINI", "AQUARIUS",
      "CANCER"}},
    {{"4", "PAUSA", "2-7-12 (Bhadra)", "WEDNESDAY", "ANURADHA", "VYAGHAT", "NAGA", "1", "MESH",
      "LIBRA", "LEO", "LEO", "VIRGO", "GEMINI", "LIBRA", "SCORPIO", "CANCER", "SAGGITARIUS"}},
    {{"5", "JYAISTHA", "3-8-13 (Jaya)", "SATURDAY", "MOOLA", "DRITI", "BAVA", "1", "MARJAR",
      "PISCES", "SAGGITARIUS", "CAPRICORN", "CAPRICORN", "LIBRA", "AQUARIUS", "PISCES", "SCORPIO",
      "ARIES"}},
    {{"6", "BHADRPAD", "5-10-15 (Poorna)", "SATURDAY", "SHRAVANA", "SHUKL", "KAULAV", "1", "MESH",
      "PISCES", "ARIES", "GEMINI", "TAURUS", "PISCES", "GEMINI", "CANCER", "PISCES", "LEO"}},
    {{"7", "MAGHA", "04-09-14  (Rikra)", "THURSDAY", "SATABHISAJ", "SHUKL", "TAITIL", "4", "SINGH",
      "VIRGO", "VIRGO", "SAGGITARIUS", "LIBRA", "CANCER", "SCORPIO", "SAGGITARIUS", "LEO",
      "CAPRICORN"}},
    {{"8", "ASHVIN", "1-6-11 (Nanda)", "FRIDAY", "REVTI", "VYATIPAT", "GARA", "1", "GARUDH",
      "SCORPIO", "CAPRICORN", "TAURUS", "AQUARIUS", "SCORPIO", "PISCES", "ARIES", "CANCER",
      "TAURUS"}},
    {{"9", "SHRAVAN", "3-8-13 (Jaya)", "FRIDAY", "BHARNI", "VAJRA", "TAITIL", "1", "MARJAR",
      "SAGGITARIUS", "LIBRA", "PISCES", "SCORPIO", "LEO", "SAGGITARIUS", "AQUARIUS", "VIRGO",
      "AQUARIUS"}},
    {{"10", "VAISHAKH", "4-9-14 (Rikra)", "TUESDAY", "ROHINI", "VAIDHRITI", "SHAKUNI", "4",
      "MOOSAK", "AQUARIUS", "AQUARIUS", "LEO", "PISCES", "SAGGITARIUS", "ARIES", "TAURUS",
      "CAPRICORN", "GEMINI"}},
    {{"11", "CHAITRA", "3-8-13 (Jaya)", "THURSDAY", "AADRA", "GAND", "KINSTUGNA", "3", "SVAN",
      "GEMINI", "TAURUS", "SAGGITARIUS", "GEMINI", "TAURUS", "CANCD", "LEO", "ARIES", "VIRGO"}},
    {{"12", "FALGUN", "5-10-15  (Poorna)", "FRIDAY", "ASHLESHA", "VAJRA", "CHATUSHPAD", "4", "MRIG",
      "LEO", "GEMINI", "AQUARIUS", "CANCER", "AQUARIUS", "LEO", "VIRGO", "TAURUS", "LIBRA"}},
})};

}  // namespace

const GhatRow& clsBirthDetails::getGhat(std::int16_t sign, std::int32_t) {
  return kGhat[sign == 0 ? 11 : sign - 1];
}

}  // namespace dayperiods
