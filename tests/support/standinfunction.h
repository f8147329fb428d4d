#pragma once

#include <windows.h>

// Functions of this program that stand in for the system's, to see what is handed to them.
namespace support {

// While this lives, another function stands in for one of the system's. `entry` is where the code
// of this program finds that: extern void* entry asm("__imp__Name@bytes").
class StandInFunction {
  public:
    template <typename Function>
    StandInFunction(void*& entry, Function* function) : entry_(entry), real_(entry) {
        Enter(reinterpret_cast<void*>(function));
    }
    ~StandInFunction() { Enter(real_); }
    StandInFunction(const StandInFunction&) = delete;
    StandInFunction& operator=(const StandInFunction&) = delete;

    void* Real() const { return real_; }

  private:
    void Enter(void* function) {
        DWORD protection = 0;
        VirtualProtect(&entry_, sizeof entry_, PAGE_READWRITE, &protection);
        entry_ = function;
        VirtualProtect(&entry_, sizeof entry_, protection, &protection);
    }

    void*& entry_;
    void* real_;
};

}  // namespace support
