#pragma once

/// @file
/// DynArray, the reference-counted dynamic array behind every vector and matrix.

#include <algorithm>
#include <atomic>
#include <cassert>
#include <concepts>
#include <cstddef>
#include <cstring>
#include <initializer_list>
#include <iterator>
#include <limits>
#include <memory>
#include <new>
#include <ranges>
#include <span>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace qorvex {

/// @cond internal
// A conversion from From to To can at most round a floating-point value.
template <class To, class From>
concept ElementFrom = std::convertible_to<From, To> &&
    (!std::integral<To> || !std::is_arithmetic_v<From> ||
     (std::integral<From> && std::in_range<To>(std::numeric_limits<From>::min()) &&
      std::in_range<To>(std::numeric_limits<From>::max())));
/// @endcond

/// A zero-based dynamic array whose handles share one reference-counted buffer.
///
/// - Copying a handle shares the buffer, so a change to an element is seen through every handle.
/// - Changing the length first gives the handle its own buffer. An array of length 0 has no buffer.
/// - A moved-from handle is empty.
/// - Handles may be copied and destroyed on several threads at once; writing elements needs
///   external synchronisation.
/// - Constness is deep: through a const handle the elements can only be read.
/// - New elements of trivially copyable types have all bits zero.
/// - One allocation holds the header and the elements. Capacity grows by half, so appending is
///   amortised O(1).
template <class T>
class DynArray {
 public:
  /// @{
  /// The member types of a standard container.
  using value_type = T;
  using size_type = std::size_t;
  using difference_type = std::ptrdiff_t;
  using reference = T&;
  using const_reference = const T&;
  using iterator = T*;
  using const_iterator = const T*;
  /// @}

  /// An empty array.
  DynArray() noexcept = default;

  /// @{
  /// An array of the given values.
  DynArray(std::initializer_list<T> values) : DynArray(std::span<const T>(values)) {}

  explicit DynArray(std::span<const T> values) {
    if (values.empty()) return;
    header_ = Allocate(values.size());
    std::uninitialized_copy(values.begin(), values.end(), Elements(header_));
    header_->length = values.size();
  }
  /// @}

  /// Copies any sized range, converting each value to T. Conversions from floating-point to integer
  /// elements, or to an integer type that cannot hold all values, do not compile.
  template <std::ranges::sized_range Range>
  requires(!std::same_as<std::remove_cvref_t<Range>, DynArray> &&
           ElementFrom<T, std::ranges::range_value_t<Range>>) explicit DynArray(Range&& range)
      : DynArray() {
    SetLength(static_cast<size_type>(std::ranges::size(range)));
    std::ranges::transform(range, begin(), [](auto&& value) { return static_cast<T>(value); });
  }

  /// An array of the given length whose elements are zero (or empty, for rows).
  [[nodiscard]] static DynArray WithLength(size_type length) {
    DynArray array;
    array.SetLength(length);
    return array;
  }

  /// An array of the given length with uninitialised elements: write each before reading it.
  [[nodiscard]] static DynArray ForOverwrite(
      size_type length) requires std::is_trivially_copyable_v<T> {
    DynArray array;
    if (length != 0) {
      array.header_ = Allocate(length);
      array.header_->length = length;
    }
    return array;
  }

  /// Shares the buffer.
  DynArray(const DynArray& other) noexcept : header_(other.header_) {
    if (header_ != nullptr) header_->references.fetch_add(1, std::memory_order_relaxed);
  }
  /// Takes over the buffer and leaves the other handle empty.
  DynArray(DynArray&& other) noexcept : header_(std::exchange(other.header_, nullptr)) {}
  /// Releases this buffer and shares, or takes over, the other.
  DynArray& operator=(DynArray other) noexcept {
    std::swap(header_, other.header_);
    return *this;
  }
  ~DynArray() { Release(header_); }

  /// The number of elements.
  [[nodiscard]] size_type size() const noexcept { return header_ == nullptr ? 0 : header_->length; }
  /// True if the length is 0.
  [[nodiscard]] bool empty() const noexcept { return header_ == nullptr; }
  /// The highest index: length - 1, so -1 for an empty array.
  [[nodiscard]] difference_type High() const noexcept {
    return static_cast<difference_type>(size()) - 1;
  }

  /// @{
  /// The elements; nullptr for an empty array. Valid until the length changes.
  [[nodiscard]] T* data() noexcept { return header_ == nullptr ? nullptr : Elements(header_); }
  [[nodiscard]] const T* data() const noexcept {
    return header_ == nullptr ? nullptr : Elements(header_);
  }
  [[nodiscard]] iterator begin() noexcept { return data(); }
  [[nodiscard]] iterator end() noexcept { return data() + size(); }
  [[nodiscard]] const_iterator begin() const noexcept { return data(); }
  [[nodiscard]] const_iterator end() const noexcept { return data() + size(); }
  /// @}

  /// @{
  /// Unchecked access: the index must be less than the length (asserted in debug builds).
  [[nodiscard]] T& operator[](size_type index) noexcept {
    assert(index < size());
    return Elements(header_)[index];
  }
  [[nodiscard]] const T& operator[](size_type index) const noexcept {
    assert(index < size());
    return Elements(header_)[index];
  }
  /// @}

