#include <every_numerics_header.h>

// Defined in the second translation unit.
std::vector<std::string> ReportOf(const qorvex::TQorFloatVector& values);

int main() {
  int failures = 0;
  const auto expect = [&failures](bool holds) { failures += holds ? 0 : 1; };

  expect(qorvex::Float2Str(qorvex::Str2Float("0.1")) == "0.1");

  const qorvex::TQorFloatVector values = {3, 4};
  expect(SumVector(values) == 7 && DotProdVectors(values, values) == 25);
  expect(SumVector(qorvex::TQorByteVector{200, 100}) == 300);

  qorvex::TQorFloatMatrix matrix = {{0, 2}, {4, 0}};
  expect(MatrixInverse(matrix, matrix) && matrix == qorvex::TQorFloatMatrix{{0, 0.25L}, {0.5L, 0}});
  expect(SumMatrixRow(matrix, 1) == 0.5L && qorvex::QorvexMatrix::QorMatrixRectangularCheck);

  // Exceptions cross the library boundary with their types.
  try {
    static_cast<void>(qorvex::CheckedDivide(1, 0));
    ++failures;
  } catch (const qorvex::EZeroDivide& error) {
    expect(error.message_id() == qorvex::rsZeroDivide);
  }

  // Program and libraries share one variable and one catalogue of texts.
  qorvex::QorTolerance = 0.5L;
  expect(qorvex::SameFloat(1.0L, 1.25L));
  qorvex::SetMessageText(qorvex::rsVectorIsEmpty, "nothing there");
  expect(ReportOf({}).front() == "nothing there");
  expect(ReportOf({1, 2, 4}).front() == "Number of Values:\t3");
  return failures;
}
