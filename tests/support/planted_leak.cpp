#include <cstdio>
#include <cstdlib>

// A leak that the leak sanitizer must report.
int main() {
    auto* volatile lost = std::malloc(17);
    std::printf("%d\n", lost != nullptr);
    lost = nullptr;
}
