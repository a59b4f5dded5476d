#pragma once

#include <checker/Recorders.hpp>

using Checker::RecordedWarnings;
