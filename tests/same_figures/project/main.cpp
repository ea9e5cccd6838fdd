#include <cstdio>

#include "apps/common/self_test.h"

int main() {
  using namespace qorvex::apps;
  const FigureHash hash = HashOfFigures();
  std::printf("%016llx; the release has %016llx\n",
              static_cast<unsigned long long>(hash.Value()),
              static_cast<unsigned long long>(kReleaseHash));
  return hash.Value() == kReleaseHash ? 0 : 1;
}
