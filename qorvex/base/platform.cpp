// Refuses to run where long double does not compute with 64 bits of mantissa: emulators (valgrind
// among them) and code that lowers the precision of the x87 control word would make every figure of
// the library quietly wrong.

#include <cstdio>
#include <cstdlib>

// The name lets a static link ask for this file, which nothing else would.
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
