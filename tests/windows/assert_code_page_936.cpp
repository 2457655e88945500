// Ends with 0 exactly when the ANSI code page is that of a Chinese Windows. The Windows tests mean nothing
// otherwise.
#include <windows.h>

#include <cstdio>

int main() {
  const unsigned codePage = GetACP();
  std::printf("ANSI code page %u\n", codePage);
  return codePage == 936 ? 0 : 1;
}
