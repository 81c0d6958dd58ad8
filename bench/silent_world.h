#pragma once

#include "shell/outside_world.h"

#include <cstdio>

/// A world without a user: what a box would say goes to the error output.
struct SilentWorld : tarnel::OutsideWorld {
    void messageBox(tarnel::BoxKind, const std::string&, const std::string& text) override {
        std::fprintf(stderr, "%s\n", text.c_str());
    }
};
