#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

// A listener's place in an Event. Copies stand for the same place; it may outlive the event.
class Connection {
  public:
    Connection() = default;
    explicit Connection(std::weak_ptr<bool> alive) : alive_(std::move(alive)) {}

    // The listener is not called again, not even later in a raise that is under way.
    void Disconnect() {
        if (auto alive = alive_.lock()) *alive = false;
        alive_.reset();
    }

  private:
    std::weak_ptr<bool> alive_;
};

// Disconnects when it goes away: for listeners that may end before the event does.
class ScopedConnection {
  public:
    ScopedConnection() = default;
    ScopedConnection(Connection connection) : connection_(std::move(connection)) {}
    ScopedConnection(ScopedConnection&& other) noexcept
        : connection_(std::exchange(other.connection_, {})) {}
    ScopedConnection& operator=(ScopedConnection&& other) noexcept {
        if (this != &other) {
            connection_.Disconnect();
            connection_ = std::exchange(other.connection_, {});
        }
        return *this;
    }
    ScopedConnection(const ScopedConnection&) = delete;
    ScopedConnection& operator=(const ScopedConnection&) = delete;
    ~ScopedConnection() { connection_.Disconnect(); }

  private:
    Connection connection_;
};

// A list of listeners, called in the order of connecting. While it is being raised a listener may
// connect and disconnect any listener, raise the event again, or destroy the event's owner. The
// listeners that were connected at the start and still are get the call, new ones from the next
// raise on; none after the owner is gone. Raising allocates nothing.
template <class... Args>
class Event {
  public:
    Event() : state_(std::make_shared<State>()) {}
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;
    ~Event() { state_->ownerGone = true; }

    Connection Connect(std::function<void(Args...)> listener) {
        auto slot = std::make_shared<Slot>(Slot{true, std::move(listener)});
        state_->slots.push_back(slot);
        return Connection(std::weak_ptr<bool>(std::shared_ptr<bool>(slot, &slot->alive)));
    }

    void Raise(Args... args) {
        const std::shared_ptr<State> state = state_;
        const size_t count = state->slots.size();
        ++state->raising;
        for (size_t i = 0; i < count && !state->ownerGone; ++i) {
            const std::shared_ptr<Slot> slot = state->slots[i];
            if (slot->alive) slot->call(args...);
        }
        if (--state->raising == 0) {
            std::erase_if(state->slots, [](const auto& slot) { return !slot->alive; });
        }
    }

  private:
    struct Slot {
        bool alive;
        std::function<void(Args...)> call;
    };
    struct State {
        std::vector<std::shared_ptr<Slot>> slots;
        int raising = 0;
        bool ownerGone = false;
    };
    std::shared_ptr<State> state_;
};
