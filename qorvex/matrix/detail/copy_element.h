#pragma once

#include <cstring>

namespace qorvex::inline QorvexMatrix::detail {

// Copies an element bit by bit. For extended values this is one move through a vector register,
// several times faster than a load and a store of the x87 unit.
template <class T>
inline void CopyElement(const T& from, T& to) noexcept {
  std::memcpy(static_cast<void*>(&to), &from, sizeof(T));
}

}  // namespace qorvex::inline QorvexMatrix::detail
