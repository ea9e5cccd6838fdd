#pragma once

/// @file
/// Finds out which element types a routine accepts.

#include <gtest/gtest.h>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

#include "qorvex/base/vector_types.h"

namespace qorvex {

/// The letters of the types that the probe accepts.
template <class... T, class Probe>
std::string AcceptedBy(Probe probe, const char* letter) {
  std::string types;
  ((probe(std::type_identity<T>()) ? types += *letter : types, ++letter), ...);
  return types;
}

/// The types that the probe accepts, as one letter per element type: g d f (floating), j u i (64-
/// and 32-bit integers), w s b t (16- and 8-bit integers), and the currencies C S L.
template <class Probe>
std::string Exists(Probe probe) {
  return AcceptedBy<Extended, double, float, std::int64_t, std::uint32_t, std::int32_t,
                    std::uint16_t, std::int16_t, std::uint8_t, std::int8_t, Currency, QorCurrency,
                    QorLongCurrency>(probe, "gdfjuiwsbtCSL");
}

/// The types for which the expression compiles. In it, v is of the given kind, w a vector and m a
/// matrix of the type; the other variables are for outputs.
#define TYPES_WITH(Kind, expression)                                                   \
  Exists([]<class T>(std::type_identity<T>) {                                          \
    return requires(Kind v, TQorVector<T> & w, TQorMatrix<T> & m, T & x, Extended & e, \
                    std::uint32_t & i, bool& b) {                                      \
      expression;                                                                      \
    };                                                                                 \
  })
/// The same for a vector v.
#define TYPES_OF(expression) TYPES_WITH(TQorVector<T>&, expression)
/// The same for a routine that reads v: a vector, a temporary one, std::vector or std::span. The
/// types of each kind if they differ.
#define TYPES_READ_BY(expression)                                      \
  Agreed({TYPES_OF(expression), TYPES_WITH(TQorVector<T>, expression), \
          TYPES_WITH(const std::vector<T>&, expression), TYPES_WITH(std::span<T>, expression)})

inline std::string Agreed(const std::vector<std::string>& types) {
  std::string all = types[0];
  for (const std::string& others : types) {
    if (others != types[0]) all += " but also " + others;
  }
  return all;
}

/// Expects that every routine of the list accepts these types.
inline void ExpectTypes(const std::string& types, const std::vector<std::string>& routines) {
  EXPECT_EQ(routines, std::vector(routines.size(), types));
}

}  // namespace qorvex
