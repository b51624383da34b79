#include "KZQuorvelantaSetup.h"

#include "../strings/StringIds.h"
#include "HostModule.h"
#include "KZLoadString.h"
#include "KZWideChar.h"

namespace {

struct Model {
    const wchar_t* typeName;
    unsigned textId;
};

constexpr Model Models[] = {
    {L"ZEP", KZ_IDS_MODEL_ZEP},
};

// The folder of the host library itself, which need not be the program's.
std::wstring HostFolder()
{
    std::wstring path(MAX_PATH, L'\0');
    DWORD length = ::GetModuleFileNameW(HostModule(), path.data(), static_cast<DWORD>(path.size()));
    while (length == path.size()) {
        path.resize(path.size() * 2);
        length = ::GetModuleFileNameW(HostModule(), path.data(), static_cast<DWORD>(path.size()));
    }
    path.resize(length);
    return path.substr(0, path.find_last_of(L"\\/") + 1);
}

}  // namespace

struct KZQuorvelantaSetup::State {
    unsigned programIcon = 0;
    KZBasicString imageFolder{HostFolder() + L"images\\"};
    KZLanguage language = KZLanguage::English;
};

KZQuorvelantaSetup::KZQuorvelantaSetup() : m_state(std::make_unique<State>()) {}

KZQuorvelantaSetup::~KZQuorvelantaSetup() = default;

KZQuorvelantaSetup* KZQuorvelantaSetup::Get()
{
    static KZQuorvelantaSetup setup;
    return &setup;
}

unsigned KZQuorvelantaSetup::ProgramIDResource() const noexcept
{
    return m_state->programIcon;
}

void KZQuorvelantaSetup::SetProgramIDResource(unsigned id) noexcept
{
    m_state->programIcon = id;
}

KZBasicString KZQuorvelantaSetup::DriverName(const wchar_t* typeName) const
{
    for (const Model& model : Models)
        if (KZWideChar::Compare(model.typeName, typeName) == 0)
            return KZLoadString(model.textId);
    return typeName;
}

KZBasicString KZQuorvelantaSetup::getImageFilePath() const
{
    return m_state->imageFolder;
}

void KZQuorvelantaSetup::SetImageFilePath(const KZBasicString& folder)
{
    const std::wstring_view path = folder.View();
    const bool open = !path.empty() && path.back() != L'\\' && path.back() != L'/';
    m_state->imageFolder = open ? folder + L"\\" : folder;
}

KZLanguage KZQuorvelantaSetup::Language() const noexcept
{
    return m_state->language;
}

void KZQuorvelantaSetup::SetLanguage(KZLanguage language) noexcept
{
    m_state->language = language;
}
