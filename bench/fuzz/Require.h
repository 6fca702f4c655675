#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

// What must hold whatever the input is.
inline void Require(bool holds, int line = __builtin_LINE()) {
    if (holds) return;
    std::fprintf(stderr, "line %d doesn't hold\n", line);
    std::abort();
}

// Nothing to complain of.
inline void RequireEmpty(const std::string& complaint) {
    if (complaint.empty()) return;
    std::fprintf(stderr, "%s\n", complaint.c_str());
    std::abort();
}