  /// @{
  /// Checked access: throws std::out_of_range if the index is not less than the length.
  [[nodiscard]] T& at(size_type index) {
    RequireIndex(index);
    return Elements(header_)[index];
  }
  [[nodiscard]] const T& at(size_type index) const {
    RequireIndex(index);
    return Elements(header_)[index];
  }
  /// @}

  /// Sets the length.
  ///
  /// - If the buffer is shared, the other handles keep it and this handle gets a private copy.
  /// - Existing elements up to the new length are kept; new elements are zero.
  /// - Length 0 releases the buffer.
  /// - If std::bad_alloc is thrown, the array is unchanged.
  void SetLength(size_type length) {
    if (length == 0) {
      Release(std::exchange(header_, nullptr));
    } else if (header_ == nullptr || IsShared() || length > header_->capacity) {
      Reallocate(length);
    } else if (length < header_->length) {
      std::destroy(Elements(header_) + length, Elements(header_) + header_->length);
      header_->length = length;
    } else {
      Zero(Elements(header_) + header_->length, length - header_->length);
      header_->length = length;
    }
  }

  /// Appends one element. The buffer becomes private.
  void Append(T value) {
    SetLength(size() + 1);
    (*this)[size() - 1] = std::move(value);
  }

  /// Releases unused capacity. A shared buffer with unused capacity becomes private.
  void ShrinkToFit() {
    if (header_ != nullptr && header_->capacity > header_->length) Reallocate(header_->length);
  }

  /// True if another handle shares the buffer.
  [[nodiscard]] bool IsShared() const noexcept {
    return header_ != nullptr && header_->references.load(std::memory_order_acquire) != 1;
  }
  /// True if both handles share one buffer; false for empty arrays.
  [[nodiscard]] bool SharesBufferWith(const DynArray& other) const noexcept {
    return header_ != nullptr && header_ == other.header_;
  }

  /// True if lengths and elements are equal.
  friend bool operator==(const DynArray& a, const DynArray& b) { return std::ranges::equal(a, b); }

 private:
  struct Header {
    std::atomic<size_type> references{1};
    size_type length = 0;
    size_type capacity;

    explicit Header(size_type elements) : capacity(elements) {}
  };

  static constexpr std::size_t kAlignment = std::max(alignof(Header), alignof(T));
  static constexpr std::size_t kElementsOffset =
      (sizeof(Header) + kAlignment - 1) / kAlignment * kAlignment;

  static T* Elements(Header* header) noexcept {
    return std::launder(
        reinterpret_cast<T*>(reinterpret_cast<std::byte*>(header) + kElementsOffset));
  }

  static Header* Allocate(size_type capacity) {
    static_assert(std::is_nothrow_default_constructible_v<T> &&
                      std::is_nothrow_copy_constructible_v<T> &&
                      std::is_nothrow_move_constructible_v<T>,
                  "only the allocation may fail, so that a failure leaves the array unchanged");
    constexpr size_type limit =
        (static_cast<size_type>(std::numeric_limits<difference_type>::max()) - kElementsOffset) /
        sizeof(T);
    if (capacity > limit) throw std::bad_array_new_length();
    void* memory =
        ::operator new (kElementsOffset + capacity * sizeof(T), std::align_val_t{kAlignment});
    return ::new (memory) Header(capacity);
  }

  static void Deallocate(Header* header) noexcept {
    header->~Header();
    ::operator delete (header, std::align_val_t{kAlignment});
  }

  static void Release(Header* header) noexcept {
    if (header == nullptr) return;
    if (header->references.fetch_sub(1, std::memory_order_acq_rel) != 1) return;
    std::destroy_n(Elements(header), header->length);
    Deallocate(header);
  }

  static void Zero(T* first, size_type count) {
    if constexpr (std::is_trivially_copyable_v<T>) {
      std::memset(static_cast<void*>(first), 0, count * sizeof(T));
    } else {
      std::uninitialized_value_construct_n(first, count);
    }
  }

  // Moves the elements to a new, private buffer of the given length. Growing a private buffer
  // reserves additional capacity.
  void Reallocate(size_type length) {
    const bool shared = IsShared();
    const size_type old_length = size();
    const bool grows_in_place = header_ != nullptr && !shared && length > old_length;
    const size_type capacity =
        grows_in_place ? std::max(length, old_length + old_length / 2) : length;
    const size_type kept = std::min(length, old_length);

    Header* fresh = Allocate(capacity);
    if (shared) {
      std::uninitialized_copy_n(Elements(header_), kept, Elements(fresh));
    } else if (kept != 0) {
      std::uninitialized_move_n(Elements(header_), kept, Elements(fresh));
    }
    Zero(Elements(fresh) + kept, length - kept);
    fresh->length = length;
    Release(std::exchange(header_, fresh));
  }

  void RequireIndex(size_type index) const {
    if (index >= size()) throw std::out_of_range("DynArray: index out of range");
  }

  Header* header_ = nullptr;
};

}  // namespace qorvex
