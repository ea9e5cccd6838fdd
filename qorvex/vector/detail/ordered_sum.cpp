#include "qorvex/vector/detail/ordered_sum.h"

#include <algorithm>

#include "qorvex/base/detail/instructions.h"
#include "qorvex/vector/detail/lattice_sum.h"

namespace qorvex::inline QorvexVector::detail {

namespace {

constexpr std::size_t kBlock = LatticeSum::kBlock;

// The most terms that are added in turn after blocks have failed.
constexpr std::size_t kMostTerms = 64 * kBlock;

// Not inlined, so that the sum stays in a register of the x87 unit.
template <class Terms>
[[gnu::noinline]] void AddTerms(Extended& sum, const Terms& terms, std::size_t first,
                                std::size_t count) noexcept {
  sum = AddInTurn(sum, terms, first, first + count);
}

// Whether most of the first terms seem to have the same sign, since sums that cancel stay small.
template <class Terms>
bool SeemsToGrow(const Terms& terms) noexcept {
  constexpr std::size_t kSample = 16;
  std::size_t negative = 0;
  for (std::size_t i = 0; i < kSample; ++i) negative += terms[i] < 0 ? 1U : 0U;
  return negative <= kSample / 4 || negative >= kSample - kSample / 4;
}

template <class Terms>
std::size_t AddBlocks(Extended& sum, const Terms& terms, std::size_t first,
                      std::size_t blocks) noexcept {
  LatticeSum lattice(sum);
  const std::size_t added = BestInstructions() == Instructions::kAvx512
                                ? AddBlocksAvx512(lattice, terms, first, blocks)
                                : AddBlocksAvx2(lattice, terms, first, blocks);
  lattice.Store(sum);
  return added;
}

template <class Terms>
bool IsSplit(const Terms&) noexcept {
  return true;
}
template <class T>
bool IsSplit(const SquaredDeviations<T>& terms) noexcept {
  return static_cast<Extended>(terms.mean_high) + static_cast<Extended>(terms.mean_low) ==
         terms.mean;
}

}  // namespace

template <class Terms>
Extended AddMany(Extended sum, const Terms& terms, std::size_t count) noexcept {
  std::size_t done = 0;
  if (BestInstructions() >= Instructions::kAvx2 && DoublesAreUsual() && IsSplit(terms)) {
    std::size_t in_turn = SeemsToGrow(terms) ? kFirstTerms<Terms> : kMostTerms / 2;
    while (count - done >= in_turn + kBlock) {
      AddTerms(sum, terms, done, in_turn);
      done += in_turn;
      const std::size_t blocks = AddBlocks(sum, terms, done, (count - done) / kBlock);
      done += blocks * kBlock;
      in_turn = blocks > 0 ? kBlock : std::min(2 * in_turn, kMostTerms);
    }
  }
  AddTerms(sum, terms, done, count - done);
  return sum;
}

#define QORVEX_INSTANTIATE(Terms) template Extended AddMany(Extended, const Terms&, std::size_t);
QORVEX_FOR_LATTICE_TERMS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexVector::detail
