#pragma once

#include <memory>
#include <string>

#include "toolkit/Peer.h"

class ComboBox;
class CommandButton;
class Container;
class Control;
class Form;
class Frame;
class Label;
class Line;
class Picture;
class Shape;
class StatusBar;
class TabStrip;

// Tells the kinds of control apart.
class ControlVisitor {
  public:
    virtual ~ControlVisitor() = default;

    virtual void Visit(Form& form) = 0;
    virtual void Visit(Container& container) = 0;
    virtual void Visit(Frame& frame) = 0;
    virtual void Visit(Picture& picture) = 0;
    virtual void Visit(CommandButton& button) = 0;
    virtual void Visit(ComboBox& box) = 0;
    virtual void Visit(Label& label) = 0;
    virtual void Visit(Shape& shape) = 0;
    virtual void Visit(Line& line) = 0;
    virtual void Visit(TabStrip& tabs) = 0;
    virtual void Visit(StatusBar& bar) = 0;
};

enum class MsgBoxIcon { None, Critical, Question, Exclamation, Information };
enum class MsgBoxButtons { Ok, OkCancel };
enum class MsgBoxResult { Ok, Cancel };

struct MsgBoxRequest {
    std::string text;  // lines are separated by "\n"
    std::string title;
    MsgBoxIcon icon = MsgBoxIcon::None;
    MsgBoxButtons buttons = MsgBoxButtons::Ok;
};

// What shows controls and message boxes.
class UiBackend {
  public:
    virtual ~UiBackend() = default;

    // May give nothing: the control then works unseen. The peer of a parent is made before those of
    // its children.
    virtual std::unique_ptr<Peer> MakePeer(Control& control) = 0;

    // Shows a box and returns when it is closed; the message loop goes on meanwhile. Closing it by
    // the keyboard's Escape or the close box counts as Cancel where there is one.
    virtual MsgBoxResult MsgBox(const MsgBoxRequest& request) = 0;
};
