#pragma once

#include <functional>
#include <string>

#include "bench/console/Command.h"
#include "bench/sim/SimState.h"

namespace bench {

// The console commands of the simulator stand-in.
class SimConsole {
  public:
    // `showWindow` makes or takes away the server window; false when it can't.
    SimConsole(SimState& state, std::function<bool(bool)> showWindow)
        : state_(state), showWindow_(std::move(showWindow)) {}

    // One line, beginning with "error:" when the command can't be carried out.
    std::string Answer(const Command& command);

  private:
    std::string Get(const Command& command);
    std::string Set(const Command& command);
    std::string Version(const Command& command);
    std::string Pace(const Command& command);
    std::string Reply(const Command& command);
    std::string Reads() const;
    std::string Ticks();
    std::string Vary(const Command& command);
    std::string Varied() const;
    std::string Written(const Command& command) const;
    std::string Show(bool visible);
    std::string Writes();
    std::string Controls();

    SimState& state_;
    std::function<bool(bool)> showWindow_;
};

}  // namespace bench
