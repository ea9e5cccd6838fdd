#include "apps/common/self_test.h"

#include <bit>
#include <cmath>
#include <cstring>

#include "qorvex/base/text.h"

namespace qorvex::apps {

const std::uint64_t kReleaseHash = 0x62077cd59a648796;

// The word enters by an exclusive or, and a product with an odd number spreads it upwards; the
// rotation brings the upper bits down again.
void FigureHash::Mix(std::uint64_t word) noexcept {
  hash_ = std::rotl((hash_ ^ word) * 0x9e3779b97f4a7c15, 29);
}

void FigureHash::Add(Extended figure) noexcept {
  ++count_;
  if (std::isnan(figure)) return Mix(~std::uint64_t{0});
  std::uint64_t significand = 0;
  std::uint16_t sign_exponent = 0;
  std::memcpy(&significand, &figure, sizeof significand);
  std::memcpy(&sign_exponent, reinterpret_cast<const char*>(&figure) + sizeof significand,
              sizeof sign_exponent);
  Mix(significand);
  Mix(sign_exponent);
}

void FigureHash::Add(std::string_view text) noexcept {
  ++count_;
  for (const char c : text) Mix(static_cast<unsigned char>(c));
}

void AddText(FigureHash& hash, RandomStream& stream, std::uint64_t count) {
  while (hash.Count() < count) {
    const auto significand = static_cast<Extended>(static_cast<std::int64_t>(stream()));
    // All exponents for a quarter of the numbers.
    const int range = stream() % 4 == 0 ? 16000 : 40;
    const Extended x = std::ldexp(
        significand, static_cast<int>(stream() % static_cast<unsigned>(2 * range)) - range - 63);
    const std::string text = Float2Str(x);
    hash.Add(text);
    if (hash.Count() < count)
      hash.Add(range == 40 ? Str2Float(Float2EStr(x, 12)) : Str2Float(text));
  }
}

FigureHash HashOfFigures() {
  constexpr std::uint64_t rounds = 10;
  constexpr std::uint64_t figures_of_round = 200'000;
  FigureHash hash;
  for (std::uint64_t round = 0; round < rounds; ++round) {
    RandomStream stream(round);
    AddElementaryFunctions(hash, stream);
    AddVariates(hash, stream);
    AddDistributions(hash, stream);
    AddStatistics(hash, stream);
    AddMatrices(hash, stream);
    AddText(hash, stream, (round + 1) * figures_of_round);
  }
  return hash;
}

}  // namespace qorvex::apps
