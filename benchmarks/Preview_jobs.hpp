#pragma once

#include "Jobs.hpp"

/// Jobs of the panel's window with a network that computes a picture: how soon the picture is seen, and whether the
/// window reacts meanwhile. In milliseconds that pass, not of the processor, as the picture is computed by threads.
void addPreviewJobs(std::vector<Job>& jobs);
