#include "tests/files/failing_allocation.h"

#include <cstdlib>
#include <new>

int servedAllocations = -1;

void* operator new(size_t size) {
  const bool fails = servedAllocations >= 0 && servedAllocations-- == 0;
  void* const memory = fails ? nullptr : std::malloc(size > 0 ? size : 1);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, size_t) noexcept { std::free(memory); }
