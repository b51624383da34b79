#include "LimitsRules.h"

#include <algorithm>
#include <cmath>

#include "KZNumber.h"
#include "KZStringIds.h"
#include "StoredNumber.h"

namespace zep {
namespace {

struct RangeRule {
    LimitField field;
    LimitBounds bounds;
    unsigned textId;
};

// The inner limit must not lie above the outer one.
struct OrderRule {
    LimitField inner;
    LimitField outer;
    LimitFault fault;
};

struct LimitRules {
    std::span<const RangeRule> ranges;  // in the order in which they are told
    std::span<const OrderRule> orders;
    bool allNumbersFirst;  // before any range, in the order of the fields
    bool isFolded = false;
};

// The range is kept by the outer upper and the inner lower limit alone.
constexpr LimitBounds ZeroOrOne{.lowest = 0.0, .highest = 1.0, .onlyEndsAreIn = true};
constexpr LimitBounds PowerFactorBounds{.lowest = -1.0, .highest = 1.0};
constexpr RangeRule PowerFactorRanges[] = {
    {LimitField::Nominal, ZeroOrOne, KZS_POWER_FACTOR_NOMINAL},
    {LimitField::MaxD, PowerFactorBounds, KZS_POWER_FACTOR_RANGE},
    {LimitField::MinW, PowerFactorBounds, KZS_POWER_FACTOR_RANGE},
};
constexpr OrderRule PowerFactorOrders[] = {
    {LimitField::MaxW, LimitField::MaxD, {LimitField::MaxW, KZS_LIMITS_ORDER}},
    {LimitField::MinD, LimitField::MinW, {LimitField::MinW, KZS_LIMITS_ORDER}},
    {LimitField::MinW, LimitField::MaxW, {LimitField::MinW, KZS_POWER_FACTOR_BANDS}},
};

constexpr LimitBounds PowerBounds{.lowest = 0.0, .highest = 100.0, .lowestIsIn = false, .highestIsIn = false};
constexpr RangeRule PowerRanges[] = {
    {LimitField::MaxW, PowerBounds, KZS_LIMIT_RANGE},
    {LimitField::MaxD, PowerBounds, KZS_LIMIT_RANGE},
};
constexpr OrderRule PowerOrders[] = {
    {LimitField::MaxW, LimitField::MaxD, {LimitField::MaxW, KZS_LIMITS_ORDER, false}},
};

// A harmonic limit may be exactly 100, which a nominal and a power limit may not.
constexpr LimitBounds HarmonicBounds{.lowest = 0.0, .highest = 100.0, .lowestIsIn = false};
// The fundamental's nominal is a current, every other one a percentage of it.
constexpr RangeRule FundamentalRanges[] = {
    {LimitField::Nominal, {.lowest = 0.0}, KZS_CURRENT_BELOW_ZERO},
    {LimitField::MaxD, HarmonicBounds, KZS_LIMIT_RANGE},
    {LimitField::MaxW, HarmonicBounds, KZS_LIMIT_RANGE},
};
constexpr RangeRule HarmonicRanges[] = {
    {LimitField::Nominal, {.lowest = 0.0, .highest = 100.0, .highestIsIn = false}, KZS_PERCENTAGE_RANGE},
    {LimitField::MaxD, HarmonicBounds, KZS_LIMIT_RANGE},
    {LimitField::MaxW, HarmonicBounds, KZS_LIMIT_RANGE},
};
constexpr OrderRule HarmonicOrders[] = {
    {LimitField::MaxW, LimitField::MaxD, {LimitField::MaxW, KZS_LIMITS_ORDER}},
};

const LimitRules& RulesOf(LimitKind kind) noexcept
{
    static constexpr std::array<LimitRules, 4> rules{{
        {PowerFactorRanges, PowerFactorOrders, true, true},
        {PowerRanges, PowerOrders, true},
        {FundamentalRanges, HarmonicOrders, false},
        {HarmonicRanges, HarmonicOrders, false},
    }};
    return rules[static_cast<std::size_t>(kind)];
}

// The limits of one variable as typed and as stored: 0.0000001 is above 0, but not in the document.
class Limits {
public:
    explicit Limits(const LimitValues& typed) noexcept : m_typed(typed)
    {
        std::transform(typed.begin(), typed.end(), m_stored.begin(),
                       [](double value) { return StoredNumber(value).Value(); });
    }

