#pragma once

#include <utility>

// A value of a control. Assigning a different value tells the owner, so that its native
// counterpart follows; assigning the same value is silent.
template <class T, class Owner>
class Property {
  public:
    Property(Owner& owner, T initial) : value_(std::move(initial)), owner_(owner) {}
    Property(const Property&) = delete;
    Property& operator=(const Property&) = delete;

    template <class U>
    Property& operator=(U&& value) {
        if (value_ == value) return *this;
        value_ = std::forward<U>(value);
        owner_.NotifyChanged();
        return *this;
    }

    operator const T&() const { return value_; }
    const T& Get() const { return value_; }

  private:
    T value_;
    Owner& owner_;
};
