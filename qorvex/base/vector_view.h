#pragma once

/// @file
/// VectorView, the parameter type of routines that read a vector.

#include <initializer_list>
#include <ranges>
#include <span>
#include <type_traits>

namespace qorvex {

/// A range whose elements are contiguous in memory: a vector, a C array, std::vector, std::array,
/// std::span or std::initializer_list. It must be readable through a const reference, and its
/// elements must not be volatile.
template <class Range>
concept ContiguousRange =
    std::ranges::contiguous_range<const Range> && std::ranges::sized_range<const Range> &&
    !std::is_volatile_v<std::remove_reference_t<std::ranges::range_reference_t<const Range>>>;

/// @cond internal
// A class, because compilers show an alias as the long type that it stands for.
template <class Range>
struct RangeElement {};
template <ContiguousRange Range>
struct RangeElement<Range> {
  using Type = std::ranges::range_value_t<const Range>;
};
/// @endcond

/// The element type of a contiguous range, without const.
template <class Range>
using ElementOf = typename RangeElement<Range>::Type;

/// A read-only view of contiguous elements of type T. It copies nothing, and converts implicitly
/// from every contiguous range of T and from a list in braces.
///
/// - Meant for parameters: the elements must outlive the view. Elements in braces live until the
///   end of the full expression.
/// - A range of another element type does not convert, so that nothing is converted or rounded
///   without being asked for.
template <class T>
class VectorView : public std::span<const T> {
 public:
  /// No elements.
  constexpr VectorView() noexcept = default;
  /// The elements in braces.
  constexpr VectorView(std::initializer_list<T> values) noexcept
      : std::span<const T>(values.begin(), values.size()) {}
  /// The elements of the range.
  template <ContiguousRange Range>
  requires std::is_same_v<ElementOf<Range>, T>
  constexpr VectorView(const Range& range) noexcept(
      noexcept(std::ranges::data(range)) && noexcept(std::ranges::size(range)))
      : std::span<const T>(std::ranges::data(range), std::ranges::size(range)) {}
};

}  // namespace qorvex

/// @cond internal
template <class T>
inline constexpr bool std::ranges::enable_borrowed_range<qorvex::VectorView<T>> = true;
template <class T>
inline constexpr bool std::ranges::enable_view<qorvex::VectorView<T>> = true;
/// @endcond
