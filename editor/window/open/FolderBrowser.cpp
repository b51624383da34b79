#include "FolderBrowser.h"

#include <shobjidl.h>

#include <memory>

namespace {

struct ReleaseObject {
    void operator()(IUnknown* object) const noexcept { object->Release(); }
};

template <class Interface>
using Object = std::unique_ptr<Interface, ReleaseObject>;

class ComApartment {
public:
    ComApartment() noexcept : m_isOpen(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    ~ComApartment()
    {
        if (m_isOpen)
            ::CoUninitialize();
    }
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;

private:
    bool m_isOpen;
};

Object<IFileOpenDialog> MakeDialog()
{
    void* dialog = nullptr;
    ::CoCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER, IID_IFileOpenDialog, &dialog);
    return Object<IFileOpenDialog>(static_cast<IFileOpenDialog*>(dialog));
}

void BeginIn(IFileOpenDialog& dialog, const std::wstring& folder)
{
    void* item = nullptr;
    if (SUCCEEDED(::SHCreateItemFromParsingName(folder.c_str(), nullptr, IID_IShellItem, &item))) {
        const Object<IShellItem> begin(static_cast<IShellItem*>(item));
        dialog.SetFolder(begin.get());
    }
}

std::wstring ChosenIn(IFileOpenDialog& dialog)
{
    IShellItem* item = nullptr;
    if (FAILED(dialog.GetResult(&item)))
        return {};
    const Object<IShellItem> chosen(item);
    wchar_t* path = nullptr;
    if (FAILED(chosen->GetDisplayName(SIGDN_FILESYSPATH, &path)))
        return {};
    const std::unique_ptr<wchar_t, decltype(&::CoTaskMemFree)> owned(path, ::CoTaskMemFree);
    return path;
}

}  // namespace

std::wstring BrowseForFolder(const CWnd& owner, const std::wstring& begin)
{
    const ComApartment apartment;
    const Object<IFileOpenDialog> dialog = MakeDialog();
    if (!dialog || FAILED(dialog->SetOptions(FOS_PICKFOLDERS | FOS_FORCEFILESYSTEM)))
        return {};
    if (!begin.empty())
        BeginIn(*dialog, begin);
    return SUCCEEDED(dialog->Show(owner.m_hWnd)) ? ChosenIn(*dialog) : std::wstring();
}
