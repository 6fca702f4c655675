#pragma once

#include <string>

namespace bench {

// What a flight says on standard output, and what it asks of the script around it.
class FlightLog {
  public:
    // `answered`: whether a script reads the log and answers "@shot" lines.
    explicit FlightLog(bool answered) : answered_(answered) {}

    void Say(const std::string& text) const;
    // Says that a step went well, or what is wrong; gives `well` back.
    bool Check(const std::string& step, bool well, const std::string& found = {}) const;
    // Has the screen saved under this name, and waits until that is done.
    void Shot(const std::string& name) const;

  private:
    bool answered_;
};

}  // namespace bench
