// clsPP: from a moment and a place, given as texts, to what the sky shows there.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "engine/divisions.h"
#include "engine/houses.h"
#include "engine/perturbations.h"
#include "engine/place_decoding.h"
#include "engine/planets_table.h"
#include "engine/positions.h"
#include "engine/relations.h"
#include "engine/time_base.h"
#include "foundation/machine.h"
#include "foundation/numbers.h"
#include "foundation/session.h"

namespace engine {

// Make one for each chart: a call of GenHoro overwrites everything but pp_14, which is no body's
// and to which every call adds what its mode adds to all.
class clsPP {
 public:
  double ppStdLongitude = 0;   // the zone's meridian, decimal degrees, east positive
  double ppLatitude = 0;       // decimal degrees, north positive
  double ppLongitude = 0;      // decimal degrees, east positive
  double ppSidTime = 0;        // local sidereal time, hours, 0 to below 24
  std::string ppLatitudeText;  // the place as it was given
  std::string ppLongitudeText;
  std::string ppZoneText;
  std::int16_t ppDay = 0;  // the moment as it was given, rounded half to even
  std::int16_t ppMonth = 0;
  std::int32_t ppYear = 0;
  std::int16_t ppHour = 0;
  std::int16_t ppMin = 0;
  double ppSec = 0;              // not rounded
  double ppZoneHours = 0;        // ppZoneDegrees / 15
  double ppZoneDegrees = 0;      // as ppStdLongitude
  double WarTimeCorrection = 0;  // hours

  // Longitudes in degrees, 0 to 360 with both ends, of the sidereal zodiac (of the tropical one in
  // ayanamsa mode 6).
  double pp_AYAN = 0;  // the ayanamsa
  double pp_ASC = 0;   // the ascendant
  double pp_Sun = 0;
  double pp_Moon = 0;
  double pp_Mars = 0;
  double pp_Mercury = 0;
  double pp_Jupiter = 0;
  double pp_Venus = 0;
  double pp_Saturn = 0;
  double pp_Rahu = 0;
  double pp_Ketu = 0;
  double pp_Uranus = 0;
  double pp_Neptune = 0;
  double pp_Pluto = 0;

  // The same an hour later; the ascendant stays that of the moment.
  double pp_ASC13 = 0;
  double pp_Sun13 = 0;
  double pp_Moon13 = 0;
  double pp_Mars13 = 0;
  double pp_Mercury13 = 0;
  double pp_Jupiter13 = 0;
  double pp_Venus13 = 0;
  double pp_Saturn13 = 0;
  double pp_Rahu13 = 0;
  double pp_Ketu13 = 0;
  double pp_Uranus13 = 0;
  double pp_Neptune13 = 0;
  double pp_Pluto13 = 0;

  // The positions in their own order (see Body), an hour later from 15 on.
  double pp_1 = 0;
  double pp_2 = 0;
  double pp_3 = 0;
  double pp_4 = 0;
  double pp_5 = 0;
  double pp_6 = 0;
  double pp_7 = 0;
  double pp_8 = 0;
  double pp_9 = 0;
  double pp_10 = 0;
  double pp_11 = 0;
  double pp_12 = 0;
  double pp_13 = 0;
  double pp_14 = 0;
  double pp_15 = 0;
  double pp_16 = 0;
  double pp_17 = 0;
  double pp_18 = 0;
  double pp_19 = 0;
  double pp_20 = 0;
  double pp_21 = 0;
  double pp_22 = 0;
  double pp_23 = 0;
  double pp_24 = 0;
  double pp_25 = 0;
  double pp_26 = 0;

  // Works out the chart of a civil moment at the clock of a place ("28.40N", "77.13E", standard
  // meridian "82.30E"). nAyan is the ayanamsa mode (see ApplyAyanMode), blnRahuKetu chooses the
  // corrected node over the mean one, WarTimeCorrection is hours added to the clock. A text that
  // begins with no number counts as 0. The longitude comes before the latitude.
  //
  // Overflow where a field of the moment, or nAyan, does not fit its 16 or 32 bits; TypeMismatch
  // for a date that does not exist, and in the years 100 and 9999 with the corrected node;
  // InvalidCall for a month that does not exist, and for a time or zone so large that it has no
  // place in the series; Subscript in modes 8 and 9 and where the corrected node meets the end of
  // its table; DivisionByZero where a direction has none. After an error the object is as far as it
  // got.
  //
  // A longitude of whole degrees ("77.00E") loses its point on the way and is read as so many
  // minutes, east; a latitude of whole degrees is not. That is how places are read here, and it
  // stays: the sunrise of every such place is reckoned from it.
  void GenHoro(double day, double month, double year, double hour, double minute, double second,
               std::string_view Longitude, std::string_view Lattitude, std::string_view zone,
               std::int32_t nAyan, foundation::Boolean16 blnRahuKetu, double warTimeCorrection);

  // Splits a place text at its letter; see place_decoding.h.
  static LatLongParts SepLatLong(std::string_view text) { return engine::SepLatLong(text); }

  // "RET" where a body stands lower an hour later, else a blank; a body that goes forward over 0 in
  // that hour counts as going back. 0 is the slot of the ayanamsa, which has no later value and
  // so no answer that means anything, 1 the Sun, and so on as in BodyOrder; Subscript from 13 on.
  std::string_view getRET(std::int16_t PlanetNum) const;

  Positions getPLNT() const { return positions_; }
  std::array<double, 13> getPLNTinSeq() const;  // the ascendant, then the Sun to Pluto as above
  VargaTable getVarga() const { return vargaTable_; }
  DivTable getaDiv() const { return divTable_; }
  RelationTable getaMaitri() const { return maitri_; }
  DivNames getcDiv() const { return DivName; }
  HouseTable getBhavF2() const { return houses_.Cusps; }    // cusps
  HouseTable getBhavF3() const { return houses_.Sandhis; }  // junctions between houses
  double getSidTime() const { return ppSidTime; }

  // A body by its number in BodyName, a sign of 0 Aries to 11, both rounded half to even.
  // Subscript outside.
  static std::string_view getPlanetName(double PlanetNum);
  static std::string_view getRashiName(double sign);
  // The lord of the star at a longitude by name, "Ketu"; that of the sign as a number of BodyName
  // in a text, "4". Subscript for the sign at 360.
  static std::string_view GetNakLord(double longitude);
  static std::string GetRashiLord(double longitude);

  // What there is to tell of each body. Subscript where a longitude is 360. The sub-lords tell
  // their errors in a box.
  PlanetsTable getPlanetsTable(foundation::MessageBoxes& boxes) const;
  PlanetsTable2 getPlanetsTable2() const;

  // "Ayanamsa:23:12:5", its word and colons in the current language; seconds are rounded and may
  // be 60. Errors as those of LanguagePhrase.
  std::string getAyan(const foundation::SessionTable& session) const;

 private:
  void Reckon();
  void PlaceBodies(double TimeT, int later, const Perturbations& perturbations);
  void PlaceMoon(double TimeT, int later);
  void WrapPositions();
  void Publish();

  std::int16_t ayanMode_ = 0;
  foundation::Boolean16 nodeModeA_ = foundation::kFalse16;  // for the fixed corrections
  foundation::Boolean16 nodeModeB_ = foundation::kFalse16;  // for the node itself
  foundation::DateTime civilDate_ = 0;
  Positions positions_;
  Houses houses_;
  DivTable divTable_;
  VargaTable vargaTable_;
  RelationTable maitri_;
};

}  // namespace engine
