// Nothing but bytes: what loading a library of this size costs at least.
extern "C" __declspec(dllexport) const char Contents[170'000] = {1};
