#pragma once

/// @file
/// The digits of a BigInteger in base 2^64.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <utility>

namespace qorvex::exact {

/// An array of limbs, the least significant first. Short arrays need no allocation.
class Limbs {
 public:
  /// A digit.
  using Limb = std::uint64_t;

  /// No limbs.
  Limbs() = default;
  /// Limbs of 0.
  explicit Limbs(std::size_t size) { Resize(size); }
  /// A copy of the given limbs.
  explicit Limbs(std::span<const Limb> limbs) : Limbs(limbs.size()) {
    std::ranges::copy(limbs, Data());
  }
  /// @{
  /// A copy, or the limbs of an array that is then empty.
  Limbs(const Limbs& other) : Limbs(other.View()) {}
  Limbs(Limbs&& other) noexcept { Swap(other); }
  /// @}
  /// @{
  /// Replaces the limbs. After a move, the other array has valid limbs, whichever they are.
  Limbs& operator=(const Limbs& other) {
    if (this != &other) *this = Limbs(other);
    return *this;
  }
  Limbs& operator=(Limbs&& other) noexcept {
    Swap(other);
    return *this;
  }
  /// @}
  ~Limbs() = default;

  /// The number of limbs.
  [[nodiscard]] std::size_t Size() const { return size_; }
  /// @{
  /// The limbs.
  [[nodiscard]] Limb* Data() { return heap_ ? heap_.get() : inline_; }
  [[nodiscard]] const Limb* Data() const { return heap_ ? heap_.get() : inline_; }
  [[nodiscard]] Limb& operator[](std::size_t i) { return Data()[i]; }
  [[nodiscard]] Limb operator[](std::size_t i) const { return Data()[i]; }
  [[nodiscard]] std::span<const Limb> View() const { return {Data(), size_}; }
  /// @}

  /// Changes the number of limbs. Added limbs are 0.
  void Resize(std::size_t size) {
    if (size > capacity_) {
      const std::size_t capacity = std::max(size, 2 * capacity_);
      auto heap = std::make_unique_for_overwrite<Limb[]>(capacity);
      std::copy_n(Data(), size_, heap.get());
      heap_ = std::move(heap);
      capacity_ = capacity;
    }
    if (size > size_) std::fill(Data() + size_, Data() + size, 0);
    size_ = size;
  }

  /// Removes the zeros at the most significant end.
  void Trim() {
    const Limb* const data = Data();
    while (size_ > 0 && data[size_ - 1] == 0) --size_;
  }

 private:
  static constexpr std::size_t kInline = 8;

  void Swap(Limbs& other) noexcept {
    std::swap(size_, other.size_);
    std::swap(capacity_, other.capacity_);
    std::swap(heap_, other.heap_);
    std::swap(inline_, other.inline_);
  }

  std::size_t size_ = 0;
  std::size_t capacity_ = kInline;
  std::unique_ptr<Limb[]> heap_;
  Limb inline_[kInline] = {};
};

}  // namespace qorvex::exact
