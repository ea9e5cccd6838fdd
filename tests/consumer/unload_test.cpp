// Loads and unloads each library given as an argument; fails if one stays in memory.

#include <cstdio>
#include <dlfcn.h>

int main(int argc, char** argv) {
  int failures = argc < 2 ? 1 : 0;
  for (int i = 1; i < argc; ++i) {
    void* library = dlopen(argv[i], RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
      std::fprintf(stderr, "cannot be loaded: %s\n", dlerror());
      ++failures;
      continue;
    }
    dlclose(library);
    if (dlopen(argv[i], RTLD_NOW | RTLD_NOLOAD) != nullptr) {
      std::fprintf(stderr, "%s stays loaded\n", argv[i]);
      ++failures;
    }
  }
  return failures;
}
