// Why an operation of the plant was refused.
#pragma once

#include "text/Refusal.h"

namespace kztest {

// The text is 0 when nothing was refused.
template <class Operation>
[[nodiscard]] plant::Message RefusalOf(Operation operation)
{
    try {
        static_cast<void>(operation());
    } catch (const plant::Refusal& refusal) {
        return refusal.What();
    }
    return {};
}

// The id of its text alone.
template <class Operation>
unsigned Refused(Operation operation)
{
    return RefusalOf(operation).text;
}

}  // namespace kztest
