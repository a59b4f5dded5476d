#pragma once

/// Everything that a host of its own includes: parameters and their values, plug-ins, networks, and the panel.

#include <bramble/Action.hpp>
#include <bramble/Selection.hpp>
#include <bramble/Values.hpp>
#include <lattice/PluginLoader.hpp>
#include <lattice/TypedParameter.hpp>
#include <network/Network.hpp>
#include <parameters/OnePool.hpp>
#include <parameters/ParameterPanel.hpp>
#include <parameters/SchedulerDriver.hpp>
