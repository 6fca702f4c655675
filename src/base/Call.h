#pragma once

#include <cstddef>
#include <new>
#include <type_traits>

// A call to be made later, with what it needs kept in place: a few numbers and addresses. Making,
// copying and dropping one allocates nothing.
class Call {
  public:
    template <class Function>
    requires(!std::is_same_v<Function, Call>) explicit Call(Function function)
        : run_([](const std::byte* kept) {
              (*std::launder(reinterpret_cast<const Function*>(kept)))();
          }) {
        static_assert(sizeof(Function) <= kSize && alignof(Function) <= alignof(void*));
        static_assert(std::is_trivially_copyable_v<Function>);
        new (kept_) Function(function);
    }

    void operator()() const { run_(kept_); }

  private:
    static constexpr size_t kSize = 32;

    void (*run_)(const std::byte*);
    alignas(void*) std::byte kept_[kSize]{};
};
