#pragma once

/// @file
/// Sources of uniform values, from which all variates are made.
///
/// Every routine takes the source as its last parameter. Its short form has no such parameter and
/// draws from ClassicRandom.
///
/// - State: nothing is kept between calls. Every call computes what its parameters need, so calls
///   with different sources may run on different threads at the same time. Samplers, such as
///   GammaSampler, compute it once; see Fill.
/// - Results: extended values, including whole numbers.
/// - Requirements: a source should return independent values in [0, 1), with all 64 bits if the far
///   tails matter. A source with steps of 2^-53, for instance, yields no normal variate beyond
///   12.1. Values outside [0, 1) are not checked.
/// - Reproducibility: equal sources give the same bits on every x86-64 machine and with every
///   compiler. The logarithms, exponentials and powers are correctly rounded.
/// - Errors: if the normal or the gamma variate needs the logarithm of a drawn value, 0 raises
///   EZeroDivide and a negative value EInvalidOp. Exceptions of the source pass through.
/// - Termination: rejection methods draw again until a candidate is accepted, so a call never
///   returns if the source keeps returning a value that is never accepted. For each routine the
///   documentation names those among 0, 1/2, 1 - 2^-64 and NaN. If the values vary, every call
///   returns, whatever its parameters.

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <type_traits>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/base/random.h"

namespace qorvex::inline QorvexRandom {

/// A uniform source that is a plain function.
using TQorRandomFunc = Extended (*)();

/// @cond internal
class UniformSource;

namespace detail {

// A function, or a pointer to one.
template <class Callable>
inline constexpr bool kIsFunction =
    std::is_function_v<std::remove_pointer_t<std::remove_cvref_t<Callable>>>;

template <class Callable>
concept PlainSource = std::convertible_to<Callable, TQorRandomFunc> && kIsFunction<Callable>;

// A callable other than a TQorRandomFunc that returns floating values.
template <class Callable>
concept OtherSource =
    !std::same_as<std::remove_cvref_t<Callable>, UniformSource> && !PlainSource<Callable> &&
    std::floating_point<std::remove_cvref_t<std::invoke_result_t<Callable&>>>;

// A generator of random integers, as the distributions of the standard library take.
template <class Callable>
concept Generator = std::unsigned_integral<std::invoke_result_t<Callable&>> && requires {
  std::remove_cvref_t<Callable>::min();
  std::remove_cvref_t<Callable>::max();
};
template <Generator Callable>
inline constexpr bool kGenerates64Bits =
    std::remove_cvref_t<Callable>::min() == 0 && std::remove_cvref_t<Callable>::max() ==
                                                     std::numeric_limits<std::uint64_t>::max();

}  // namespace detail
/// @endcond

/// A reference to a uniform source:
///
/// - a TQorRandomFunc, or any other callable without arguments that returns a floating value, such
///   as a lambda;
/// - or a uniform random bit generator of 64 bits, such as RandomStream or std::mt19937_64, whose
///   integers times 2^-64 are the uniform values. Generators of other widths do not compile.
///
/// The class is meant for parameters. The callable is not copied, so it needs no std::ref, and
/// must outlive the reference; a temporary in the call expression does. A function pointer must not
/// be null. Each draw costs one indirect call.
class UniformSource {
 public:
  /// @{
  /// Refers to a source.
  UniformSource(TQorRandomFunc function) noexcept : target_{.function = function} {}

  template <detail::OtherSource Callable>
  UniformSource(Callable&& callable) noexcept {
    if constexpr (detail::kIsFunction<Callable>) {
      using Function = std::decay_t<Callable>;
      target_.other_function = reinterpret_cast<void (*)()>(static_cast<Function>(callable));
      call_ = [](Target target) -> Extended {
        return reinterpret_cast<Function>(target.other_function)();
      };
    } else {
      target_.object = AddressOf(callable);
      call_ = [](Target target) -> Extended { return Object<Callable>(target)(); };
    }
  }

  template <detail::Generator Callable>
  UniformSource(Callable&& generator) noexcept : target_{.object = AddressOf(generator)} {
    static_assert(detail::kGenerates64Bits<Callable>,
                  "a generator needs values of 64 bits, as RandomStream and std::mt19937_64 have");
    call_ = [](Target target) -> Extended { return UniformValue(Object<Callable>(target)()); };
  }

  UniformSource(std::nullptr_t) = delete;
  /// @}

  /// The next uniform value.
  Extended operator()() const { return call_ == nullptr ? target_.function() : call_(target_); }

 private:
  union Target {
    TQorRandomFunc function;
    void (*other_function)();
    void* object;
  };

  template <class Callable>
  static void* AddressOf(Callable& callable) noexcept {
    return const_cast<void*>(static_cast<const volatile void*>(std::addressof(callable)));
  }
  template <class Callable>
  static std::remove_reference_t<Callable>& Object(Target target) noexcept {
    return *static_cast<std::remove_reference_t<Callable>*>(target.object);
  }

  Target target_;
  // Null for a plain function.
  Extended (*call_)(Target) = nullptr;
};

/// The source of the short forms: the next value of Random(). All calls share the one generator
/// that SetRandSeed and Randomize seed, so threads must not call it at the same time.
[[nodiscard]] QORVEX_EXPORT Extended ClassicRandom() noexcept;

}  // namespace qorvex::inline QorvexRandom
