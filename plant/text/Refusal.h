// Why the plant does not do something: a text of the application's or of the host's, with what goes into it.
#pragma once

#include <exception>
#include <string>
#include <utility>
#include <vector>

#include "PlantTextIds.h"

namespace plant {

struct Message {
    unsigned text;  // IDS_PLANT_…, or KZS_… where the device's own dialogs say it
    std::vector<std::wstring> arguments;
    std::vector<int> numbers = {};  // what a text of the host takes

    friend bool operator==(const Message&, const Message&) = default;
};

// Whether the sentence is the application's.
[[nodiscard]] constexpr bool IsPlantText(unsigned text) noexcept
{
    return text >= 3000 && text < 4000;
}

// Thrown by every operation of the plant that is not carried out. Unless the operation says otherwise, all that was
// there before is untouched.
class Refusal : public std::exception {
public:
    explicit Refusal(unsigned text, std::vector<std::wstring> arguments = {})
        : m_message{text, std::move(arguments), {}}
    {
    }
    explicit Refusal(Message message) noexcept : m_message(std::move(message)) {}
    [[nodiscard]] const Message& What() const noexcept { return m_message; }
    [[nodiscard]] const char* what() const noexcept override { return "refused"; }

private:
    Message m_message;
};

}  // namespace plant
