// A driver module that imports from a library of its own.
extern "C" __declspec(dllimport) int NeededFunction();

extern "C" __declspec(dllexport) bool InitializeUsrDriver_AAA()
{
    return NeededFunction() == 1;
}
