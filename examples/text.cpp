#include <iomanip>
#include <iostream>
#include <sstream>

#include "qorvex/base/errors.h"
#include "qorvex/base/vector_text.h"

using namespace qorvex;

int main() {
  const TQorDoubleMatrix m{{1, 2.5}, {30, -0.1}};
  std::cout << m << '\n'
            << std::fixed << std::setprecision(2) << std::setw(7) << m[1] << '\n'
            << Vector2Str(TQorFloatVector{0.1L, 1.0L / 3}) << '\n';

  std::istringstream file("[0.5, 1e-3]  [[1, 2], [3]]");
  TQorDoubleVector weights;
  TQorLIntMatrix counts;
  file >> weights >> counts;
  std::cout << weights.size() << " weights, " << counts.size() << " rows\n";

  try {
    static_cast<void>(Str2Vector<double>("[1.5, 2,5, x]"));
  } catch (const EConvertError& error) {
    std::cout << error.what() << '\n';
  }
}
