#include <iomanip>
#include <iostream>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/text.h"
#include "qorvex/base/vector_text.h"

using namespace qorvex;

int main() {
  // Thirty years at 3.1 %, paid once a year and continuously.
  std::cout << Float2EStr(10000 * Pow(1.031L, 30), 10) << ' '
            << Float2EStr(10000 * Exp(0.031L * 30), 10) << '\n';

  // An angle is reduced exactly, however large it is.
  std::cout << Float2EStr(Sin(1e22L), 18) << '\n';

  // Next to 0, Log1p and Expm1 keep the digits that Log and Exp lose.
  std::cout << std::scientific << std::setprecision(18) << Log(1 + 1e-15L) << ' ' << Log1p(1e-15L)
            << '\n';

  // Over a range in place.
  TQorFloatVector levels{1, 10, 1000};
  Log10(levels, levels);
  std::cout << Vector2Str(levels) << '\n';
}
