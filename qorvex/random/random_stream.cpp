#include "qorvex/random/random_stream.h"

#include <cstddef>

namespace qorvex::inline QorvexRandom {

namespace {

// A polynomial over the field of two elements; the first word has the lowest coefficients.
using Polynomial = std::array<std::uint64_t, 4>;

// The characteristic polynomial of a step, without x^256. The algorithm of Berlekamp and Massey
// finds it from 512 consecutive values of one bit of the state.
constexpr Polynomial kCharacteristic{0x9d116f2bb0f0f001, 0x0280002bcefd1a5e, 0x04b4edcf26259f85,
                                     0x0003c03c3f3ecb19};

void AddTo(Polynomial& sum, const Polynomial& p) {
  for (std::size_t i = 0; i < sum.size(); ++i) sum[i] ^= p[i];
}

// The square of p modulo the characteristic polynomial, by Horner's scheme.
Polynomial Square(const Polynomial& p) {
  Polynomial square{};
  for (unsigned bit = 256; bit-- > 0;) {
    const bool reduces = square[3] >> 63 != 0;
    for (std::size_t i = 3; i > 0; --i) square[i] = square[i] << 1 | square[i - 1] >> 63;
    square[0] <<= 1;
    if (reduces) AddTo(square, kCharacteristic);
    if ((p[bit / 64] >> bit % 64 & 1) != 0) AddTo(square, p);
  }
  return square;
}

// x^(2^(128 + k)) for each k up to 64, computed by the first call.
const auto& Powers() {
  static const auto powers = [] {
    std::array<Polynomial, 65> squares;
    Polynomial power{2};
    for (int i = 0; i < 128; ++i) power = Square(power);
    for (Polynomial& square : squares) {
      square = power;
      power = Square(power);
    }
    return squares;
  }();
  return powers;
}

}  // namespace

// A step is a linear map of the 256 bits of the state. By the theorem of Cayley and Hamilton, its
// n-th power is the polynomial x^n modulo the characteristic polynomial, at that map.
void RandomStream::Jump(const State& polynomial) noexcept {
  State sum{};
  for (const std::uint64_t word : polynomial) {
    for (int bit = 0; bit < 64; ++bit) {
      if ((word >> bit & 1) != 0)
        for (std::size_t i = 0; i < sum.size(); ++i) sum[i] ^= state_[i];
      static_cast<void>((*this)());
    }
  }
  state_ = sum;
}

RandomStream RandomStream::Substream(std::uint64_t index) const noexcept {
  RandomStream stream = *this;
  for (std::size_t k = 0; k < 64; ++k)
    if ((index >> k & 1) != 0) stream.Jump(Powers()[k]);
  return stream;
}

void RandomStream::LongJump() noexcept {
  Jump(Powers()[64]);
}

}  // namespace qorvex::inline QorvexRandom
