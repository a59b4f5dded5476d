#include <climits>
#include <cstdio>

// An overflow that the undefined-behaviour sanitizer must report.
int main() {
    int volatile number = INT_MAX;
    std::printf("%d\n", number + 1);
}
