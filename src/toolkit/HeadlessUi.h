#pragma once

#include <functional>
#include <vector>

#include "toolkit/UiBackend.h"

// A back end without a screen: controls have no peers, boxes are kept and answered by a function.
class HeadlessUi : public UiBackend {
  public:
    std::unique_ptr<Peer> MakePeer(Control&) override { return nullptr; }

    MsgBoxResult MsgBox(const MsgBoxRequest& request) override {
        Boxes.push_back(request);
        return Answer ? Answer(request) : MsgBoxResult::Ok;
    }

    std::vector<MsgBoxRequest> Boxes;
    std::function<MsgBoxResult(const MsgBoxRequest&)> Answer;  // without it every box gets OK
};
