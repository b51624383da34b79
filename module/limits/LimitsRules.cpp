#include "LimitsRules.h"

#include "KZNumber.h"
#include "KZStringIds.h"

namespace zep {
namespace {

// A broken rule: the field at fault, if the message names one, and why.
struct Fault {
    std::optional<LimitField> field;
    unsigned reason;
};
using Verdict = std::optional<Fault>;

// One variable of a page as the rules see it.
class Entries {
public:
    Entries(const LimitsStore& store, std::size_t variable) noexcept : m_store(store), m_variable(variable) {}

    [[nodiscard]] double operator[](LimitField field) const noexcept { return m_store.Value({m_variable, field}); }
    [[nodiscard]] double Folded(LimitField field) const noexcept { return FoldedPowerFactor((*this)[field]); }
    [[nodiscard]] bool IsNumber(LimitField field) const { return IsValidNumber(m_store.Text({m_variable, field}), -1); }

    [[nodiscard]] std::size_t Variable() const noexcept { return m_variable; }
    [[nodiscard]] std::size_t FieldCount() const noexcept { return m_store.Table().variables[m_variable].fieldCount; }

private:
    const LimitsStore& m_store;
    std::size_t m_variable;
};

// All texts of a variable, in the order of its fields.
Verdict CheckNumbers(const Entries& entries)
{
    for (std::size_t f = 0; f < entries.FieldCount(); ++f)
        if (const auto field = static_cast<LimitField>(f); !entries.IsNumber(field))
            return Fault{field, KZS_NOT_A_NUMBER};
    return std::nullopt;
}

// The fundamental's nominal is a current, every other one a percentage of it.
Verdict CheckHarmonicNominal(const Entries& entries)
{
    if (!entries.IsNumber(LimitField::Nominal))
        return Fault{LimitField::Nominal, KZS_NOT_A_NUMBER};
    const double nominal = entries[LimitField::Nominal];
    if (entries.Variable() == 0)
        return nominal < 0.0 ? Verdict{{LimitField::Nominal, KZS_CURRENT_BELOW_ZERO}} : std::nullopt;
    return nominal < 0.0 || nominal >= 100.0 ? Verdict{{LimitField::Nominal, KZS_PERCENTAGE_RANGE}} : std::nullopt;
}

// A harmonic limit may be exactly 100, which a nominal and a power limit may not.
Verdict CheckHarmonicLimit(const Entries& entries, LimitField field)
{
    if (!entries.IsNumber(field))
        return Fault{field, KZS_NOT_A_NUMBER};
    return entries[field] > 0.0 && entries[field] <= 100.0 ? std::nullopt : Verdict{{field, KZS_LIMIT_RANGE}};
}

Verdict CheckHarmonic(const Entries& entries)
{
    if (const auto fault = CheckHarmonicNominal(entries))
        return fault;
    for (const auto field : {LimitField::MaxD, LimitField::MaxW})
        if (const auto fault = CheckHarmonicLimit(entries, field))
            return fault;
    if (entries[LimitField::MaxW] > entries[LimitField::MaxD])
        return Fault{LimitField::MaxW, KZS_LIMITS_ORDER};
    return std::nullopt;
}

// The range is kept by the outer upper and the inner lower limit alone.
Verdict CheckPowerFactorRanges(const Entries& entries)
{
    if (const double nominal = entries[LimitField::Nominal]; nominal != 0.0 && nominal != 1.0)
        return Fault{LimitField::Nominal, KZS_POWER_FACTOR_NOMINAL};
    for (const auto field : {LimitField::MaxD, LimitField::MinW})
        if (entries[field] < -1.0 || entries[field] > 1.0)
            return Fault{field, KZS_POWER_FACTOR_RANGE};
    return std::nullopt;
}

Verdict CheckPowerFactorOrder(const Entries& entries)
{
    if (entries.Folded(LimitField::MaxW) > entries.Folded(LimitField::MaxD))
        return Fault{LimitField::MaxW, KZS_LIMITS_ORDER};
    if (entries.Folded(LimitField::MinD) > entries.Folded(LimitField::MinW))
        return Fault{LimitField::MinW, KZS_LIMITS_ORDER};
    if (entries.Folded(LimitField::MinW) > entries.Folded(LimitField::MaxW))
        return Fault{LimitField::MinW, KZS_POWER_FACTOR_BANDS};
    return std::nullopt;
}

Verdict CheckPowerFactor(const Entries& entries)
{
    if (const auto fault = CheckNumbers(entries))
        return fault;
    if (const auto fault = CheckPowerFactorRanges(entries))
        return fault;
    return CheckPowerFactorOrder(entries);
}

Verdict CheckPower(const Entries& entries)
{
    if (const auto fault = CheckNumbers(entries))
        return fault;
    for (const auto field : {LimitField::MaxW, LimitField::MaxD})
        if (!(entries[field] > 0.0 && entries[field] < 100.0))
            return Fault{field, KZS_LIMIT_RANGE};
    if (entries[LimitField::MaxW] > entries[LimitField::MaxD])
        return Fault{std::nullopt, KZS_LIMITS_ORDER};
    return std::nullopt;
}

LimitFailure HarmonicFailure(std::size_t row, const Fault& fault)
{
    return {{{KZS_HARMONIC_CURRENTS, {}}, HarmonicLimitLabel(row), {fault.reason, {}}}, LimitCell{row, *fault.field}};
}

LimitFailure PowerFailure(PowerLimit variable, const Fault& fault)
{
    LimitFailure failure{{{PowerLimitTitle(variable), {}}}, std::nullopt};
    if (fault.field)
        failure.lines.push_back({LimitFieldTitle(*fault.field), {}});
    failure.lines.push_back({fault.reason, {}});
    return failure;
}

}  // namespace

LimitMessageLine HarmonicLimitLabel(std::size_t row) noexcept
{
    if (row == 0)
        return {KZS_FUNDAMENTAL, {}};
    return {KZS_HARMONIC_ORDER, HarmonicOrder(static_cast<int>(row))};
}

unsigned PowerLimitTitle(PowerLimit variable) noexcept
{
    constexpr std::array<unsigned, PowerLimitCount> titles{KZS_POWER_FACTOR, KZS_ACTIVE_POWER, KZS_REACTIVE_POWER,
                                                           KZS_APPARENT_POWER};
    return titles[static_cast<std::size_t>(variable)];
}

unsigned LimitFieldTitle(LimitField field) noexcept
{
    constexpr std::array<unsigned, LimitFieldCount> titles{KZS_FIELD_NOMINAL, KZS_FIELD_MAXW, KZS_FIELD_MAXD,
                                                           KZS_FIELD_MINW, KZS_FIELD_MIND};
    return titles[static_cast<std::size_t>(field)];
}

std::optional<LimitFailure> CheckHarmonicLimits(const LimitsStore& store)
{
    for (std::size_t row = 0; row < HarmonicRowCount; ++row)
        if (const auto fault = CheckHarmonic({store, row}))
            return HarmonicFailure(row, *fault);
    return std::nullopt;
}

std::optional<LimitFailure> CheckPowerLimits(const LimitsStore& store)
{
    for (std::size_t v = 0; v < PowerLimitCount; ++v) {
        const auto variable = static_cast<PowerLimit>(v);
        const Entries entries{store, v};
        const auto fault = variable == PowerLimit::PowerFactor ? CheckPowerFactor(entries) : CheckPower(entries);
        if (fault)
            return PowerFailure(variable, *fault);
    }
    return std::nullopt;
}

}  // namespace zep
