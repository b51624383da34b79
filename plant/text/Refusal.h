// Why the plant does not do something: a text of the application's, with what goes into it.
#pragma once

#include <exception>
#include <string>
#include <utility>
#include <vector>

#include "PlantTextIds.h"

namespace plant {

struct Message {
    unsigned text;  // IDS_PLANT_…
    std::vector<std::wstring> arguments;
};

// Thrown by every operation of the plant that is not carried out. Unless the operation says otherwise, all that was
// there before is untouched.
class Refusal : public std::exception {
public:
    explicit Refusal(unsigned text, std::vector<std::wstring> arguments = {}) : m_message{text, std::move(arguments)} {}
    [[nodiscard]] const Message& What() const noexcept { return m_message; }
    [[nodiscard]] const char* what() const noexcept override { return "refused"; }

private:
    Message m_message;
};

}  // namespace plant
