#pragma once

/// @file
/// Finds out which element types a routine accepts.

#include <gtest/gtest.h>
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

/// The types for which the expression compiles. In it, v is a vector and m a matrix of the type;
/// the other variables are for outputs.
#define TYPES_OF(expression)                                                                      \
  Exists([]<class T>(std::type_identity<T>) {                                                     \
    return requires(TQorVector<T> & v, TQorMatrix<T> & m, T & x, Extended & e, std::uint32_t & i, \
                    bool& b) {                                                                    \
      expression;                                                                                 \
    };                                                                                            \
  })

/// Expects that every routine of the list accepts these types.
inline void ExpectTypes(const std::string& types, const std::vector<std::string>& routines) {
  EXPECT_EQ(routines, std::vector(routines.size(), types));
}

}  // namespace qorvex
