#pragma once

#include "support/TaloTest.hpp"

#include <lattice/ActionNotifier.hpp>

/// Records the host's warnings.
class RecordedWarnings : public Kolt::VActionNotifier {
public:
    void onWarning(std::string const& text) override { texts.push_back(text); }
    std::vector<std::string> texts;
};
