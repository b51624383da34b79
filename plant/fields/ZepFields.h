// The table of the ZEP filter, made of the records and rules of its module.
#pragma once

#include <span>

#include "Field.h"
#include "LimitsStore.h"
#include "UnitsRecord.h"

namespace plant {

[[nodiscard]] FieldTable MakeZepFields();

// What one variable of the limits is called in the table and where the module has it.
struct LimitVariablePlace {
    const zep::LimitsTable* table;
    std::size_t index;  // of the variable in that table

    [[nodiscard]] const zep::LimitVariable& Variable() const noexcept { return table->variables[index]; }
};

// Every variable that has limits: the powers, then the harmonics of the net side, then those of the load side.
[[nodiscard]] std::span<const LimitVariablePlace> LimitVariables();

// The place of the variable of that name in them; nothing when none has it.
[[nodiscard]] std::optional<std::size_t> FindLimitVariable(std::wstring_view name);

enum class UnitItem { Scale, Decimals };

}  // namespace plant
