// Another system colour for as long as the object lives.
#pragma once

#include <windows.h>

namespace kztest {

// The system tells all top-level windows of it.
class SystemColour {
public:
    SystemColour(int index, COLORREF colour) : m_index(index), m_before(::GetSysColor(index)) { Set(colour); }
    ~SystemColour() { Set(m_before); }
    SystemColour(const SystemColour&) = delete;
    SystemColour& operator=(const SystemColour&) = delete;

private:
    void Set(COLORREF colour) const { ::SetSysColors(1, &m_index, &colour); }

    int m_index;
    COLORREF m_before;
};

}  // namespace kztest
