#include "qorvex/stats/regression/detail/zeros.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

#include "qorvex/base/exact/dyadic.h"

namespace qorvex::regression {

using exact::BigInteger;
using exact::Dyadic;

namespace {

// Arithmetic modulo an odd number between 2^30 and 2^31, by Montgomery (1985), "Modular
// multiplication without trial division". Every product is divided by 2^32, which makes none of
// them 0.
class Modulus {
 public:
  explicit Modulus(std::uint32_t p) : p_(p) {
    std::uint32_t inverse = p;  // right in three bits, then in twice as many each time
    for (int i = 0; i < 4; ++i) inverse *= 2 - p * inverse;
    negative_inverse_ = 0 - inverse;
  }

  [[nodiscard]] std::uint32_t Residue(const BigInteger& value) const {
    std::uint64_t rest = 0;
    const std::span<const std::uint64_t> limbs = value.Magnitude();
    for (std::size_t i = limbs.size(); i-- > 0;) {
      rest = (rest << 32U | limbs[i] >> 32U) % p_;
      rest = (rest << 32U | (limbs[i] & 0xFFFFFFFFU)) % p_;
    }
    return static_cast<std::uint32_t>(value.Sign() < 0 && rest != 0 ? p_ - rest : rest);
  }
  [[nodiscard]] std::uint32_t Product(std::uint32_t a, std::uint32_t b) const {
    return Reduced(std::uint64_t{a} * b);
  }
  // a b - c d
  [[nodiscard]] std::uint32_t Difference(std::uint32_t a, std::uint32_t b, std::uint32_t c,
                                         std::uint32_t d) const {
    return Reduced(std::uint64_t{a} * b + std::uint64_t{c} * (p_ - d));
  }

 private:
  [[nodiscard]] std::uint32_t Reduced(std::uint64_t value) const {
    const std::uint32_t multiple = static_cast<std::uint32_t>(value) * negative_inverse_;
    const auto rest = static_cast<std::uint32_t>((value + std::uint64_t{multiple} * p_) >> 32U);
    return rest >= p_ ? rest - p_ : rest;
  }

