#pragma once

#include <array>
#include <cstddef>
#include <memory_resource>

namespace qorvex::inline QorvexMatrix::detail {

// Memory for the tables of one reduction. Those of a small matrix take none from the heap, where
// that would take as long as the arithmetic.
class SmallMemory {
 public:
  [[nodiscard]] std::pmr::memory_resource* get() noexcept { return &resource_; }

 private:
  std::array<std::byte, 4096> buffer_;
  std::pmr::monotonic_buffer_resource resource_{buffer_.data(), buffer_.size()};
};

}  // namespace qorvex::inline QorvexMatrix::detail
