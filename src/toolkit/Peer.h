#pragma once

// The native counterpart of a control. It belongs to the control and ends with it.
class Peer {
  public:
    virtual ~Peer() = default;

    // Takes over what has changed in the control. What the native control echoes back while it
    // follows must not reach the control again.
    virtual void Follow() = 0;

    // Brings a window that is shown to the front, also when it is minimised.
    virtual void Activate() {}
};
