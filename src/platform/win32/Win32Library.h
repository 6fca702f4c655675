#pragma once

#include <windows.h>

// Owns a DLL that is loaded while the program runs.
class Win32Library {
  public:
    // The system looks beside the executable first.
    explicit Win32Library(const wchar_t* fileName) : module_(LoadLibraryW(fileName)) {}
    Win32Library(const Win32Library&) = delete;
    Win32Library& operator=(const Win32Library&) = delete;
    ~Win32Library() {
        if (module_) FreeLibrary(module_);
    }

    // Sets the function pointer; to null when the library or the function in it can't be had.
    template <class Function>
    void Find(const char* name, Function*& function) const {
        const FARPROC found = module_ ? GetProcAddress(module_, name) : nullptr;
        function = reinterpret_cast<Function*>(reinterpret_cast<void*>(found));
    }

  private:
    HMODULE module_;
};
