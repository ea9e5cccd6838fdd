#include "support/failing_allocation.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace qorvex::testing {

int allocations_left = -1;
std::size_t largest_allocation = SIZE_MAX;

}  // namespace qorvex::testing

namespace {

void* Allocate(std::size_t size, std::size_t alignment) {
  using qorvex::testing::allocations_left;
  if (size > qorvex::testing::largest_allocation) throw std::bad_alloc();
  if (allocations_left >= 0 && allocations_left-- == 0) throw std::bad_alloc();
  const std::size_t whole = (size + alignment - 1) / alignment * alignment;
  void* const memory = std::aligned_alloc(alignment, whole);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

}  // namespace

void* operator new(std::size_t size) {
  return Allocate(size, alignof(std::max_align_t));
}
void* operator new(std::size_t size, std::align_val_t alignment) {
  return Allocate(size, static_cast<std::size_t>(alignment));
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  try {
    return operator new(size);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}
// The default forms call the ones above, but those of the address sanitizer do not.
void* operator new[](std::size_t size) {
  return operator new(size);
}
void operator delete[](void* memory) noexcept {
  operator delete(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
  operator delete(memory);
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::align_val_t) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept {
  std::free(memory);
}
