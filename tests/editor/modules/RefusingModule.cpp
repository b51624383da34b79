// A module whose entry answers false.
extern "C" __declspec(dllexport) bool InitializeUsrDriver_ZEP()
{
    return false;
}
