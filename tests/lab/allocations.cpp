// Counts what the program allocates.
#include <cstdlib>
#include <new>

extern std::size_t allocations;
std::size_t allocations = 0;

void* operator new(std::size_t size) {
    ++allocations;
    if (void* const p = std::malloc(size))
        return p;
    throw std::bad_alloc();
}
void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }
