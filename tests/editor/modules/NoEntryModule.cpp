// A library that is no driver module: it has no initialisation entry.
extern "C" __declspec(dllexport) int SomethingElse()
{
    return 0;
}
