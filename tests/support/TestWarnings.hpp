#pragma once

#include "support/TaloTest.hpp"

#include <checker/Recorders.hpp>

using Checker::RecordedWarnings;
