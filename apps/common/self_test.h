#pragma once

/// @file
/// A hash over figures of all rooms, which tells whether two builds or machines compute the same.

#include <cstdint>
#include <string_view>

#include "qorvex/base/element_types.h"
#include "qorvex/random/random_stream.h"

namespace qorvex::apps {

/// A hash of 64 bits over the bits of figures and texts, in their order.
class FigureHash {
 public:
  /// All NaN count as the same figure.
  void Add(Extended figure) noexcept;
  void Add(std::string_view text) noexcept;

  [[nodiscard]] std::uint64_t Value() const noexcept { return hash_; }
  /// How many figures and texts have been added.
  [[nodiscard]] std::uint64_t Count() const noexcept { return count_; }

 private:
  void Mix(std::uint64_t word) noexcept;

  std::uint64_t hash_ = 0;
  std::uint64_t count_ = 0;
};

/// The hash of all figures, of which there are two million. A second on a usual processor.
[[nodiscard]] FigureHash HashOfFigures();

/// The hash of this release on every processor, with every compiler.
extern const std::uint64_t kReleaseHash;

/// @{
/// The figures of a round, with random arguments and data from the stream.
void AddElementaryFunctions(FigureHash& hash, RandomStream& stream);
void AddVariates(FigureHash& hash, RandomStream& stream);
void AddDistributions(FigureHash& hash, RandomStream& stream);
void AddStatistics(FigureHash& hash, RandomStream& stream);
void AddMatrices(FigureHash& hash, RandomStream& stream);
/// Numbers as text, and back, until the round is complete.
void AddText(FigureHash& hash, RandomStream& stream, std::uint64_t count);
/// @}

}  // namespace qorvex::apps
