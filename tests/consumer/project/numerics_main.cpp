#include <every_numerics_header.h>

// In the second translation unit: the report of a sample.
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

  // An error that a library raises is caught here by its type.
  try {
    static_cast<void>(qorvex::CheckedDivide(1, 0));
    ++failures;
  } catch (const qorvex::EZeroDivide& error) {
    expect(error.message_id() == qorvex::rsZeroDivide);
  }

  // One variable and one catalogue of texts for the program and the libraries.
  qorvex::QorTolerance = 0.5L;
  expect(qorvex::SameFloat(1.0L, 1.25L));
  qorvex::SetMessageText(qorvex::rsVectorIsEmpty, "nothing there");
  expect(ReportOf({}).front() == "nothing there");
  expect(ReportOf({1, 2, 4}).front() == "Number of Values:\t3");
  return failures;
}
