// Repeats something that is to leave nothing behind, and looks at what it has left.
#pragma once

#include <functional>

#include "StaticControls.h"

class Repetition {
public:
    // Does it in so many rounds, or in those of the long run, after some that make what stays. A round returns how many
    // blocks of memory it knows to be left.
    void Repeat(const std::function<long()>& round, long shortRun = 25) const;

private:
    long long m_bytesPerStatic = BytesLeftByAStaticControl();
};
