#include <iostream>

#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/vector/QorvexVector.h"

using namespace qorvex;

int main() {
  TQorFloatVector speeds{299.85L, 299.74L, 299.90L};
  AppendValue2Vector(speeds, 300.07L);

  TQorFloatVector shared = speeds;         // the same elements
  const auto copy = CopyVector(speeds);    // an independent copy
  LinearTransformVector(shared, 1000, 0);  // kilometres to metres, seen through both handles
  std::cout << Float2EStr(MaxVector(speeds), 0) << " m/s, was " << Float2EStr(MaxVector(copy), 2)
            << " km/s\n";

  std::cout << Vector2RankVector(speeds, true) << " are the ranks of " << speeds << '\n';

  try {
    static_cast<void>(AddVectors(speeds, TQorFloatVector{1}));
  } catch (const EMathError& error) {
    std::cout << error.what() << '\n';
  }
}
