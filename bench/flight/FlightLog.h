#pragma once

#include <iostream>
#include <string>

namespace bench {

// What a flight says on standard output, and what it asks of the script around it.
class FlightLog {
  public:
    // `answered`: whether a script reads the log and answers "@shot" lines.
    explicit FlightLog(bool answered) : answered_(answered) {}

    void Say(const std::string& text) const { std::cout << text << std::endl; }
    // Says that a step went well, or what is wrong; gives `well` back.
    bool Check(const std::string& step, bool well, const std::string& found = {}) const {
        Say(well ? "ok      " + step
                 : "WRONG   " + step + (found.empty() ? "" : ", but: " + found));
        return well;
    }
    // Has the screen saved under this name, and waits until that is done.
    void Shot(const std::string& name) const {
        if (!answered_) return;
        Say("@shot " + name);
        std::string answer;
        std::getline(std::cin, answer);
    }

  private:
    bool answered_;
};

}  // namespace bench
