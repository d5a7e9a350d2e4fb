#include "engine/perturbations.h"

#include "engine/angles.h"
#include "engine/perturbation_terms.h"
#include "foundation/checked.h"

namespace engine {
namespace {

using namespace perturbation;

// The value of each factor at one moment.
class Factors {
 public:
  explicit Factors(double T) {
    const double q = 2 * PiValue * FractionOf(T * 3.39476 + 0.73866);
    const double p = 2 * PiValue * FractionOf(T * 8.43029 + 0.65965);
    const double s = 2 * PiValue * FractionOf(T * 1.19019 + 0.67644);
    const Multiples<3> ofQ(q);
    const Multiples<4> ofZ(q - p);
    const Multiples<2> ofV(5 * q - 2 * p);
    at_[One] = 1;
    at_[U] = T / 5 + 0.1;
    for (int k = 1; k <= 3; ++k) Put(SinQ, k, ofQ[k]);
    for (int k = 1; k <= 4; ++k) Put(SinZ, k, ofZ[k]);
    for (int k = 1; k <= 2; ++k) Put(SinV, k, ofV[k]);
    at_[Sin3W] = std::sin(3 * (s - q));
  }

  template <int Count>
  double Sum(const Term (&terms)[Count]) const {
    double sum = 0;
    for (const Term& term : terms) {
      sum += term.coefficient * at_[term.first] * at_[term.second] * at_[term.third];
    }
    return foundation::Finite(sum);
  }

 private:
  // Sines and cosines of an angle's multiples alternate from `firstSine` on.
  void Put(Factor firstSine, int multiple, SinCos value) {
    at_[firstSine + 2 * (multiple - 1)] = value.sin;
    at_[firstSine + 2 * (multiple - 1) + 1] = value.cos;
  }

  double at_[kFactors];
};

}  // namespace

Perturbations CalcPerturbations(double T) {
  const Factors at(T);
  return {{at.Sum(JupDL), at.Sum(JupDP), at.Sum(JupDE) * 1e-07, at.Sum(JupDA) * 1e-06},
          {at.Sum(SatDL), at.Sum(SatDP), at.Sum(SatDE) * 1e-07, at.Sum(SatDA) * 1e-06}};
}

}  // namespace engine
