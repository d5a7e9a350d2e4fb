#include "engine/ayanamsa.h"

namespace engine {
namespace {

using foundation::DateTime;

struct AyanamsaRow {
  int year, month, day;  // the reference date
  double base;           // degrees on that date
  double rate;           // degrees a day
};

// By mode. Rows 2 and 5 hold the same figures; the last has row 0's rate but another reference
// date.
constexpr foundation::BoundedArray<AyanamsaRow, 0, 7> kModes{{{
    {2006, 9, 1, 23.9502777778, 3.822153777E-05},   // N.C. Lahiri
    {2006, 9, 1, 23.6887222222, 3.8020735228E-05},  // Sri Sanatan
    {2000, 1, 1, 23.75282174, 3.802651744E-05},     // K.P. I
    {2000, 1, 1, 23.76247624, 3.820735228E-05},     // K.P. II
    {2000, 8, 1, 22.41638889, 3.827921E-05},        // B.V. Raman
    {2000, 1, 1, 23.75282174, 3.802651744E-05},     // Manu
    {2000, 1, 1, 0, 0},                             // Sayan
    {2000, 1, 1, 23.8537289833, 3.822153777E-05},   // QRT Ayanamsa 1
}}};

void AddToAll(double shift, Positions& positions) {
  for (int i = Sun; i <= Pluto + kHourLater; ++i) positions[i] += shift;
}

void Shift(std::int16_t mode, DateTime civilDate, Positions& positions) {
  const double ayanamsa = AyanamsaAt(mode, civilDate);
  AddToAll(positions[Ayanamsa] - ayanamsa, positions);
  positions[Ayanamsa] = ayanamsa;
}

// Takes three seconds of arc off the ayanamsa and adds them to every body.
void StepBack(Positions& positions) {
  constexpr double kStep = 0.000833333333333333;
  positions[Ayanamsa] -= kStep;
  AddToAll(kStep, positions);
}

}  // namespace

double CalcAyanamsa(DateTime civilDate) {
  const double days = civilDate - foundation::DateFromParts(2006, 9, 1);
  const double ayanamsa = days * 3.822153777e-05 + 23.9502777777778;
  return ayanamsa - 1.0 / 60 + 43.0 / 3600;
}

double AyanamsaAt(std::int16_t AyanMode, DateTime civilDate) {
  const AyanamsaRow& row = kModes[AyanMode];
  const double days = civilDate - foundation::DateFromParts(row.year, row.month, row.day);
  return row.rate * days + row.base;
}

void ApplyAyanMode(std::int16_t AyanMode, foundation::Boolean16 correctedNode, DateTime civilDate,
                   Positions& positions) {
  switch (AyanMode) {
    case 0:
      ApplyFixedCorrections(correctedNode, positions);
      break;
    case 1:
      ApplyFixedCorrections(correctedNode, positions);
      Shift(AyanMode, civilDate, positions);
      positions[Sun] += 0.00111111111111111;  // four seconds of arc; the later value gets none
      break;
    case 2:
    case 3:
    case 4:
    case 5:
    case 7:
      Shift(AyanMode, civilDate, positions);
      break;
    case 6:
      AddToAll(positions[Ayanamsa], positions);
      positions[Ayanamsa] = 0;
      break;
    case 8:
    case 9:
      Shift(AyanMode, civilDate, positions);  // throws Subscript: these modes have no row
      StepBack(positions);
      break;
    default:
      break;
  }
}

}  // namespace engine
