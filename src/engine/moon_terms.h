// The series of the Moon's longitude, added to its mean longitude.
#pragma once

namespace engine {

// A term is the coefficient times the sine of a sum of multiples of the arguments: the Moon's
// anomaly, the Sun's anomaly, the Moon's elongation from the Sun, its argument of latitude, and its
// mean node.
struct MoonTerm {
  double coefficient;  // degrees
  int anomaly, sunAnomaly, elongation, latitude, node;
};

// clang-format off
inline constexpr MoonTerm kMoonTerms[] = {
    // degrees anomaly, Sun's, elongation, latitude, node
    { 6.2888,  1,  0,  0,  0, 0},
    { 0.2136,  2,  0,  0,  0, 0},
    { 0.0100,  3,  0,  0,  0, 0},
    { 1.2740, -1,  0,  2,  0, 0},
    { 0.0085, -2,  0,  4,  0, 0},
    {-0.0347,  0,  0,  1,  0, 0},
    { 0.6583,  0,  0,  2,  0, 0},
    { 0.0039,  0,  0,  4,  0, 0},
    {-0.1856,  0,  1,  0,  0, 0},
    {-0.0021,  0,  2,  0,  0, 0},
    { 0.0052,  1,  0, -1,  0, 0},
    {-0.0588,  2,  0, -2,  0, 0},
    { 0.0572, -1, -1,  2,  0, 0},
    { 0.0533,  1,  0,  2,  0, 0},
    { 0.0458,  0, -1,  2,  0, 0},
    { 0.0410,  1, -1,  0,  0, 0},
    {-0.0305,  1,  1,  0,  0, 0},
    {-0.0018,  1,  0,  2, -2, 0},
    {-0.0008, -1,  0,  3,  0, 0},
    {-0.0237, -1,  0,  0,  2, 0},
    {-0.0153,  0,  0, -2,  2, 0},
    { 0.0107, -1,  0,  4,  0, 0},
    {-0.0079, -1,  1,  2,  0, 0},
    {-0.0068,  0,  1,  2,  0, 0},
    { 0.0050,  0,  1,  1,  0, 0},
    {-0.0023,  1,  0,  1,  0, 0},
    { 0.0040,  2,  0,  2,  0, 0},
    { 0.0040,  1, -1,  2,  0, 0},
    {-0.0037,  3,  0, -2,  0, 0},
    {-0.0026,  1,  0, -2,  2, 0},
    { 0.0027,  2, -1,  0,  0, 0},
    {-0.0024,  2,  1, -2,  0, 0},
    { 0.0022,  0, -2,  2,  0, 0},
    {-0.0021,  2,  1,  0,  0, 0},
    { 0.0021,  0,  0,  0,  0, 1},
    { 0.0021, -1, -2,  2,  0, 0},
    { 0.0012, -1, -1,  4,  0, 0},
};
// clang-format on

}  // namespace engine
