// The C library's numeric locale for the length of a scope.
#pragma once

#include <clocale>
#include <string>

namespace zep {

// The bracket around every exchange between edit boxes and numbers: the user's conventions while it lives, "C"
// afterwards, whatever way the scope is left.
class NumericLocale {
public:
    NumericLocale() noexcept { std::setlocale(LC_NUMERIC, ""); }
    ~NumericLocale() { std::setlocale(LC_NUMERIC, "C"); }
    NumericLocale(const NumericLocale&) = delete;
    NumericLocale& operator=(const NumericLocale&) = delete;
};

// The bracket around reading a document: "C" while it lives, afterwards what was there before. A host may have set any.
class DocumentLocale {
public:
    DocumentLocale() : m_before(std::setlocale(LC_NUMERIC, nullptr)) { std::setlocale(LC_NUMERIC, "C"); }
    ~DocumentLocale() { std::setlocale(LC_NUMERIC, m_before.c_str()); }
    DocumentLocale(const DocumentLocale&) = delete;
    DocumentLocale& operator=(const DocumentLocale&) = delete;

private:
    std::string m_before;
};

}  // namespace zep
