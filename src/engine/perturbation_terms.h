// The perturbation series of Jupiter and Saturn. A term is the coefficient times the product of up
// to three factors. U grows by one in five centuries. With the mean longitudes P, Q and S of
// Jupiter, Saturn and Uranus, V is 5 Q - 2 P (the great inequality), W is S - Q and Z is Q - P.
#pragma once

namespace engine::perturbation {

// clang-format off
enum Factor {
  One, U,
  SinQ, CosQ, Sin2Q, Cos2Q, Sin3Q, Cos3Q,
  SinZ, CosZ, Sin2Z, Cos2Z, Sin3Z, Cos3Z, Sin4Z, Cos4Z,
  SinV, CosV, Sin2V, Cos2V,
  Sin3W,
  kFactors
};
// clang-format on

struct Term {
  double coefficient;
  Factor first, second = One, third = One;
};

// clang-format off

// Jupiter, longitude: degrees.
inline constexpr Term JupDL[] = {
    { 0.018, Sin2Z},
    {-0.034, CosZ,  SinQ},
    {-0.036, CosQ,  SinZ},
    { 0.331, SinV},
    {-0.010, U,     SinV},
    {-0.064, U,     CosV},
    { 0.014, SinZ},
};

// Jupiter, perihelion: degrees times eccentricity.
inline constexpr Term JupDP[] = {
    { 0.004, CosZ,  Sin2Q},
    {-0.005, Sin2Q, SinZ},
    { 0.004, Cos2Q, SinZ},
    { 0.006, Cos2Q, CosZ},
    { 0.038, CosQ,  SinZ},
    { 0.006, CosQ,  Sin2Z},
    {-0.007, CosQ,  CosZ},
    { 0.034, CosZ,  SinQ},
    { 0.007, SinQ,  SinZ},
    { 0.006, Cos2Z, SinQ},
    { 0.007, SinV},
    {-0.020, CosV},
};

// Jupiter, eccentricity: units of 1e-07.
inline constexpr Term JupDE[] = {
    { -956, Cos2Q, SinZ},
    {  490, Cos2Q, Sin2Z},
    {  179, Cos2Q},
    { 1024, Cos2Q, CosZ},
    { -437, Cos2Q, Cos2Z},
    { -956, Sin2Q, SinZ},
    { -997, CosZ,  Sin2Q},
    {  480, Cos2Z, Sin2Q},
    { 1460, CosQ,  SinZ},
    { -817, CosQ},
    { 6074, CosQ,  CosZ},
    {  992, Cos2Z, CosQ},
    {  508, Cos3Z, CosQ},
    {-6764, SinQ,  SinZ},
    {-1110, Sin2Z, SinQ},
    { -204, SinQ},
    { 1284, CosZ,  SinQ},
    { 1289, CosV},
    { -580, U,     CosV},
    { 3606, SinV},
};

// Jupiter, semi-major axis: units of 1e-06 astronomical units.
inline constexpr Term JupDA[] = {
    { 111, CosQ,  Sin3Z},
    { 204, CosQ,  Sin2Z},
    {-337, CosQ,  CosZ},
    {-111, Cos2Z, CosQ},
    { 299, SinQ,  SinZ},
    { 181, Cos2Z, SinQ},
    {-263, CosV},
    { 205, CosZ},
    { 693, Cos2Z},
    { 312, Cos3Z},
};

// Saturn, longitude: degrees.
inline constexpr Term SatDL[] = {
    { 0.025, CosQ,  CosZ},
    { 0.086, CosQ,  SinZ},
    { 0.014, Cos2Z, CosQ},
    { 0.006, Cos3Z, CosQ},
    {-0.006, SinQ},
    {-0.017, Sin2Z, SinQ},
    { 0.081, CosZ,  SinQ},
    { 0.015, Cos2Z, SinQ},
    { 0.161, U,     CosV},
    {-0.010, CosV},
    {-0.149, SinZ},
    {-0.041, Sin2Z},
    {-0.015, Sin3Z},
    { 0.018, U,     SinV},
    {-0.814, SinV},
    {-0.017, U,     U,    SinV},
};

// Saturn, perihelion: degrees times eccentricity.
inline constexpr Term SatDP[] = {
    {-0.014, Cos2Q, SinZ},
    { 0.012, Cos2Q, Sin2Z},
    { 0.015, Cos2Q, CosZ},
    {-0.013, Cos2Q, Cos2Z},
    {-0.014, Cos3Q, SinZ},
    {-0.008, Cos3Q, CosZ},
    { 0.014, Cos2Z, Cos3Q},
    {-0.073, CosQ},
    {-0.150, CosQ,  CosZ},
    { 0.027, Cos2Z, CosQ},
    { 0.010, Cos3Z, CosQ},
    { 0.046, CosV},
    {-0.015, U,     CosV},
    { 0.007, U,     SinV},
    { 0.077, SinV},
    {-0.007, SinZ},
    {-0.076, SinQ,  SinZ},
    {-0.025, Sin2Z, SinQ},
    {-0.009, Sin3Z, SinQ},
};

// Saturn, eccentricity: units of 1e-07.
inline constexpr Term SatDE[] = {
    {  -490, Cos2Q},
    { -2842, Cos2Q, SinZ},
    { -1594, Cos2Q, CosZ},
    {  2162, Cos2Q, Cos2Z},
    {   561, Cos2Q, Cos3Z},
    {   469, Cos2Q, Sin3W},
    {  2211, Sin2Q, SinZ},
    {  -350, Sin2Q},
    { -2208, Sin2Q, Sin2Z},
    {  -568, Sin2Q, Sin3Z},
    { -2780, CosZ,  Sin2Q},
    {   163, CosQ},
    {  -611, U,     CosQ},
    {-12696, CosQ,  SinZ},
    { -4200, CosQ,  Sin2Z},
    { -1503, CosQ,  Sin3Z},
    {  -619, CosQ,  Sin4Z},
    { -1306, U,     CosQ,  CosZ},
    {  -282, CosQ,  CosZ},
    {   390, SinQ,  SinZ},
    {  -617, U,     SinQ,  SinZ},
    { 12415, SinQ},
    { 26599, CosZ,  SinQ},
    { -4687, Cos2Z, SinQ},
    { -1870, Cos3Z, SinQ},
    {  -821, Cos4Z, SinQ},
    {   248, Sin2V},
    {  -305, Cos2V},
    {   412, Sin2Z},
    {  1226, U,     CosV},
    { 13381, CosV},
    {  2548, U,     SinV},
    { -7929, SinV},
};

// Saturn, semi-major axis: units of 1e-06 astronomical units.
inline constexpr Term SatDA[] = {
    { -427, Sin3Q, SinZ},
    {  398, Sin3Q, Sin3Z},
    {  344, Cos3Q, CosZ},
    { -427, Cos3Q, Cos3Z},
    { -856, Cos2Q, SinZ},
    {  441, Cos2Q, Sin2Z},
    {  296, Cos2Q, Cos2Z},
    {  211, Cos2Q, Cos3Z},
    { -267, Sin2Q, Sin2Z},
    { -778, CosZ,  Sin2Q},
    {  495, Cos2Z, Sin2Q},
    {  250, Cos3Z, Sin2Q},
    { 2206, CosQ,  SinZ},
    { -890, CosQ},
    {-1590, CosQ,  Sin2Z},
    { -647, CosQ,  Sin3Z},
    { 2285, CosQ,  CosZ},
    { 2172, Cos2Z, CosQ},
    {  296, Cos3Z, CosQ},
    { 1098, SinQ},
    {-2812, SinQ,  SinZ},
    {  688, Sin2Z, SinQ},
    { -393, Sin3Z, SinQ},
    {-2138, CosZ,  SinQ},
    { -999, Cos2Z, SinQ},
    { -642, Cos3Z, SinQ},
    { 2933, CosV},
    {  572, SinV},
    {33629, CosZ},
    {-3081, Cos2Z},
    {-1423, Cos3Z},
    { -671, Cos4Z},
};

// clang-format on

}  // namespace engine::perturbation
