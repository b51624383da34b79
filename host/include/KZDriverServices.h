// The registry in which driver modules enter their editor-side behaviour, one entry per device class.
#pragma once

#include <afxwin.h>

#include <list>

#include "KZDriver.h"

// Opens something modal for a device. Returns true when the user changed something.
using KZDriverDialogCallback = bool (*)(CWnd* parent, KZDriver* driver);

// Lets the user pick variables of a device.
//   variables     the caller's list of full names: read at start, replaced when the user confirms
//   groups        the variable groups that the caller wants offered
//   maxVariables  the most that may be picked, 0 for no limit
//   text          the caller's own words for the request; may be null
// Returns true when the list was replaced.
using KZSelectVariablesCallback = bool (*)(CWnd* parent, KZDriver* driver, std::list<KZBasicString>& variables,
                                           const KZVariableGroups& groups, int maxVariables, const wchar_t* text);

// Makes the options dialog of a device as a child window of the parent. The caller owns the result; null on failure.
using KZChildOptionsFactory = CDialog* (*)(CWnd* parent, KZDriver* driver);

struct KZDriverCallbacks {
    KZDriverDialogCallback options = nullptr;
    KZSelectVariablesCallback selectVariables = nullptr;
    KZDriverDialogCallback third = nullptr;
    KZChildOptionsFactory createChildOptions = nullptr;  // null until AddCreateChildOptionsDlg
};

class KZ_API KZDriverServices {
public:
    // Records the callbacks for devices of the given run-time class.
    // Returns false, recording nothing, when an argument is null or the class already has its callbacks.
    static bool Add(const CRuntimeClass* deviceClass, KZDriverDialogCallback options,
                    KZSelectVariablesCallback selectVariables, KZDriverDialogCallback third);

    // Records the child-dialog factory of a class that Add has recorded before.
    // Returns false, recording nothing, when an argument is null, the class is unknown or has a factory already.
    static bool AddCreateChildOptionsDlg(const CRuntimeClass* deviceClass, KZChildOptionsFactory factory);

    // The callbacks of a class, or null. The pointer is valid until Remove.
    [[nodiscard]] static const KZDriverCallbacks* Find(const CRuntimeClass* deviceClass) noexcept;

    // Forgets a class, before the module that registered it is freed. Unknown classes are ignored.
    static void Remove(const CRuntimeClass* deviceClass) noexcept;
};
