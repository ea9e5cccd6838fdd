// Aborts if long double does not compute with 64 bits of mantissa. In emulators such as valgrind,
// or with a lower precision in the x87 control word, all results of the library would silently be
// wrong.

#include <cstdio>
#include <cstdlib>

// Static links request this file by the name, since no other file refers to it.
extern "C" [[gnu::constructor]] void qorvex_probe_extended_precision() {
  const volatile long double one = 1.0L;
  const volatile long double last_bit = 0x1p-63L;
  const volatile long double sum = one + last_bit;
  if (sum != one) return;
  static_cast<void>(std::fputs(
      "qorvex: long double does not compute with 64 bits of mantissa here (an emulator such as "
      "valgrind, or a changed "
      "x87 control word); results would be wrong\n",
      stderr));
  std::abort();
}
