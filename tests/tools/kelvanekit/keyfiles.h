#pragma once

#include "tools/kelvanekit/describe/keymodel.h"

#include <nlohmann/json.hpp>

#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace Vorn {

// The reference, which takes a while to make.
const KeyModel& AllKeys();

// What is wrong with one key of a file on purpose.
enum class Flaw { None, ListTooLong, TextTooLong, TextUnknown };

// Whether a conversion ends where a key has its flaw.
bool EndsIfFlawed(const nlohmann::json& key);

// Writes text files by the JSON form of the key reference alone: random values in range, and those first that were not
// written before.
class KeyFiles {
public:
    using Json = nlohmann::json;

    KeyFiles(const Json& _reference, unsigned seed) : reference(_reference), random(seed) {
        for (const Json& record : reference.at("records")) {
            records[record.at("name")] = &record;
        }
    }

    // The lines of a file of a version. The flaw is at all places that have not had it; one that ends the conversion is
    // alone.
    std::vector<std::string> Write(const Json& file, int version, Flaw flaw);

    // Where the last file has its flaw.
    const std::vector<const Json*>& FlawedKeys() const { return flawed; }

    // What was written so far: keys of records by their address, with the texts of choices.
    const std::set<const Json*>& Written() const { return written; }
    const std::map<const Json*, std::set<std::string>>& Texts() const { return texts; }

    // Reports that may come of the last file, as values of several keys do not suit each other.
    const std::set<std::string>& PossibleReports() const { return possibleReports; }

    const Json& RecordNamed(const std::string& name) const { return *records.at(name); }

private:
    // The values of the keys in a record so far; the latest one of a key counts.
    using Values = std::vector<std::pair<std::string, std::string>>;

    void WriteRecord(const Json& record, int depth);
    void WriteKeys(const Json& keys, const Json& record, int depth, Values& values);
    void WriteKey(const Json& key, const Json& record, int depth, Values& values);
    void WriteList(const Json& key, const Json& record, int depth, Values& values);
    void WriteKeyedList(const Json& key, const Json& record, int depth, Values& values);
    const Json& ChoiceOf(const Json& entry) const;
    int CountOf(const Json& key, const Json& record, Values& values);
    std::string ValueOf(const Json& key);
    std::string Choose(const Json& key);
    std::string Allowed(const Json& key, const Json& record, Values& values);
    bool Stands(const Json& key, const Values& values) const;
    bool IsReported(const Json& record, const std::string& key, const Values& values) const;
    static bool Holds(const Json& condition, const Values& values);
    bool TakeFlaw(const Json& key, Flaw kind);
    int Number(int first, int last) { return std::uniform_int_distribution<int>(first, last)(random); }
    std::string Float(bool isAngle);
    std::string Floats(int count);
    void Put(int depth, const std::string& line) {
        lines.push_back(std::string(static_cast<std::size_t>(depth), '\t') + line);
    }

    const Json& reference;
    std::mt19937 random;
    std::map<std::string, const Json*> records;
    std::vector<std::string> lines;
    int version = 0;
    Flaw flaw = Flaw::None;
    std::vector<const Json*> flawed;
    std::set<std::pair<Flaw, const Json*>> flawsDone;
    // The text that the next choice has to have, as the entry of a list that is kept in the order of the texts.
    std::string keyedText;
    bool isKeyed = false;
    std::set<const Json*> written;
    std::map<const Json*, std::set<std::string>> texts;
    std::set<std::string> possibleReports;
};

} // namespace Vorn
