// How a driver's powers are shown: the driver's "unitSetup" record in the main configuration document.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "DriverSetup.h"
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

inline constexpr const wchar_t* UnitElement = L"unit";
inline constexpr const wchar_t* UnitName = L"name";
// The other named values of a unit, and what they are in a unit that lacks them.
inline constexpr const wchar_t* DecimalsName = L"decimals";
inline constexpr const wchar_t* DecimalsDefault = L"1";
inline constexpr const wchar_t* FactorName = L"factor";
inline constexpr const wchar_t* FactorDefault = L"1";

// Reading is not the mirror image of writing: only a factor of exactly "0" is plain, every other text is kilo-units.
[[nodiscard]] int ScaleOf(const wchar_t* factor) noexcept;
[[nodiscard]] const wchar_t* FactorOf(int scale) noexcept;

inline constexpr SetupList UnitSetups{L"unitSetups", L"unitSetup"};

// Null while the setup lacks the unit.
[[nodiscard]] XmlDocument::XmlNode* FindUnit(const XmlDocument::XmlNode& setup, PowerUnit unit);

// Changes what is given of a unit and nothing else, but for what would read differently without: a driver without a
// record gets one with both units, and a unit that is missing is written whole. The document is not marked dirty.
void ChangeUnit(XmlDocument& configuration, const KZBasicString& driverId, PowerUnit unit, std::optional<int> decimals,
                std::optional<int> scale);

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
    XmlDocument& m_configuration;
    KZBasicString m_driverId;
    XmlDocument::XmlNode* m_setup;  // null while the driver has no record
};

}  // namespace zep
