#pragma once

#include <functional>
#include <string>

#include "bench/virtual/Choices.h"
#include "toolkit/HeadlessUi.h"

// A user who does anything at all in whatever window or box is open, by the operations that a user
// has. Modal windows that open meanwhile are used and closed by him as well.
class RandomUser {
  public:
    // Takes over what `ui` asks of its user. All must outlive it.
    RandomUser(HeadlessUi& ui, Choices& choices);

    // One act at a control that can be reached.
    void Act(Form& form);

    std::function<void()> Meanwhile;  // goes on between his acts
    uint32_t MostActs = 30;           // in one modal window
    // Told what he is going to say to a box. With false he cancels it instead.
    std::function<bool(const MsgBoxRequest&, MsgBoxResult)> MaySay;

  private:
    void Use(Form& form);
    void Close(Form& form);
    MsgBoxResult Answer(const MsgBoxRequest& request);
    void PassTime() {
        if (Meanwhile) Meanwhile();
    }
    void PressKey(Form& form);
    void Work(Control& control);
    std::string Text();

    Choices& choices_;
};
