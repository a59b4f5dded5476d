#pragma once

#include <checker/WheelTurn.hpp>

using Checker::turnWheel;
