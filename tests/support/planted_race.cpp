#include <cstdio>
#include <thread>

// Two threads that write without a lock: the thread sanitizer must report them.
int main() {
    static int count = 0;
    auto const increase = [] {
        for (auto round = 0; round < 1000; ++round) {
            ++count;
        }
    };
    std::thread first(increase);
    std::thread second(increase);
    first.join();
    second.join();
    std::printf("%d\n", count);
}
