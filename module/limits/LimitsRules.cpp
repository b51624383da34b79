#include "LimitsRules.h"

#include "KZNumber.h"
#include "KZStringIds.h"
#include "StoredNumber.h"

namespace zep {
namespace {

// A broken rule: the field at fault, if the message names one, and why.
struct Fault {
    std::optional<LimitField> field;
    unsigned reason;
};
using Verdict = std::optional<Fault>;

// The numbers of one variable.
class Numbers {
public:
    [[nodiscard]] double& operator[](LimitField field) noexcept { return m_values[static_cast<std::size_t>(field)]; }
    [[nodiscard]] double operator[](LimitField field) const noexcept
    {
        return m_values[static_cast<std::size_t>(field)];
    }
    [[nodiscard]] double Folded(LimitField field) const noexcept { return FoldedPowerFactor((*this)[field]); }

private:
    std::array<double, LimitFieldCount> m_values{};
};

// One variable of a page as the rules see it.
class Entries {
public:
    Entries(const LimitsStore& store, std::size_t variable) noexcept : m_store(store), m_variable(variable)
    {
        for (std::size_t f = 0; f < FieldCount(); ++f) {
            const auto field = static_cast<LimitField>(f);
            m_typed[field] = store.Value({variable, field});
            m_stored[field] = StoredNumber(m_typed[field]).Value();
        }
    }

    [[nodiscard]] bool IsNumber(LimitField field) const { return IsValidNumber(m_store.Text({m_variable, field}), -1); }
    // Whether the numbers break a rule as typed or as stored: a limit of 0.0000001 is above 0, but not in the document.
    template <class IsBroken>
    [[nodiscard]] bool Break(IsBroken isBroken) const noexcept
    {
        return isBroken(m_typed) || isBroken(m_stored);
    }

    [[nodiscard]] std::size_t Variable() const noexcept { return m_variable; }
    [[nodiscard]] std::size_t FieldCount() const noexcept { return m_store.Table().variables[m_variable].fieldCount; }

private:
    const LimitsStore& m_store;
    std::size_t m_variable;
    Numbers m_typed;
    Numbers m_stored;
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
    constexpr auto nominal = LimitField::Nominal;
    if (!entries.IsNumber(nominal))
        return Fault{nominal, KZS_NOT_A_NUMBER};
    const bool isCurrent = entries.Variable() == 0;
    const unsigned reason = isCurrent ? KZS_CURRENT_BELOW_ZERO : KZS_PERCENTAGE_RANGE;
    if (entries.Break([&](const Numbers& n) { return n[nominal] < 0.0 || (!isCurrent && n[nominal] >= 100.0); }))
        return Fault{nominal, reason};
    return std::nullopt;
}

// A harmonic limit may be exactly 100, which a nominal and a power limit may not.
Verdict CheckHarmonicLimit(const Entries& entries, LimitField field)
{
    if (!entries.IsNumber(field))
        return Fault{field, KZS_NOT_A_NUMBER};
    if (entries.Break([&](const Numbers& n) { return n[field] <= 0.0 || n[field] > 100.0; }))
        return Fault{field, KZS_LIMIT_RANGE};
    return std::nullopt;
}

bool InnerIsAboveOuter(const Numbers& numbers) noexcept
{
    return numbers[LimitField::MaxW] > numbers[LimitField::MaxD];
}

Verdict CheckHarmonic(const Entries& entries)
{
    if (const auto fault = CheckHarmonicNominal(entries))
        return fault;
    for (const auto field : {LimitField::MaxD, LimitField::MaxW})
        if (const auto fault = CheckHarmonicLimit(entries, field))
            return fault;
    if (entries.Break(InnerIsAboveOuter))
        return Fault{LimitField::MaxW, KZS_LIMITS_ORDER};
    return std::nullopt;
}

// The range is kept by the outer upper and the inner lower limit alone.
Verdict CheckPowerFactorRanges(const Entries& entries)
{
    constexpr auto nominal = LimitField::Nominal;
    if (entries.Break([](const Numbers& n) { return n[nominal] != 0.0 && n[nominal] != 1.0; }))
        return Fault{nominal, KZS_POWER_FACTOR_NOMINAL};
    for (const auto field : {LimitField::MaxD, LimitField::MinW})
        if (entries.Break([&](const Numbers& n) { return n[field] < -1.0 || n[field] > 1.0; }))
            return Fault{field, KZS_POWER_FACTOR_RANGE};
    return std::nullopt;
}

Verdict CheckPowerFactorOrder(const Entries& entries)
{
    const auto isAbove = [&](LimitField field, LimitField other) {
        return entries.Break([&](const Numbers& n) { return n.Folded(field) > n.Folded(other); });
    };
    if (isAbove(LimitField::MaxW, LimitField::MaxD))
        return Fault{LimitField::MaxW, KZS_LIMITS_ORDER};
    if (isAbove(LimitField::MinD, LimitField::MinW))
        return Fault{LimitField::MinW, KZS_LIMITS_ORDER};
    if (isAbove(LimitField::MinW, LimitField::MaxW))
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
        if (entries.Break([&](const Numbers& n) { return n[field] <= 0.0 || n[field] >= 100.0; }))
            return Fault{field, KZS_LIMIT_RANGE};
    if (entries.Break(InnerIsAboveOuter))
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
