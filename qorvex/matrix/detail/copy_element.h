#pragma once

#include <cstring>

namespace qorvex::inline QorvexMatrix::detail {

// Copies the bits of one element to another object. For extended values this is one move through a
// vector register, several times faster than a pass through the floating stack.
template <class T>
inline void CopyElement(const T& from, T& to) noexcept {
  std::memcpy(static_cast<void*>(&to), &from, sizeof(T));
}

}  // namespace qorvex::inline QorvexMatrix::detail
