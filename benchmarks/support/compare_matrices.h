#pragma once

#include <Eigen/Core>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <initializer_list>
#include <random>
#include <string>
#include <vector>

#include "matrix/ublas_peer.h"
#include "qorvex/base/vector_types.h"
#include "support/compare.h"

namespace qorvex::benchmarks {

/// The elements of a square matrix, row by row; the functions below make the matrix of each
/// library.
template <FloatElement T>
std::vector<T> SampleElements(std::size_t order) {
  std::mt19937_64 engine(order);
  std::uniform_real_distribution<Extended> uniform(-1, 1);
  std::vector<T> elements(order * order);
  for (T& x : elements) x = static_cast<T>(uniform(engine));
  return elements;
}

template <FloatElement T>
TQorMatrix<T> OurMatrix(std::size_t order) {
  const auto elements = SampleElements<T>(order);
  auto matrix = TQorMatrix<T>::WithLength(order);
  for (std::size_t i = 0; i < order; ++i) {
    matrix[i] = TQorVector<T>(std::span<const T>(&elements[i * order], order));
  }
  return matrix;
}

template <class T>
using EigenSquare = Eigen::Matrix<T, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

template <FloatElement T>
EigenSquare<T> EigenMatrix(std::size_t order) {
  const auto elements = SampleElements<T>(order);
  const auto size = static_cast<Eigen::Index>(order);
  return Eigen::Map<const EigenSquare<T>>(elements.data(), size, size);
}

inline UblasPeer UblasMatrix(std::size_t order) {
  return UblasPeer(SampleElements<Extended>(order).data(), order);
}

/// Registers work(make(order)) as "routine/type/who/order". It counts as order^power items.
template <FloatElement T, class Make, class Work>
void CompareMatrices(const std::string& routine, const std::string& who,
                     std::initializer_list<std::size_t> orders, int power, Make make, Work work) {
  for (const std::size_t order : orders) {
    const std::string name = routine + "/" + kTypeName<T> + "/" + who + "/" + std::to_string(order);
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
      auto matrix = make(order);
      for (auto _ : state) benchmark::DoNotOptimize(work(matrix));
      std::size_t items = 1;
      for (int i = 0; i < power; ++i) items *= order;
      state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(items));
    });
  }
}

}  // namespace qorvex::benchmarks
