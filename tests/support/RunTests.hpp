#pragma once

/// Runs the tests that GoogleTest has selected and returns the exit status: GoogleTest's own, or 1 if no test was
/// selected. Its messages reach the terminal even while the output of a test is captured.
int runTests();
