// The system's loader never unloads it: it has a symbol that must be unique in the process.

#include "PlainEditor.hpp"

template <typename T>
struct __attribute__((visibility("default"))) Unique {
    static int number;
};
template <typename T>
int Unique<T>::number = 1;

int& uniqueNumber() {
    return Unique<int>::number;
}

PLANT(PlainEditor, keeps_itself);
