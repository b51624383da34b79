// Fields and their values as the user reads them, in his language and number format.
#pragma once

#include <string>

#include "changes/Finding.h"
#include "fields/Field.h"

// "Harmonic 5, Network, Warning"
[[nodiscard]] std::wstring FieldCaption(const plant::Field& field);

// The field that a finding is about; null when it is about something else.
[[nodiscard]] const plant::Field* FindingField(const plant::Finding& finding);

// Where a finding is, in words: the caption of a field, or the name of a document.
[[nodiscard]] std::wstring FindingPlace(const plant::Finding& finding);

// A value of the field, given as fields/FieldValue.h has it: numbers as the dialogs show them, choices in words, the
// members of a set with ", " between them, and a dash for what is empty.
[[nodiscard]] std::wstring FieldValueText(const plant::Field& field, const std::string& value);

// What stands for a value that is empty.
inline constexpr wchar_t NoValue[] = L"–";
