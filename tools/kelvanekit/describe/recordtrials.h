#pragma once

#include "tools/kelvanekit/describe/contenttrial.h"

#include <deque>
#include <map>
#include <random>
#include <set>

namespace Vorn {

// Finds out on which choices the fields of a record depend: tries each value of each choice by itself, goes on with the
// choices that are new then, and tries each two choices that matter together.
class RecordTrials {
public:
    // The record stands at a place of a content when it is read with these answers.
    RecordTrials(const ContentForm& _form, const Answers& answers, std::uint64_t _place);

    // The first one has every choice at its default. Of choices that do not matter, only that one is there.
    const std::deque<Trial>& All() const { return trials; }

    // The values that end the process.
    const Answers& Refused() const { return refused; }

    // Whether a report that a trial has goes when a choice in a record inside this one changes.
    bool DependsOnParts(const Trial& trial, const DescribedField& report) const;

    // Reports that come when several values do not suit each other, in records inside this one too: found by trying
    // random ones.
    std::set<std::string> FindFurtherReports() const;

    // The least number above `low` with which a number gives the report that it gives with `high`.
    std::int32_t FirstReported(const DescribedField& number, const DescribedField& report, std::int32_t low,
                               std::int32_t high) const;

private:
    void Follow(std::size_t parent, const DescribedFields& known);
    void FindRelated();
    void FindRelatedTo(const Trial& reported, const DescribedField& report);
    Answers RandomAnswers(const Trial& trial, std::mt19937& random) const;
    void TryPairs();
    void TryPair(const DescribedField& first, const DescribedField& second);

    const ContentForm& form;
    const std::uint64_t place;
    std::deque<Trial> trials;
    std::set<std::uint64_t> choicesThatMatter;
    // The trials in which a choice of the first one has another value.
    std::map<std::pair<std::uint64_t, std::int32_t>, std::size_t> singles;
    Answers refused;
};

} // namespace Vorn
