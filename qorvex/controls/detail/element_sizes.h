#pragma once

/// @file
/// Sizes of the elements along an axis: all alike, but for a few. Without a screen.

#include <cstdint>
#include <map>
#include <optional>

#include "qorvex/base/export.h"

namespace qorvex::inline QorvexControls::detail {

/// The largest number of cells in a row or a column.
inline constexpr int kMaxEdits = 255;

/// The sizes of elements in pixels. Each has the usual size or one of its own.
class QORVEX_EXPORT ElementSizes {
 public:
  /// A cell is no larger: 255 of them are within the coordinates of Qt.
  static constexpr int kLargest = 32'767;

  /// All of the usual size.
  explicit ElementSizes(int usual);

  /// @{
  /// Sizes are clamped to 0 to kLargest. Reset gives an element the usual size again.
  void SetUsual(int size);
  void Set(std::uint32_t element, int size);
  void Reset(std::uint32_t element);
  /// @}
  /// @{
  /// The sizes of their own that elements from the first one on have, and such sizes for them.
  [[nodiscard]] std::map<std::uint32_t, int> OwnSizes(std::uint32_t first,
                                                      std::uint32_t count) const;
  void SetOwnSizes(const std::map<std::uint32_t, int>& sizes);
  /// @}
  /// Elements from the first one on go, and others come in their place.
  void Replace(std::uint32_t first, std::uint32_t removed, std::uint32_t inserted);

  [[nodiscard]] int Usual() const noexcept { return usual_; }
  [[nodiscard]] bool AreUsual() const noexcept { return own_.empty(); }
  [[nodiscard]] int Size(std::uint32_t element) const;

  /// The size of up to 255 neighbours together. O(neighbours with a size of their own).
  [[nodiscard]] int Sum(std::uint32_t first, std::uint32_t neighbours) const;
  /// The largest Sum of so many neighbours among the first count elements; if there are fewer, the
  /// rest have the usual size. O(elements with a size of their own); asked again for the same
  /// numbers O(1), unless an element of the largest window has got smaller.
  [[nodiscard]] int LargestSum(std::uint32_t neighbours, std::uint32_t count) const;
  /// How many neighbours have room in a window that begins with an element, or that ends with the
  /// last one if the room is not used up there; 1 to 255. O(result).
  [[nodiscard]] std::uint32_t Fitting(std::uint32_t first, std::uint32_t count, int room) const;

 private:
  // A largest sum that is known.
  struct Largest {
    std::uint32_t neighbours;
    std::uint32_t count;
    int sum;
  };
  [[nodiscard]] int FindLargestSum(std::uint32_t neighbours, std::uint32_t last) const;
  // The largest sum of a window that contains the element; 0 if no window does.
  [[nodiscard]] int LargestAround(std::uint32_t element) const;
  // An element had another size.
  void Adjust(std::uint32_t element, int size_before);

  int usual_;
  std::map<std::uint32_t, int> own_;
  mutable std::optional<Largest> largest_;
};

}  // namespace qorvex::inline QorvexControls::detail
