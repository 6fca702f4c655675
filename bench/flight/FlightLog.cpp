#include "bench/flight/FlightLog.h"

#include <iostream>

namespace bench {

void FlightLog::Say(const std::string& text) const { std::cout << text << std::endl; }

bool FlightLog::Check(const std::string& step, bool well, const std::string& found) const {
    Say(well ? "ok      " + step : "WRONG   " + step + (found.empty() ? "" : ", but: " + found));
    return well;
}

void FlightLog::Shot(const std::string& name) const {
    if (!answered_) return;
    Say("@shot " + name);
    std::string answer;
    std::getline(std::cin, answer);
}

}  // namespace bench
