#pragma once

#include <functional>
#include <vector>

#include "toolkit/Form.h"
#include "toolkit/UiBackend.h"

// A back end without a screen: controls have no peers, boxes are kept and answered by a function,
// and so are modal forms.
class HeadlessUi : public UiBackend {
  public:
    std::unique_ptr<Peer> MakePeer(Control&) override { return nullptr; }
    Scale ScreenScale() const override { return Scale(Dpi); }

    int Dpi = 96;
    std::vector<MsgBoxRequest> Boxes;
    std::function<MsgBoxResult(const MsgBoxRequest&)> Answer;  // without it every box gets OK
    // What the user does in a modal form; without it every one is closed by its close box.
    std::function<void(Form&)> User;

  protected:
    MsgBoxResult ShowBox(const MsgBoxRequest& request) override {
        Boxes.push_back(request);
        return Answer ? Answer(request) : MsgBoxResult::Ok;
    }
    void BeginModal(Form& form) override { User ? User(form) : form.Unload(); }
};
