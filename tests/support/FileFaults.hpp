#pragma once

#include <string>

/// While this lives, the calls of the system by which this thread opens, writes, flushes, renames, links and closes
/// files are counted, and one of them fails as on a broken disk ("Input/output error"). A close that fails closes the
/// file nevertheless, as the system does. At most one lives at a time. The program must be linked with FileFaults.cpp,
/// whose functions stand before those of the system for all its libraries.
class FileFault {
public:
    /// The call with this number fails, from 1; none fails if it is 0.
    explicit FileFault(int number);
    ~FileFault();
    FileFault(FileFault const&) = delete;
    FileFault& operator=(FileFault const&) = delete;

    /// The number of calls so far.
    static int count();
    /// The name of the function that failed; empty if none did.
    static std::string failedCall();
};
