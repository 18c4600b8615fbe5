#pragma once

#include "tools/kelvanekit/describe/keymodel.h"

#include <span>
#include <string>

namespace Vorn {

// What of the reference is put out: the records, and of a single one the keys with this path and those in them.
struct KeySelection {
    std::vector<std::int32_t> records;
    std::string path;
    // The whole reference.
    bool isAll = false;
};

// A form of the reference.
struct KeyForm {
    std::string_view name;
    void (*print)(std::string& out, const KeyModel& model, const KeySelection& selection);
    bool hasReports = true;
};

std::span<const KeyForm> KeyForms();

// The reference in each of the forms.
void PrintKeysAsText(std::string& out, const KeyModel& model, const KeySelection& selection);
void PrintKeysAsMarkdown(std::string& out, const KeyModel& model, const KeySelection& selection);
void PrintKeysAsHtml(std::string& out, const KeyModel& model, const KeySelection& selection);
void PrintKeysAsJson(std::string& out, const KeyModel& model, const KeySelection& selection);

// The endings of content files, all keys and all texts, each in a line behind its kind, for colours in editors.
void PrintKeysAsWords(std::string& out, const KeyModel& model, const KeySelection& selection);

} // namespace Vorn