    [[nodiscard]] bool IsNumber(LimitField field) const noexcept { return !std::isnan(Of(m_typed, field)); }

    [[nodiscard]] bool Keep(const RangeRule& rule) const noexcept
    {
        return rule.bounds.Hold(Of(m_typed, rule.field)) && rule.bounds.Hold(Of(m_stored, rule.field));
    }

    [[nodiscard]] bool Keep(const OrderRule& rule, bool isFolded) const noexcept
    {
        return IsInOrder(m_typed, rule, isFolded) && IsInOrder(m_stored, rule, isFolded);
    }

private:
    [[nodiscard]] static double Of(const LimitValues& values, LimitField field) noexcept
    {
        return values[static_cast<std::size_t>(field)];
    }
    [[nodiscard]] static bool IsInOrder(const LimitValues& values, const OrderRule& rule, bool isFolded) noexcept
    {
        const double inner = Of(values, rule.inner);
        const double outer = Of(values, rule.outer);
        return isFolded ? !(FoldedPowerFactor(inner) > FoldedPowerFactor(outer)) : !(inner > outer);
    }

    LimitValues m_typed;
    LimitValues m_stored{};
};

// What the page's edit boxes hold of a variable.
LimitValues EnteredValues(const LimitsStore& store, std::size_t variable)
{
    LimitValues values{};
    for (std::size_t f = 0; f < store.Table().variables[variable].fieldCount; ++f) {
        const LimitCell cell{variable, static_cast<LimitField>(f)};
        const bool isNumber = IsValidNumber(store.Text(cell), -1);
        values[f] = isNumber ? store.Value(cell) : std::numeric_limits<double>::quiet_NaN();
    }
    return values;
}

LimitFailure HarmonicFailure(std::size_t row, const LimitFault& fault)
{
    return {{{KZS_HARMONIC_CURRENTS, {}}, HarmonicLimitLabel(row), {fault.textId, {}}}, LimitCell{row, fault.field}};
}

LimitFailure PowerFailure(PowerLimit variable, const LimitFault& fault)
{
    LimitFailure failure{{{PowerLimitTitle(variable), {}}}, std::nullopt};
    if (fault.namesField)
        failure.lines.push_back({LimitFieldTitle(fault.field), {}});
    failure.lines.push_back({fault.textId, {}});
    return failure;
}

}  // namespace

bool LimitBounds::Hold(double value) const noexcept
{
    if (onlyEndsAreIn)
        return value == lowest || value == highest;
    return (lowestIsIn ? value >= lowest : value > lowest) && (highestIsIn ? value <= highest : value < highest);
}

const LimitBounds* BoundsOf(LimitKind kind, LimitField field) noexcept
{
    for (const RangeRule& rule : RulesOf(kind).ranges)
        if (rule.field == field)
            return &rule.bounds;
    return nullptr;
}

std::vector<LimitFault> JudgeLimits(const LimitVariable& variable, const LimitValues& values)
{
    const LimitRules& rules = RulesOf(variable.kind);
    const Limits limits(values);
    std::vector<LimitFault> faults;
    for (std::size_t f = 0; rules.allNumbersFirst && f < variable.fieldCount; ++f)
        if (const auto field = static_cast<LimitField>(f); !limits.IsNumber(field))
            faults.push_back({field, KZS_NOT_A_NUMBER});
    for (const RangeRule& rule : rules.ranges) {
        const bool isNumber = limits.IsNumber(rule.field);
        if (!isNumber && !rules.allNumbersFirst)
            faults.push_back({rule.field, KZS_NOT_A_NUMBER});
        else if (isNumber && !limits.Keep(rule))
            faults.push_back({rule.field, rule.textId});
    }
    if (!faults.empty())
        return faults;
    for (const OrderRule& rule : rules.orders)
        if (!limits.Keep(rule, rules.isFolded))
            faults.push_back(rule.fault);
    return faults;
}

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

std::optional<LimitFailure> CheckLimits(const LimitsStore& store)
{
    const auto& variables = store.Table().variables;
    for (std::size_t v = 0; v < variables.size(); ++v)
        if (const auto faults = JudgeLimits(variables[v], EnteredValues(store, v)); !faults.empty())
            return &store.Table() == &PowerLimitsTable ? PowerFailure(static_cast<PowerLimit>(v), faults.front())
                                                       : HarmonicFailure(v, faults.front());
    return std::nullopt;
}

}  // namespace zep
