// clsPP: the chart of a moment and a place.
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

// Use a fresh object per chart: GenHoro resets every field except the unused slot pp_14, to which
// each call adds the mode's shift. GenChart also leaves the texts, the zone and the fields of the
// civil moment as they are.
class clsPP {
 public:
  double ppStdLongitude = 0;   // the zone's meridian, decimal degrees, east positive
  double ppLatitude = 0;       // decimal degrees, north positive
  double ppLongitude = 0;      // decimal degrees, east positive
  double ppSidTime = 0;        // local sidereal time, hours, 0 to below 24
  std::string ppLatitudeText;  // place and zone as passed to GenHoro
  std::string ppLongitudeText;
  std::string ppZoneText;
  std::int16_t ppDay = 0;  // the moment as passed, rounded half to even
  std::int16_t ppMonth = 0;
  std::int32_t ppYear = 0;
  std::int16_t ppHour = 0;
  std::int16_t ppMin = 0;
  double ppSec = 0;              // not rounded
  double ppZoneHours = 0;        // ppZoneDegrees / 15
  double ppZoneDegrees = 0;      // as ppStdLongitude
  double WarTimeCorrection = 0;  // hours

  // Longitudes in degrees, 0 to 360 with both ends included; sidereal, or tropical in ayanamsa mode
  // 6.
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

  // The same an hour later, except for the ascendant, which is that of the moment.
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

  // The positions in the order of Body; from 15 on, an hour later.
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

  // Computes the chart of a civil moment at a place ("28.40N", "77.13E", standard meridian
  // "82.30E"). Note that the longitude comes before the latitude. nAyan is the ayanamsa mode (see
  // ApplyAyanMode), blnRahuKetu chooses the corrected node over the mean one, warTimeCorrection is
  // hours added to the clock. Text without a leading number counts as 0.
  //
  // Overflow if a field of the moment, or nAyan, does not fit its 16 or 32 bits; TypeMismatch for a
  // date that does not exist (see CivilDate), and in the years 100 and 9999 with the corrected
  // node; InvalidCall for a month that does not exist, or a time or zone too large for the series;
  // Subscript in modes 8 and 9 and at the end of the corrected node's table; DivisionByZero if a
  // direction is undefined. After an error the object is left half filled.
  //
  // A longitude of whole degrees ("77.00E") loses its point while it is decoded and is read as that
  // many minutes east; a latitude of whole degrees is read correctly. Keep this: the sunrise of
  // every such place depends on it.
  void GenHoro(double day, double month, double year, double hour, double minute, double second,
               std::string_view Longitude, std::string_view Lattitude, std::string_view zone,
               std::int32_t nAyan, foundation::Boolean16 blnRahuKetu, double warTimeCorrection);

  // Computes the chart of a moment (see UniversalTime) at a place in decimal degrees, north and
  // east positive. GenHoro ends with this, so its arguments and errors, except those of texts and
  // civil dates, are the same.
  void GenChart(const ChartMoment& at, double latitude, double longitude, std::int16_t ayanMode,
                foundation::Boolean16 correctedNode);

  // Splits a place text at its letter; see place_decoding.h.
  static LatLongParts SepLatLong(std::string_view text) { return engine::SepLatLong(text); }

  // "RET" if a body's longitude is lower an hour later, else a blank; a body that crosses 0 forward
  // in that hour counts as retrograde. Bodies are numbered 1 Sun and so on as in BodyOrder. 0 is
  // the ayanamsa's slot, whose answer is meaningless. Subscript from 13 on.
  std::string_view getRET(std::int16_t PlanetNum) const;

  Positions getPLNT() const { return positions_; }
  std::array<double, 13> getPLNTinSeq() const;  // the ascendant, then as BodyOrder
  VargaTable getVarga() const { return vargaTable_; }
  DivTable getaDiv() const { return divTable_; }
  RelationTable getaMaitri() const { return maitri_; }
  DivNames getcDiv() const { return DivName; }
  HouseTable getBhavF2() const { return houses_.Cusps; }    // cusps
  HouseTable getBhavF3() const { return houses_.Sandhis; }  // junctions between houses
  double getSidTime() const { return ppSidTime; }

  // The name of a body (numbered as for BodyName) or sign (0 Aries to 11); numbers are rounded half
  // to even. Subscript outside.
  static std::string_view getPlanetName(double PlanetNum);
  static std::string_view getRashiName(double sign);
  // The lord of the star at a longitude by name, "Ketu", and of the sign as a BodyName number in
  // text, "4". GetRashiLord raises Subscript at 360.
  static std::string_view GetNakLord(double longitude);
  static std::string GetRashiLord(double longitude);

  // All bodies as table rows. Subscript if a longitude is 360. Sub-lord errors appear in a message
  // box.
  PlanetsTable getPlanetsTable(foundation::MessageBoxes& boxes) const;
  PlanetsTable2 getPlanetsTable2() const;

  // "Ayanamsa:23:12:5", with the word and the colons in the current language. Seconds are rounded
  // and may be 60. Errors as for LanguagePhrase.
  std::string getAyan(const foundation::SessionTable& session) const;

 private:
  void Calculate(const TimeBase& time);
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
