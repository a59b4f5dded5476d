#pragma once

/// Runs the tests that GoogleTest was told to run and gives the process's status: what GoogleTest says, and 1 if no
/// test matched. Its messages reach the terminal also while a test's output is held back.
int runTests();
