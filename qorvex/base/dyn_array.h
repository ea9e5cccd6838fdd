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
#include <stdexcept>
#include <type_traits>
#include <utility>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex {

/// @cond internal
// A conversion from From to To can at most round a floating-point value.
template <class To, class From>
concept ElementFrom = std::convertible_to<From, To> &&
    (!std::integral<To> || !std::is_arithmetic_v<From> ||
     (std::integral<From> && std::in_range<To>(std::numeric_limits<From>::min()) &&
      std::in_range<To>(std::numeric_limits<From>::max())));
/// @endcond

/// @cond internal
// Large memory is cheaper in large pages: in pages of 4 kB the system takes longer to hand out
// memory for a million values than a loop takes to add them up.
inline constexpr std::size_t kLeastLargeBuffer = std::size_t{4} << 20;
QORVEX_EXPORT void PreferLargePages(void* memory, std::size_t bytes) noexcept;
/// @endcond

/// A zero-based dynamic array whose handles share one reference-counted buffer.
///
/// A container in the sense of the standard library, with contiguous elements, to which
/// std::back_inserter and the algorithms apply. It differs from std::vector in these points:
///
/// - Copying a handle shares the buffer, so a change to an element is seen through every handle.
/// - Every member that changes the length, and reserve(), first gives the handle its own buffer, to
///   which it copies the elements of a shared one. The other handles keep theirs.
/// - No constructor or member takes a floating-point value for an integer element, which would be
///   truncated. Assignments through references and iterators convert as usual.
/// - If std::bad_alloc is thrown, the array is unchanged. Arguments may be elements of the array.
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
  using reverse_iterator = std::reverse_iterator<iterator>;
  using const_reverse_iterator = std::reverse_iterator<const_iterator>;
  /// @}

  /// An empty array.
  DynArray() noexcept = default;

  /// An array of the values in braces: TQorFloatVector{3, 1} has two elements.
  DynArray(std::initializer_list<T> values) : DynArray() {
    Extend(values.size(), [values](T* target, size_type count) {
      std::uninitialized_copy_n(values.begin(), count, target);
    });
  }

  /// An array of the given length whose elements are zero (or empty, for rows).
  template <std::integral Count>
  explicit DynArray(Count length) : DynArray() {
    resize(static_cast<size_type>(length));
  }

  /// An array of equal elements: TQorFloatVector(3, 1) has three. Each row is a copy of its own.
  template <std::integral Count>
  DynArray(Count length, ScalarOf<T> value) : DynArray() {
    resize(static_cast<size_type>(length), std::move(value));
  }

  /// @{
  /// Copies the elements of any range, converting each to T. Conversions from floating-point to
  /// integer elements, or to an integer type that cannot hold all values, do not compile.
  template <std::input_iterator Iterator, std::sentinel_for<Iterator> Sentinel = Iterator>
  requires ElementFrom<T, std::iter_value_t<Iterator>> DynArray(Iterator first, Sentinel last)
      : DynArray() {
    if constexpr (std::forward_iterator<Iterator> || std::sized_sentinel_for<Sentinel, Iterator>) {
      const auto length = static_cast<size_type>(std::ranges::distance(first, last));
      Extend(length, [&](T* target, size_type count) {
        if constexpr (std::contiguous_iterator<Iterator>) {
          std::uninitialized_copy_n(std::to_address(first), count, target);
        } else {
          std::ranges::uninitialized_copy(std::move(first), last, target, target + count);
        }
      });
    } else {
      for (; first != last; ++first) push_back(static_cast<T>(*first));
    }
  }

  template <std::ranges::input_range Range>
  requires(!std::same_as<std::remove_cvref_t<Range>, DynArray> &&
           ElementFrom<T, std::ranges::range_value_t<Range>>) explicit DynArray(Range&& range)
      : DynArray(std::ranges::begin(range), std::ranges::end(range)) {}
  /// @}

  /// An array of the given length whose elements are zero (or empty, for rows).
  [[nodiscard]] static DynArray WithLength(size_type length) { return DynArray(length); }

  /// An array of the given length with uninitialised elements: write each before reading it.
  [[nodiscard]] static DynArray ForOverwrite(
      size_type length) requires std::is_trivially_copyable_v<T> {
    DynArray array;
    array.Extend(length, [](T*, size_type) {});
    return array;
  }

  /// Shares the buffer.
  DynArray(const DynArray& other) noexcept : header_(other.header_), length_(other.length_) {
    if (header_ != nullptr) header_->references.fetch_add(1, std::memory_order_relaxed);
  }
  /// Takes over the buffer and leaves the other handle empty.
  DynArray(DynArray&& other) noexcept
      : header_(std::exchange(other.header_, nullptr)), length_(std::exchange(other.length_, 0)) {}
  /// Releases this buffer and shares, or takes over, the other.
  DynArray& operator=(DynArray other) noexcept {
    swap(other);
    return *this;
  }
  ~DynArray() { Release(header_, length_); }

  /// The number of elements.
  [[nodiscard]] size_type size() const noexcept { return length_; }
  /// True if the length is 0.
  [[nodiscard]] bool empty() const noexcept { return size() == 0; }
  /// The highest index: length - 1, so -1 for an empty array.
  [[nodiscard]] difference_type High() const noexcept {
    return static_cast<difference_type>(size()) - 1;
  }

  /// The number of elements that the buffer has room for. A private buffer does not move while the
  /// length stays within the capacity.
  [[nodiscard]] size_type capacity() const noexcept {
    return header_ == nullptr ? 0 : header_->capacity;
  }
  /// The largest possible length.
  [[nodiscard]] static constexpr size_type max_size() noexcept {
    return (static_cast<size_type>(std::numeric_limits<difference_type>::max()) - kElementsOffset) /
           sizeof(T);
  }

  /// @{
  /// The elements; nullptr without a buffer. Valid until the length changes.
  [[nodiscard]] T* data() noexcept { return header_ == nullptr ? nullptr : Elements(header_); }
  [[nodiscard]] const T* data() const noexcept {
    return header_ == nullptr ? nullptr : Elements(header_);
  }
  [[nodiscard]] iterator begin() noexcept { return data(); }
  [[nodiscard]] iterator end() noexcept { return data() + size(); }
  [[nodiscard]] const_iterator begin() const noexcept { return data(); }
  [[nodiscard]] const_iterator end() const noexcept { return data() + size(); }
  [[nodiscard]] const_iterator cbegin() const noexcept { return begin(); }
  [[nodiscard]] const_iterator cend() const noexcept { return end(); }
  [[nodiscard]] reverse_iterator rbegin() noexcept { return reverse_iterator(end()); }
  [[nodiscard]] reverse_iterator rend() noexcept { return reverse_iterator(begin()); }
  [[nodiscard]] const_reverse_iterator rbegin() const noexcept {
    return const_reverse_iterator(end());
  }
  [[nodiscard]] const_reverse_iterator rend() const noexcept {
    return const_reverse_iterator(begin());
  }
  [[nodiscard]] const_reverse_iterator crbegin() const noexcept { return rbegin(); }
  [[nodiscard]] const_reverse_iterator crend() const noexcept { return rend(); }
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
  [[nodiscard]] T& front() noexcept { return (*this)[0]; }
  [[nodiscard]] const T& front() const noexcept { return (*this)[0]; }
  [[nodiscard]] T& back() noexcept { return (*this)[size() - 1]; }
  [[nodiscard]] const T& back() const noexcept { return (*this)[size() - 1]; }
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
  void SetLength(size_type length) {
    if (length == 0) {
      Reallocate(0, 0);
    } else {
      resize(length);
    }
  }

  /// @{
  /// Sets the length like SetLength(). New elements are zero or have the given value; each new row
  /// is a copy of its own. A private buffer keeps its capacity, even at length 0.
  void resize(size_type length) {
    if (length <= size()) {
      Truncate(length);
    } else {
      Extend(length - size(), Zero);
    }
  }
  void resize(size_type length, ScalarOf<T> value) {
    if (length <= size()) {
      Truncate(length);
    } else if constexpr (requires { value.SharesBufferWith(value); }) {
      DynArray rows(length - size());
      for (T& row : rows) row = T(value.begin(), value.end());
      Extend(rows.size(), [&](T* first, size_type count) {
        std::uninitialized_move_n(rows.begin(), count, first);
      });
    } else {
      Extend(length - size(), [element = static_cast<T>(value)](T* first, size_type count) {
        std::uninitialized_fill_n(first, count, element);
      });
    }
  }
  /// @}
  /// Sets the length to 0. A private buffer keeps its capacity.
  void clear() noexcept { Truncate(0); }

  /// @{
  /// Appends one element. The buffer becomes private.
  void Append(ScalarOf<T> value) { push_back(std::move(value)); }
  void push_back(ScalarOf<T> value) {
    Extend(1, [&](T* target, size_type) { ::new (target) T(std::move(value)); });
  }
  /// @}
  /// Appends an element made of the arguments (zero without any), and returns it. The buffer
  /// becomes private.
  template <class... Arguments>
  requires(sizeof...(Arguments) == 0 || std::constructible_from<ScalarOf<T>, Arguments...>)
      T& emplace_back(Arguments&&... arguments) {
    if constexpr (sizeof...(Arguments) == 0) {
      push_back(T());
    } else {
      push_back(ScalarOf<T>(std::forward<Arguments>(arguments)...));
    }
    return back();
  }
  /// Removes the last element of a non-empty array. The buffer becomes private.
  void pop_back() {
    assert(!empty());
    Truncate(size() - 1);
  }

  /// @{
  /// Replaces all elements. The other handles of a shared buffer keep it.
  template <std::integral Count>
  void assign(Count length, ScalarOf<T> value) {
    *this = DynArray(length, std::move(value));
  }
  template <std::input_iterator Iterator, std::sentinel_for<Iterator> Sentinel = Iterator>
  requires ElementFrom<T, std::iter_value_t<Iterator>>
  void assign(Iterator first, Sentinel last) {
    *this = DynArray(std::move(first), std::move(last));
  }
  /// @}

  /// Provides room for a length, so that appending up to it does not move the elements. The buffer
  /// becomes private even if it has the room, so that sharing does not depend on capacities.
  void reserve(size_type capacity) {
    if (capacity > this->capacity() || IsShared()) {
      Reallocate(size(), std::max(capacity, this->capacity()));
    }
  }

  /// Releases unused capacity. A shared buffer with unused capacity becomes private.
  void ShrinkToFit() {
    if (capacity() > size()) Reallocate(size(), size());
  }

  /// @{
  /// Exchanges the buffers of two handles.
  void swap(DynArray& other) noexcept {
    std::swap(header_, other.header_);
    std::swap(length_, other.length_);
  }
  friend void swap(DynArray& a, DynArray& b) noexcept { a.swap(b); }
  /// @}

  /// True if another handle shares the buffer.
  [[nodiscard]] bool IsShared() const noexcept {
    return header_ != nullptr && header_->references.load(std::memory_order_acquire) != 1;
  }
  /// True if both handles share one buffer; false without one.
  [[nodiscard]] bool SharesBufferWith(const DynArray& other) const noexcept {
    return header_ != nullptr && header_ == other.header_;
  }

  /// True if lengths and elements are equal.
  friend bool operator==(const DynArray& a, const DynArray& b) { return std::ranges::equal(a, b); }

 private:
  struct Header {
    std::atomic<size_type> references{1};
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
    if (capacity > max_size()) throw std::bad_array_new_length();
    const std::size_t bytes = kElementsOffset + capacity * sizeof(T);
    void* memory = ::operator new (bytes, std::align_val_t{kAlignment});
    if (bytes >= kLeastLargeBuffer) PreferLargePages(memory, bytes);
    return ::new (memory) Header(capacity);
  }

  static void Deallocate(Header* header) noexcept {
    header->~Header();
    ::operator delete (header, std::align_val_t{kAlignment});
  }

  static void Release(Header* header, size_type length) noexcept {
    if (header == nullptr) return;
    // A sole owner does not count down, since an atomic subtraction takes as long as the rest.
    if (header->references.load(std::memory_order_acquire) != 1 &&
        header->references.fetch_sub(1, std::memory_order_acq_rel) != 1) {
      return;
    }
    std::destroy_n(Elements(header), length);
    Deallocate(header);
  }

  static void Zero(T* first, size_type count) {
    if constexpr (std::is_trivially_copyable_v<T>) {
      std::memset(static_cast<void*>(first), 0, count * sizeof(T));
    } else {
      std::uninitialized_value_construct_n(first, count);
    }
  }

  // Moves the first elements to a new, private buffer. Without capacity there is no buffer.
  void Reallocate(size_type kept, size_type capacity) {
    Header* fresh = nullptr;
    if (capacity != 0) {
      fresh = Allocate(capacity);
      if (IsShared()) {
        std::uninitialized_copy_n(data(), kept, Elements(fresh));
      } else {
        std::uninitialized_move_n(data(), kept, Elements(fresh));
      }
    }
    Release(std::exchange(header_, fresh), std::exchange(length_, kept));
  }

  // Removes the elements from the length on, which is at most the present one.
  void Truncate(size_type length) {
    if (IsShared()) {
      Reallocate(length, length);
    } else {
      std::destroy(begin() + length, end());
      length_ = length;
    }
  }

  // Appends elements: construct(first, count) makes them in uninitialised memory.
  template <class Construct>
  void Extend(size_type count, Construct construct) {
    if (count == 0) return;
    const size_type length = size();
    if (count > max_size() - length) throw std::bad_array_new_length();
    if (IsShared() || count > capacity() - length) {
      Reallocate(length, std::max(length + count, length + length / 2));
    }
    construct(Elements(header_) + length, count);
    length_ = length + count;
  }

  void RequireIndex(size_type index) const {
    if (index >= size()) throw std::out_of_range("DynArray: index out of range");
  }

  Header* header_ = nullptr;
  // The handles of a shared buffer agree on the length, because a change of it makes the buffer
  // private. Because it is kept here, the lengths of all rows of a matrix are compared without
  // reading the rows.
  size_type length_ = 0;
};

}  // namespace qorvex
