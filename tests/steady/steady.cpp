// Steady play allocates nothing: counts the allocations of 10,000 plays.
#include "core/bank.h"
#include "core/start.h"
#include "panel/stillworld.h"
#include "screens/dispatch.h"

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <new>

namespace {
long allocations = 0;
} // namespace

void* operator new(std::size_t size) {
    ++allocations;
    if (void* const memory = std::malloc(size))
        return memory;
    std::abort();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

// Presses start, stops whatever runs, takes the easy way out of the board, until so many plays are
// made or the machine has stood still for too long.
int play_on(hustle::game& g, int plays) {
    using namespace hustle;
    int made = 0;
    for (int idle = 0; made < plays && idle < 1000000; ++idle) {
        const single before = g.m.credits;
        for (const element button :
             {element::hold1, element::stopper, element::feature_collect, element::feature_stopfeature,
              element::feature_cashbutton, element::start})
            apply(g, {.what = input::kind::press, .on = button});
        if (g.m.credits < before) {
            ++made;
            idle = 0;
        }
        g.m.credits = 20;
        deliver(g, g.p.now + 50);
    }
    return made;
}

} // namespace

int main() {
    using namespace hustle;
    stillworld world;
    auto g = std::make_unique<game>(world);
    reset_game(*g, 43200000);
    boot(*g);
    deliver(*g, 1000);
    play_on(*g, 2000); // the texts have found their size
    const long before = allocations;
    const int made = play_on(*g, 10000);
    std::printf("%d plays, %ld allocations\n", made, allocations - before);
    return made == 10000 && allocations == before ? 0 : 1;
}
