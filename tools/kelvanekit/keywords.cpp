#include "engine/archive/archiveheader.h"
#include "tools/kelvane/contentkind.h"
#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/keyforms.h"

#include <set>

namespace Vorn {

namespace {

void CollectKeys(const std::vector<KeyDescription>& keys, std::set<std::string>& words) {
    for (const KeyDescription& key : keys) {
        if (!key.key.empty()) {
            words.insert(key.key);
        }
        CollectKeys(key.entry, words);
    }
}

void PrintWords(std::string& out, std::string_view kind, const std::set<std::string>& words) {
    for (const std::string& word : words) {
        out.append(kind).append(" ").append(word).append("\n");
    }
}

} // namespace

void PrintKeysAsWords(std::string& out, const KeyModel& model, const KeySelection& selection) {
    std::set<std::string> keys = {ToUtf8(kVersionLabel)};
    for (const std::int32_t record : selection.records) {
        CollectKeys(model.records[static_cast<std::size_t>(record)].keys, keys);
    }
    std::set<std::string> texts = {"Invalid"};
    for (const auto& [name, choices] : model.choices) {
        texts.insert(choices.begin(), choices.end());
    }
    std::set<std::string> endings;
    for (const ContentKindRow& row : ContentKinds()) {
        endings.emplace(row.ending);
    }
    PrintWords(out, "ending", endings);
    PrintWords(out, "key", keys);
    PrintWords(out, "text", texts);
}

} // namespace Vorn
