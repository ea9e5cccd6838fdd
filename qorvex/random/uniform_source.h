#pragma once

/// @file
/// Where variates get their uniform values from.
///
/// Every variate of the unit takes its uniform values from a source, which is its last parameter,
/// and has a short form without it that draws from ClassicRandom. Nothing is kept between calls:
/// every call computes what its parameters need, so that calls which draw from sources of their own
/// may run on several threads. Whole numbers are held in extended values, too.
///
/// Equal sources give the same bits on processors of one family. Logarithms and exponentials are
/// the processor's, whose last bit differs between makes: elsewhere the last digit of what is not a
/// count can differ, and rarely a rejection loop takes another branch.
///
/// A source is expected to return independent values in [0, 1), with all 64 bits if the far tails
/// matter: a source with a step of 2^-53 has no normal variate beyond 12.1, for instance. Values
/// outside are not guarded against. A drawn 0 whose logarithm the normal or the gamma variate needs
/// raises EZeroDivide, a negative value EInvalidOp; exceptions of the source pass through.
///
/// Rejection draws again, so a call does not return while the source keeps returning one value that
/// is never accepted. Each routine names those of 0, 1/2, 1 - 2^-64 and NaN on which it is "stuck".
/// With a source that moves, every call ends, whatever the parameters.

#include <concepts>
#include <cstddef>
#include <memory>
#include <type_traits>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexRandom {

/// A uniform source that is a plain function.
using TQorRandomFunc = Extended (*)();

/// @cond internal
class UniformSource;

// A function, or a pointer to one.
template <class Callable>
inline constexpr bool kIsFunction =
    std::is_function_v<std::remove_pointer_t<std::remove_cvref_t<Callable>>>;

// A source that is no TQorRandomFunc.
template <class Callable>
concept OtherSource =
    !std::same_as<std::remove_cvref_t<Callable>, UniformSource> &&
    !(kIsFunction<Callable> && std::convertible_to<Callable, TQorRandomFunc>)&&  //
    std::floating_point<std::remove_cvref_t<std::invoke_result_t<Callable&>>>;
/// @endcond

/// A reference to a uniform source: a TQorRandomFunc, or any other callable without arguments whose
/// result is a floating value, such as a lambda around an engine of the application's own.
///
/// The callable is not copied and must outlive the reference, which is meant for parameters: one
/// that is written in the call lives long enough. A plain function must not be null. Drawing costs
/// one indirect call.
class UniformSource {
 public:
  /// @{
  /// Refers to a source.
  UniformSource(TQorRandomFunc function) noexcept : target_{.function = function} {}

  template <OtherSource Callable>
  UniformSource(Callable&& callable) noexcept {
    if constexpr (kIsFunction<Callable>) {
      using Function = std::decay_t<Callable>;
      target_.other_function = reinterpret_cast<void (*)()>(static_cast<Function>(callable));
      call_ = [](Target target) -> Extended {
        return reinterpret_cast<Function>(target.other_function)();
      };
    } else {
      target_.object =
          const_cast<void*>(static_cast<const volatile void*>(std::addressof(callable)));
      call_ = [](Target target) -> Extended {
        return (*static_cast<std::remove_reference_t<Callable>*>(target.object))();
      };
    }
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

  Target target_;
  // Null for a plain function.
  Extended (*call_)(Target) = nullptr;
};

/// The source of the short forms: the next value of Random(), of the one generator that
/// SetRandSeed and Randomize seed and that threads must not use at the same time.
[[nodiscard]] QORVEX_EXPORT Extended ClassicRandom() noexcept;

}  // namespace qorvex::inline QorvexRandom
