#include "qorvex/base/dyn_array.h"

#ifdef __linux__
#include <cstdint>
#include <sys/mman.h>
#endif

namespace qorvex {

void PreferLargePages([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t bytes) noexcept {
#if defined(__linux__) && defined(MADV_HUGEPAGE)
  // The whole pages within the memory. If the system refuses, the pages are just smaller.
  constexpr std::uintptr_t page = 4096;
  const auto first = reinterpret_cast<std::uintptr_t>(memory);
  const std::uintptr_t begin = (first + page - 1) / page * page;
  const std::uintptr_t end = (first + bytes) / page * page;
  if (begin < end) {
    static_cast<void>(::madvise(reinterpret_cast<void*>(begin), end - begin, MADV_HUGEPAGE));
  }
#endif
}

}  // namespace qorvex
