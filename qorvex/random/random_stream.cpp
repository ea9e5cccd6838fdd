#include "qorvex/random/random_stream.h"

namespace qorvex::inline QorvexRandom {

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
  // x^(2^128); the first word has the lowest coefficients.
  constexpr State polynomial{0x180ec6d33cfd0aba, 0xd5a61266f0c9392c, 0xa9582618e03fc9aa,
                             0x39abdc4529b1661c};
  RandomStream stream = *this;
  for (; index > 0; --index) stream.Jump(polynomial);
  return stream;
}

void RandomStream::LongJump() noexcept {
  // x^(2^192)
  Jump({0x76e15d3efefdcbbf, 0xc5004e441c522fb3, 0x77710069854ee241, 0x39109bb02acbe635});
}

}  // namespace qorvex::inline QorvexRandom
