// What the host program tells its modules about itself: icon, image folder, language, names of the device models.
#pragma once

#include <memory>

#include "KZBasicString.h"

enum class KZLanguage { English, Spanish };

class KZ_API KZQuorvelantaSetup {
public:
    // The one set-up of the process; never null. The first call makes it and throws std::bad_alloc when there is no
    // memory.
    [[nodiscard]] static KZQuorvelantaSetup* Get();

    // Resource id of the program's icon (RT_GROUP_ICON), 0 while the program has set none.
    [[nodiscard]] unsigned ProgramIDResource() const noexcept;
    void SetProgramIDResource(unsigned id) noexcept;

    // The display name of a device model, by the driver's type name; an unknown type name is its own display name,
    // so that a title always names something.
    [[nodiscard]] KZBasicString DriverName(const wchar_t* typeName) const;

    // The folder of the host's images, ending in a separator, so that a file name is appended directly.
    // Until the program sets one: the folder "images" beside the host library.
    [[nodiscard]] KZBasicString getImageFilePath() const;
    // A separator is added when the folder lacks one; the empty folder is the current one.
    void SetImageFilePath(const KZBasicString& folder);

    // The language of the host's texts; English until set.
    [[nodiscard]] KZLanguage Language() const noexcept;
    void SetLanguage(KZLanguage language) noexcept;

    KZQuorvelantaSetup(const KZQuorvelantaSetup&) = delete;
    KZQuorvelantaSetup& operator=(const KZQuorvelantaSetup&) = delete;

private:
    KZQuorvelantaSetup();
    ~KZQuorvelantaSetup();
    struct State;
    std::unique_ptr<State> m_state;
};
