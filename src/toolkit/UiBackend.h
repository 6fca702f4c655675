#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "toolkit/Peer.h"
#include "toolkit/Scale.h"

class Control;
class Form;

enum class MsgBoxIcon { None, Critical, Question, Exclamation, Information };
enum class MsgBoxButtons { Ok, OkCancel };
enum class MsgBoxResult { Ok, Cancel };

struct MsgBoxRequest {
    std::string text;  // lines are separated by "\n"
    std::string title;
    MsgBoxIcon icon = MsgBoxIcon::None;
    MsgBoxButtons buttons = MsgBoxButtons::Ok;
};

// What shows controls and message boxes. It knows which of its forms the user can reach: while a
// modal form or a box is open, only that one.
class UiBackend {
  public:
    UiBackend() = default;
    UiBackend(const UiBackend&) = delete;
    UiBackend& operator=(const UiBackend&) = delete;
    virtual ~UiBackend() = default;

    // May give nothing: the control then works unseen. The peer of a parent is made before those of
    // its children.
    virtual std::unique_ptr<Peer> MakePeer(Control& control) = 0;

    // Shows a box and returns when it is closed; the message loop goes on meanwhile. Closing it by
    // the keyboard's Escape or the close box counts as Cancel where there is one.
    MsgBoxResult MsgBox(const MsgBoxRequest& request);

    virtual Scale ScreenScale() const { return Scale(); }

    // Twips that border and title bar add to the contents of a form that can't be resized.
    struct FrameSize {
        int32_t width;
        int32_t height;
    };
    virtual FrameSize FormFrame() const { return {90, 435}; }

    // Whether something modal stands over the form.
    bool IsBlocked(const Form& form) const;
    // The modal form or box that was opened last is a box.
    bool IsBoxOnTop() const { return !modal_.empty() && !modal_.back(); }
    // The modal form that was opened last, without regard to boxes; null without one.
    Form* ModalForm() const;
    // The form that the user sees on top of the others; null while none is shown.
    Form* ShownForm() const;

  protected:
    virtual MsgBoxResult ShowBox(const MsgBoxRequest& request) = 0;
    // A modal form has been shown, and its loop is about to begin.
    virtual void BeginModal(Form& /*form*/) {}

  private:
    friend class Form;
    void Add(Form& form) { forms_.push_back(&form); }
    void Remove(Form& form);
    void Enter(Form& form);
    void Leave(Form& form);
    // Unloads what stands over the form, the last first.
    void UnloadOver(const Form& form);
    // The modal form that was opened last and isn't closing yet; null without one.
    Form* OpenModalForm() const;
    void FollowBlocked();
    bool IsModal(const Form& form) const;

    std::vector<Form*> forms_;
    std::vector<Form*> modal_;  // in the order of opening; null for a box
};
