// Saves one document after the other into the file that it is given, from the number of the one that is there, until it
// is killed. Sets the event that it is given when it has begun.
#include <windows.h>

#include "KZXmlDocument.h"
#include "SavedContent.h"

int wmain(int count, wchar_t** arguments)
{
    constexpr int Failed = 3;
    if (count != 3)
        return Failed;
    XmlDocument document(L"configuration");
    if (!document.Load(arguments[1]))
        return Failed;
    const HANDLE begun = ::OpenEventW(EVENT_MODIFY_STATE, FALSE, arguments[2]);
    for (long number = NumberOf(document.Serialize()) + 1;; ++number) {
        if (!document.Parse(ContentOf(number)) || !document.Save(arguments[1]))
            return Failed;
        ::SetEvent(begun);
    }
}
