#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "toolkit/Peer.h"
#include "toolkit/Property.h"

class Container;
class UiBackend;

// Colours are 0xBBGGRR, or those of the system by number: 0x8000000F is the face of its buttons.
using Color = uint32_t;

// What every control has. A control is a plain object that works without a screen; when its form is
// realized on a back end, a peer shows it.
//
// An operation that a user does (Press, Choose, Type...) does nothing while the control can't be
// reached; setting the value does. Both raise the same event, once.
class Control {
  public:
    // The parent must outlive the control.
    explicit Control(Container* parent);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control();

    // Twips, relative to the parent.
    Property<int32_t, Control> Left{*this, 0};
    Property<int32_t, Control> Top{*this, 0};
    Property<int32_t, Control> Width{*this, 0};
    Property<int32_t, Control> Height{*this, 0};
    Property<bool, Control> Visible{*this, true};
    Property<bool, Control> Enabled{*this, true};
    // What the control says. In that of a button, an option or a check box the letter behind an "&"
    // reaches it by the keyboard. Lists, tab strips and the like have none.
    Property<std::string, Control> Caption{*this, {}};
    Property<std::string, Control> ToolTip{*this, {}};

    void Move(int32_t left, int32_t top, int32_t width, int32_t height);

    Container* Parent() const { return parent_; }
    Peer* GetPeer() const { return peer_.get(); }

    // Whether the control and all that it lies in are enabled.
    bool IsEnabled() const;
    // Whether the control and all that it lies in are visible.
    bool IsShown() const;
    // Whether the user can reach it: it and all that it lies in are enabled and visible, and
    // nothing modal stands over its form. A form that isn't shown counts as if it were.
    virtual bool TakesActs() const;

    // Makes the peers that this control and what it holds don't have yet.
    virtual void Realize(UiBackend& ui);

    // Something has changed: the peer follows.
    void NotifyChanged();

  protected:
    // Width or Height has changed.
    virtual void Resized() {}
    // Enabled has changed.
    virtual void EnabledChanged() {}

  private:
    friend class Container;

    Container* parent_;
    std::unique_ptr<Peer> peer_;
    int32_t lastWidth_ = 0;
    int32_t lastHeight_ = 0;
    bool lastEnabled_ = true;
};
