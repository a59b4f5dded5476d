#pragma once

/// Everything that a host of its own includes: parameters and their values, plug-ins, networks, and the panel.

#include <bramble/Action.hpp>
#include <bramble/Color.hpp>
#include <bramble/Enum.hpp>
#include <bramble/EnumSelection.hpp>
#include <bramble/FlagList.hpp>
#include <bramble/Info.hpp>
#include <bramble/MultipleStringSelection.hpp>
#include <bramble/ObjectStatus.hpp>
#include <bramble/StringSelection.hpp>
#include <lattice/PluginLoader.hpp>
#include <lattice/TypedParameter.hpp>
#include <network/Network.hpp>
#include <parameters/OnePool.hpp>
#include <parameters/ParameterPanel.hpp>
#include <parameters/SchedulerDriver.hpp>
