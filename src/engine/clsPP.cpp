#include "engine/clsPP.h"

#include "engine/ayanamsa.h"
#include "engine/moon.h"
#include "engine/nodes.h"
#include "engine/planets.h"

namespace engine {

void clsPP::GenHoro(double day, double month, double year, double hour, double minute,
                    double second, std::string_view Longitude, std::string_view Lattitude,
                    std::string_view zone, std::int32_t nAyan, foundation::Boolean16 blnRahuKetu,
                    double warTimeCorrection) {
  ppLongitudeText = Longitude;
  ppLatitudeText = Lattitude;
  ppZoneText = zone;
  WarTimeCorrection = warTimeCorrection;

  const LatLongParts latitude = LatitudeParts(Lattitude);
  const LatLongParts longitude = LongitudeParts(Longitude);

  ppZoneDegrees = ZoneDegrees(zone);
  ppZoneHours = ppZoneDegrees / 15;
  ppStdLongitude = ppZoneDegrees;

  ppDay = foundation::RoundToInt16(day);
  ppMonth = foundation::RoundToInt16(month);
  ppYear = foundation::RoundToInt32(year);
  ppHour = foundation::RoundToInt16(hour);
  ppMin = foundation::RoundToInt16(minute);
  ppSec = second;
  const std::int16_t ayanMode = foundation::RoundToInt16(nAyan);

  ppLongitude = DecimalDegrees(longitude, "W");
  ppLatitude = DecimalDegrees(latitude, "S");

  const double hours = ppHour + ppMin / 60.0 + ppSec / 3600;
  const TimeBase time =
      TimeBaseOf(DayNumber(ppDay, ppMonth, ppYear), hours, ppZoneHours, WarTimeCorrection);
  GenChart({time, CivilDate(ppDay, ppMonth, ppYear)}, ppLatitude, ppLongitude, ayanMode,
           blnRahuKetu);
}

void clsPP::GenChart(const ChartMoment& at, double latitude, double longitude,
                     std::int16_t ayanMode, foundation::Boolean16 correctedNode) {
  ppLatitude = latitude;
  ppLongitude = longitude;
  ayanMode_ = ayanMode;
  nodeModeA_ = correctedNode;
  nodeModeB_ = correctedNode;
  civilDate_ = at.date;
  Calculate(at.time);
  Publish();
}

// The positions are final once wrapped; everything after that reads them in this state.
void clsPP::Calculate(const TimeBase& time) {
  const Perturbations perturbations = CalcPerturbations(time.TimeT);
  positions_[Ayanamsa] = CalcAyanamsa(civilDate_);

  PlaceBodies(time.TimeT, 0, perturbations);
  const double anHourLater = time.TimeT + kHourInCenturies;
  PlaceBodies(anHourLater, kHourLater, perturbations);
  ApplyAyanMode(ayanMode_, nodeModeA_, civilDate_, positions_);
  WrapPositions();

  const double T = anHourLater - kHourInCenturies;  // repeats the rounding of the round trip
  ppSidTime = LocalSiderealTime({time.DayPart, T}, ppLongitude);
  houses_ = CalcHouses(ppSidTime, ppLatitude, T, positions_[Ayanamsa]);
  divTable_ = FillDivTable(houses_.Cusps[1], positions_);
  vargaTable_ = FillVargaTable(houses_.Cusps[1], positions_);
  maitri_ = Maitri(divTable_);
}

// Longitudes of one moment, stored `later` places further on. The Sun comes first because the
// planets' geocentric longitudes need it.
void clsPP::PlaceBodies(double TimeT, int later, const Perturbations& perturbations) {
  const PlanetTime at = {TimeT, positions_[Ayanamsa], perturbations};
  SunVector sun;
  const auto place = [&](Body body) { positions_[body + later] = PlanetLongitude(body, at, sun); };
  for (const Body body : {Sun, Mercury, Venus, Mars, Jupiter, Saturn}) place(body);
  PlaceMoon(TimeT, later);
  for (const Body body : {Uranus, Neptune, Pluto}) place(body);
}

void clsPP::PlaceMoon(double TimeT, int later) {
  const MoonPlace moon = CalcMoon(TimeT);
  positions_[Moon + later] = moon.longitude;
  // The corrected node always uses the Sun of the chart's moment, also for the later value.
  const double rahu = nodeModeB_ == foundation::kFalse16
                          ? moon.meanNode
                          : CalcNode(moon.meanNode, positions_[Sun], civilDate_);
  const double ketu = rahu + 180;
  positions_[Rahu + later] = rahu;
  positions_[Ketu + later] = ketu >= 360 ? ketu - 360 : ketu;
}

// Into 0 to 360; 360 itself stays.
void clsPP::WrapPositions() {
  for (int i = Ayanamsa; i <= Pluto + kHourLater; ++i) {
    double& longitude = positions_[i];
    if (longitude > 360) longitude -= 360;
    if (longitude < 0) longitude += 360;
  }
}

void clsPP::Publish() {
  pp_AYAN = pp_1 = positions_[Ayanamsa];
  pp_ASC = pp_ASC13 = houses_.Cusps[1];
  pp_Sun = pp_2 = positions_[Sun];
  pp_Mercury = pp_3 = positions_[Mercury];
  pp_Venus = pp_4 = positions_[Venus];
  pp_Mars = pp_5 = positions_[Mars];
  pp_Jupiter = pp_6 = positions_[Jupiter];
  pp_Saturn = pp_7 = positions_[Saturn];
  pp_Moon = pp_8 = positions_[Moon];
  pp_Rahu = pp_9 = positions_[Rahu];
  pp_Ketu = pp_10 = positions_[Ketu];
  pp_Uranus = pp_11 = positions_[Uranus];
  pp_Neptune = pp_12 = positions_[Neptune];
  pp_Pluto = pp_13 = positions_[Pluto];
  pp_14 = positions_[Ayanamsa + kHourLater];
  pp_Sun13 = pp_15 = positions_[Sun + kHourLater];
  pp_Mercury13 = pp_16 = positions_[Mercury + kHourLater];
  pp_Venus13 = pp_17 = positions_[Venus + kHourLater];
  pp_Mars13 = pp_18 = positions_[Mars + kHourLater];
  pp_Jupiter13 = pp_19 = positions_[Jupiter + kHourLater];
  pp_Saturn13 = pp_20 = positions_[Saturn + kHourLater];
  pp_Moon13 = pp_21 = positions_[Moon + kHourLater];
  pp_Rahu13 = pp_22 = positions_[Rahu + kHourLater];
  pp_Ketu13 = pp_23 = positions_[Ketu + kHourLater];
  pp_Uranus13 = pp_24 = positions_[Uranus + kHourLater];
  pp_Neptune13 = pp_25 = positions_[Neptune + kHourLater];
  pp_Pluto13 = pp_26 = positions_[Pluto + kHourLater];
}

std::string_view clsPP::getRET(std::int16_t PlanetNum) const {
  const int body = BodyOrder[PlanetNum + 1];
  return positions_[body + kHourLater] < positions_[body] ? "RET" : " ";
}

std::array<double, 13> clsPP::getPLNTinSeq() const {
  return {pp_ASC,    pp_Sun,  pp_Moon, pp_Mars,   pp_Mercury, pp_Jupiter, pp_Venus,
          pp_Saturn, pp_Rahu, pp_Ketu, pp_Uranus, pp_Neptune, pp_Pluto};
}

}  // namespace engine