  std::uint32_t p_;
  std::uint32_t negative_inverse_;
};

// The greatest prime below an odd number.
std::uint32_t PrimeBelow(std::uint32_t number) {
  const auto is_prime = [](std::uint32_t n) {
    for (std::uint32_t d = 3; d * d <= n; d += 2) {
      if (n % d == 0) return false;
    }
    return true;
  };
  do number -= 2;
  while (!is_prime(number));
  return number;
}

// A symmetric matrix of integers: its rows from the diagonal on.
struct IntegerMatrix {
  std::vector<std::vector<BigInteger>> rows;
  std::size_t bits_of_minors = 0;
};

// The matrix with rows and columns times powers of two, which leaves every 0 in its place. The
// diagonal elements are at most 1 before all become integers, so no minor is greater than 1: that
// of a Gram matrix is at most the root of the product of the principal minors of its rows and of
// its columns, and these are at most the products of their diagonal elements (Hadamard).
IntegerMatrix IntegersOf(const GramMatrix& gram) {
  const std::size_t size = gram.Size();
  std::vector<std::int64_t> halves;
  for (std::size_t i = 0; i < size; ++i)
    halves.push_back((gram.Sum(i, i).MagnitudeExponent() + 1) >> 1);
  const auto exponent = [&](std::size_t i, std::size_t j) {
    return gram.Sum(i, j).Exponent() - halves[i] - halves[j];
  };
  std::int64_t least = 0;
  for (std::size_t i = 0; i < size; ++i) {
    for (std::size_t j = i; j < size; ++j) {
      if (gram.Sum(i, j).Sign() != 0) least = std::min(least, exponent(i, j));
    }
  }
  IntegerMatrix matrix{.rows = std::vector<std::vector<BigInteger>>(size),
                       .bits_of_minors = static_cast<std::size_t>(-least) * size};
  for (std::size_t i = 0; i < size; ++i) {
    for (std::size_t j = i; j < size; ++j) {
      const BigInteger& mantissa = gram.Sum(i, j).Mantissa();
      const bool is_zero = mantissa.Sign() == 0;
      matrix.rows[i].push_back(
          is_zero ? mantissa : mantissa << static_cast<std::size_t>(exponent(i, j) - least));
    }
  }
  return matrix;
}

// The figures that are 0 modulo a prime: by elimination without divisions, and by back substitution
// with a common denominator.
Zeros ZerosModulo(const IntegerMatrix& matrix, std::uint32_t prime) {
  const Modulus modulus(prime);
  const std::size_t size = matrix.rows.size() - 1;
  std::vector<std::vector<std::uint32_t>> rows(size + 1);
  for (std::size_t i = 0; i <= size; ++i) {
    rows[i].resize(size + 1);
    for (std::size_t j = i; j <= size; ++j) rows[i][j] = modulus.Residue(matrix.rows[i][j - i]);
  }
  Zeros zeros{.independent = 0,
              .terms = std::vector<bool>(size),
              .residual = std::vector<bool>(size + 1),
              .coefficients = std::vector<bool>(size),
              .bits = 0};
  std::size_t& k = zeros.independent;
  for (; k < size; ++k) {
    const std::uint32_t pivot = rows[k][k];
    zeros.residual[k] = rows[size][size] == 0;
    zeros.terms[k] = rows[k][size] == 0;
    if (pivot == 0) return zeros;
    for (std::size_t i = k + 1; i <= size; ++i) {
      const std::uint32_t factor = rows[k][i];
      for (std::size_t j = i; j <= size; ++j)
        rows[i][j] = modulus.Difference(pivot, rows[i][j], factor, rows[k][j]);
    }
  }
  zeros.residual[size] = rows[size][size] == 0;

  std::uint32_t denominator = 1;
  std::vector<std::uint32_t> numerators(size);
  for (std::size_t i = size; i-- > 0;) {
    std::uint32_t numerator = modulus.Product(denominator, rows[i][size]);
    for (std::size_t j = i + 1; j < size; ++j) {
      const std::uint32_t product = modulus.Product(rows[i][j], numerators[j]);
      numerator = numerator >= product ? numerator - product : numerator + (prime - product);
      numerators[j] = modulus.Product(numerators[j], rows[i][i]);
    }
    denominator = modulus.Product(denominator, rows[i][i]);
    numerators[i] = numerator;
    zeros.coefficients[i] = numerator == 0;
  }
  return zeros;
}

void KeepCommon(std::vector<bool>& zeros, const std::vector<bool>& others) {
  for (std::size_t i = 0; i < zeros.size(); ++i) zeros[i] = zeros[i] && others[i];
}

}  // namespace

Zeros FindZeros(const GramMatrix& gram) {
  const IntegerMatrix matrix = IntegersOf(gram);
  const std::size_t size = gram.Form().Coefficients();
  constexpr std::size_t kBitsOfPrime = 30;
  std::uint32_t prime = std::numeric_limits<std::int32_t>::max();
  Zeros zeros = ZerosModulo(matrix, prime);
  const auto is_proved = [&] {
    const std::ptrdiff_t known = gram.Rows() == size ? 1 : 0;
    return zeros.independent == size &&
           std::count(zeros.terms.begin(), zeros.terms.end(), true) == 0 &&
           std::count(zeros.residual.begin(), zeros.residual.end() - known, true) == 0 &&
           std::count(zeros.coefficients.begin(), zeros.coefficients.end(), true) == 0;
  };
  for (std::size_t bits = kBitsOfPrime; bits <= matrix.bits_of_minors && !is_proved();) {
    prime = PrimeBelow(prime);
    Zeros others = ZerosModulo(matrix, prime);
    // Primes that divide a pivot tell nothing: this one, or the ones before it.
    if (others.independent < zeros.independent) continue;
    if (others.independent > zeros.independent) {
      zeros = std::move(others);
      bits = kBitsOfPrime;
      continue;
    }
    KeepCommon(zeros.terms, others.terms);
    KeepCommon(zeros.residual, others.residual);
    KeepCommon(zeros.coefficients, others.coefficients);
    bits += kBitsOfPrime;
  }
  zeros.bits = matrix.bits_of_minors;
  return zeros;
}

}  // namespace qorvex::regression
