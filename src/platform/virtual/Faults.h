#pragma once

#include <limits>
#include <map>

// How often which call of a virtual port is still to be refused.
template <class Call>
class Faults {
  public:
    static constexpr int kAlways = std::numeric_limits<int>::max();

    // The next `times` calls are refused; 0 takes an earlier order back.
    void Refuse(Call call, int times = kAlways) { left_[call] = times; }

    // True when this call is one of those to refuse.
    bool Take(Call call) {
        const auto found = left_.find(call);
        if (found == left_.end() || found->second == 0) return false;
        if (found->second != kAlways) --found->second;
        return true;
    }

  private:
    std::map<Call, int> left_;
};
