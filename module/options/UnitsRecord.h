// How a driver's powers are shown: the driver's "unitSetup" record in the main configuration document.
#pragma once

#include <array>
#include <cstddef>

#include "KZBasicString.h"
#include "KZXmlDocument.h"

namespace zep {

// Active and apparent power share one unit; reactive power has its own.
enum class PowerUnit { ActiveApparent, Reactive };
inline constexpr std::size_t PowerUnitCount = 2;
inline constexpr std::array<const wchar_t*, PowerUnitCount> PowerUnitNames{L"AP-VA", L"RP"};

inline constexpr int DecimalsChoiceCount = 4;  // 0 to 3 decimals

// Whether a number of decimals has a radio of its own.
[[nodiscard]] constexpr bool IsDecimalsChoice(int decimals) noexcept
{
    return decimals >= 0 && decimals < DecimalsChoiceCount;
}

// One unit as its two radio groups show it: the index of the checked radio, -1 when none is checked.
struct UnitChoice {
    static constexpr int Kilo = 0;
    static constexpr int Plain = 1;

    int decimals = 1;
    int scale = Plain;

    friend bool operator==(const UnitChoice&, const UnitChoice&) noexcept = default;
};

using UnitChoices = std::array<UnitChoice, PowerUnitCount>;

class UnitsRecord {
public:
    // Looks up the driver's record in the main configuration document, which must outlive this object.
    UnitsRecord(XmlDocument& configuration, const KZBasicString& driverId);

    // The choices as the document holds them; a unit that it lacks has the default choice. A number of decimals that
    // has no radio is returned as it stands.
    [[nodiscard]] UnitChoices Read() const;

    // Writes both units, creating what is missing, and marks the document dirty. Throws std::bad_alloc when memory runs
    // out, the document being as it was then.
    void Write(const UnitChoices& choices);

private:
    [[nodiscard]] XmlDocument::XmlNode& NewSetup() const;

    XmlDocument& m_configuration;
    KZBasicString m_driverId;
    XmlDocument::XmlNode* m_setup;  // null while the driver has no record
};

}  // namespace zep
