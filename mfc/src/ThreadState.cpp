#include "ThreadState.h"

namespace {

// A slot of Windows' own: the compiler's thread_local is emulated on this toolchain and several times slower, and every
// message that a window gets asks for it.
const DWORD Slot = ::TlsAlloc();

void DeleteState() noexcept
{
    delete CurrentThreadIfAny();
    ::TlsSetValue(Slot, nullptr);
}

}  // namespace

ThreadState* CurrentThreadIfAny() noexcept
{
    return static_cast<ThreadState*>(::TlsGetValue(Slot));
}

ThreadState& CurrentThread()
{
    if (ThreadState* state = CurrentThreadIfAny())
        return *state;
    auto state = std::make_unique<ThreadState>();
    if (!::TlsSetValue(Slot, state.get()))
        throw std::bad_alloc();
    return *state.release();
}

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID processEnds)
{
    if (reason == DLL_THREAD_DETACH)
        DeleteState();
    if (reason == DLL_PROCESS_DETACH && !processEnds) {
        DeleteState();
        ::TlsFree(Slot);
    }
    return TRUE;
}
