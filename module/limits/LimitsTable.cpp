#include "LimitsTable.h"

namespace zep {
namespace {

const std::array<LimitVariable, PowerLimitCount> PowerVariables{{
    {L"PF", LimitKind::PowerFactor, LimitFieldCount},
    {L"AP", LimitKind::Power},
    {L"RP", LimitKind::Power},
    {L"VA", LimitKind::Power},
}};

// ARM1AN to ARM25AN on the net side.
class HarmonicLimits {
public:
    explicit HarmonicLimits(Side side)
    {
        for (int row = 0; row < HarmonicRowCount; ++row)
            m_variables[static_cast<std::size_t>(row)].name = HarmonicCode(row) + SideLetter(side);
        m_variables.front().kind = LimitKind::Fundamental;
    }

    [[nodiscard]] const LimitsTable& Table() const noexcept { return m_table; }

private:
    std::array<LimitVariable, HarmonicRowCount> m_variables;
    LimitsTable m_table{m_variables, L"0", L"1", LimitSaving::WhenModified};
};

}  // namespace

constexpr LimitsTable PowerLimitsTable{PowerVariables, L"0.0", L"1.0", LimitSaving::Always};

const LimitsTable& HarmonicLimitsTable(Side side)
{
    static const HarmonicLimits net(Side::Net);
    static const HarmonicLimits load(Side::Load);
    return (side == Side::Net ? net : load).Table();
}

}  // namespace zep
