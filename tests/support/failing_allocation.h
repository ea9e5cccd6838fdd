#pragma once

/// @file
/// Replaces operator new[], so that an allocation of working memory fails on demand. For one source
/// file of a program.

#include <new>

/// So many more allocations succeed; all of them while it is negative.
static int array_allocations_left = -1;

void* operator new[](std::size_t size) {
  if (array_allocations_left == 0) throw std::bad_alloc();
  if (array_allocations_left > 0) --array_allocations_left;
  return operator new(size);
}
void operator delete[](void* memory) noexcept {
  operator delete(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
  operator delete(memory);
}
