// The document that the saver saves: its whole text follows from its number, so a torn one cannot pass for another.
#pragma once

#include <cstdlib>
#include <string>

// Grows and shrinks from one number to the next, from about 100 bytes to 100 KB.
[[nodiscard]] inline std::string ContentOf(long number)
{
    std::string text = "<configuration>\n  <number>";
    text.append(std::to_string(number)).append("</number>\n");
    const long items = (number * 7919) % 1500;
    for (long item = 0; item < items; ++item) {
        text.append("  <item><id>").append(std::to_string(item)).append("</id><value>");
        text.append(std::to_string(number * item)).append("</value></item>\n");
    }
    return text.append("</configuration>\n");
}

// The number of a text that starts as one of these does; -1 of any other.
[[nodiscard]] inline long NumberOf(const std::string& text)
{
    const std::string start = "<configuration>\n  <number>";
    return text.starts_with(start) ? std::strtol(text.c_str() + start.size(), nullptr, 10) : -1;
}
