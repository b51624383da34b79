// A flag that is up for the length of a scope.
#pragma once

class Raised {
public:
    explicit Raised(bool& flag) noexcept : m_flag(flag) { m_flag = true; }
    ~Raised() { m_flag = false; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

private:
    bool& m_flag;
};
