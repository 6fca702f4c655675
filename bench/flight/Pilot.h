#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "bench/driver/Cockpit.h"
#include "bench/flight/FlightLog.h"

namespace bench {

// One step of a flight: who does what, and what is to be seen of it within some seconds.
//
// `who` is a panel, such as "multi1", and does what its console says, without its name. Or it is
//   simulator, panels   "start", "kill", or what their console says
//   orvo                "start", "quit"; shows "window hidden", "window open", "ended with CODE"
//   icon, display       "double click", "remember"; show "as remembered" or "changed"
//   tab, screen         the tab to open, the name of a screenshot
//   window              in the one on top "press BUTTON", also a box or an option, "slider VALUE",
//                       "tab CAPTION", "type TEXT", "list NUMBER ENTRY" of drop-down lists,
//                       "entry ENTRY" and "double click ENTRY" of a list that is open, "keys KEY
//                       KEY" of the keyboard, "close" for its close box, "tile NUMBER" of a BIP
//                       Panel, from 0; the first that is seen, behind "FRAME: " the first in the
//                       frame; "tour NAME CAPTION" for screenshots of the tab and those behind
//                       it; shows the title
//   box, entries        the text of the box on top; the entries of the open list in the window on
//                       top, the selected one in brackets
//   status, profile, aircraft   the status bar, the one in use, the list of those that are bound
//   --                  a headline of the log
struct Step {
    std::string who;             // several, parted by blanks, do and show the same
    std::string act;             // several, parted by ";"; none to look only
    std::string shows = {};      // none when nobody looks
    std::string simulator = {};  // all that it writes to the simulator, "07C8:01000000 ...", or
                                 // "controls" and those that it sends; none when nobody looks
};

inline constexpr char kMultiDark[] = "upper dark lower dark lights none";

// Takes the steps of a flight one after the other.
class Pilot {
  public:
    Pilot(Cockpit& cockpit, const FlightLog& log) : cockpit_(cockpit), log_(log) {}

    // True when every step went as it should. Ends with the first that didn't: the log tells what
    // was done, what was to be seen and what was there instead.
    bool Fly(const std::vector<Step>& steps);

  private:
    bool Take(const std::string& who, const Step& step);
    bool Becomes(const std::string& what, const std::string& wanted,
                 const std::function<std::string()>& look) const;
    std::string Do(const std::string& who, const std::string& act);
    std::string See(const std::string& who);
    void Shoot(const std::string& name) const;
    bool Tour(const std::string& tour) const;

    Cockpit& cockpit_;
    const FlightLog log_;
    std::map<std::string, uint64_t> pictures_;  // those that are remembered
};

}  // namespace bench
