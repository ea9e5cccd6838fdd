#pragma once

#include <cstddef>
#include <vector>

namespace qorvex::testing {

/// The lengths of vectors for which kernels are compared with plain loops: all small ones, and
/// large ones beside and between the sizes of blocks.
inline std::vector<std::size_t> KernelLengths() {
  std::vector<std::size_t> lengths;
  for (std::size_t n = 1; n <= 300; ++n) lengths.push_back(n);
  for (const std::size_t n :
       {511U, 513U, 1'023U, 1'025U, 2'100U, 4'095U, 4'097U, 10'007U, 20'000U}) {
    lengths.push_back(n);
  }
  return lengths;
}

}  // namespace qorvex::testing
