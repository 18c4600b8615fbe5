#include "tests/tools/kelvanekit/keyfiles.h"
#include "tools/kelvane/contentconverter.h"
#include "tools/kelvanekit/check/contentcheck.h"
#include "tools/kelvanekit/describe/keyrows.h"
#include "tools/kelvanekit/describe/newcontent.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace Vorn {

namespace {

// A wanted value may be one that is reported.
std::string Describe(const Findings& findings, const std::vector<WantedValue>& wanted) {
    std::string text;
    for (const Finding& finding : findings) {
        if (!wanted.empty() && finding.key.ends_with(wanted.front().key)) {
            continue;
        }
        text += std::to_string(finding.place.line) + ": " + finding.key + ": " + finding.message + '\n';
    }
    return text;
}

void ExpectSound(const ContentForm& form, const std::vector<WantedValue>& wanted) {
    SCOPED_TRACE(form.name + (wanted.empty() ? "" : ' ' + wanted.front().key + ' ' + wanted.front().text));
    const std::string text = MakeContent(form, wanted);
    EXPECT_EQ(Describe(CheckContent(form.kind, text), wanted), "") << text;
    ContentConverter converter;
    EXPECT_EQ(converter.Convert(form.kind, "new", text, FileArchiveType::Text), ConversionResult::Converted);
    EXPECT_EQ(converter.Bytes(), text);
}

const ContentForm& FormNamed(std::string_view name) {
    static const std::vector<ContentForm> forms = ContentForms();
    return *std::ranges::find(forms, name, &ContentForm::name);
}

std::string ProblemOf(std::string_view form, const std::vector<WantedValue>& wanted) {
    try {
        return MakeContent(FormNamed(form), wanted);
    } catch (const WantedProblem& problem) {
        return problem.text;
    }
}

TEST(NewTest, ContentsOfAllClassesAreSound) {
    const std::vector<ContentForm> forms = ContentForms();
    EXPECT_EQ(forms.size(), 48U);
    for (const ContentForm& form : forms) {
        ExpectSound(form, {});
    }
}

TEST(NewTest, PartsOfEachKindAreSound) {
    const KeyModel& model = AllKeys();
    for (const char* kinds : {"ParticleEmitter::Type", "ParticleAffector::Type"}) {
        const std::string key = kinds == std::string("ParticleEmitter::Type") ? "EmitterType" : "AffectorType";
        std::vector<WantedValue> all;
        for (const std::string& text : model.choices.at(kinds)) {
            const std::string problem = ProblemOf("particle", {{key, text}});
            if (problem.starts_with("a conversion ends")) {
                continue;
            }
            all.push_back({key, text});
            ExpectSound(FormNamed("particle"), {all.back()});
        }
        EXPECT_EQ(all.size(), key == "EmitterType" ? 3U : 11U);
        ExpectSound(FormNamed("particle"), all);
    }
}

// Each value on which other keys depend, of long enumerations some.
TEST(NewTest, EachBranchIsSound) {
    constexpr std::size_t kMostOfOneKey = 5;
    const KeyModel& model = AllKeys();
    std::map<std::string, std::set<std::string>> done;
    for (const ContentForm& form : ContentForms()) {
        for (const KeyRow& row : RowsOf(model, FindRecord(model, form.name), RowDetail::All).keys) {
            // What lies in a second branch would need the first one too.
            if (row.when.values.size() != 1 || row.key->when.values.empty()) {
                continue;
            }
            const KeyValues& values = row.when.values.front();
            for (const std::string& text : values.texts) {
                std::set<std::string>& texts = done[values.key];
                if (text != "Invalid" && texts.size() < kMostOfOneKey && !texts.contains(text) &&
                    ProblemOf(form.name, {{values.key, text}}).starts_with("\xEF\xBB\xBF")) {
                    texts.insert(text);
                    ExpectSound(form, {{values.key, text}});
                }
            }
        }
    }
    EXPECT_GT(done.size(), 15U);
}

TEST(NewTest, WhatCannotBeIsSaid) {
    EXPECT_EQ(ProblemOf("Frigate", {{"hasLevel", "TRUE"}}),
              "no key 'hasLevel' that others depend on; did you mean `hasLevels`?");
    EXPECT_EQ(ProblemOf("Frigate", {{"hasLevels", "true"}}), "'true' is neither TRUE nor FALSE");
    EXPECT_EQ(ProblemOf("Frigate", {{"armorType", "light"}}), "'light' is no text of armorType; did you mean `Light`?");
    EXPECT_EQ(ProblemOf("Frigate", {{"NumWeapons", "-1"}}), "'-1' is no whole number that NumWeapons can have");
    EXPECT_EQ(ProblemOf("brushes", {{"content", "Invalid"}}),
              "`content \"Invalid\"` does not stay with the defaults of the keys that depend on it");
    EXPECT_EQ(ProblemOf("particle", {{"EmitterType", "MeshSurface"}}),
              "a conversion ends with 'EmitterType MeshSurface'");
}

} // namespace

} // namespace Vorn
