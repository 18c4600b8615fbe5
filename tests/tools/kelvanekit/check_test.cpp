#include "fuzz/damage.h"
#include "gs/entity/support/entitytype.h"
#include "tests/support/casesource.h"
#include "tests/support/tempfolder.h"
#include "tests/tools/kelvanekit/mistakes.h"
#include "tools/kelvane/contentconverter.h"
#include "tools/kelvanekit/check/contentcheck.h"
#include "tools/kelvanekit/check/knownnames.h"
#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/check/writtentext.h"
#include "tools/kelvanekit/findings/findingcodes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

namespace Vorn {

namespace {

namespace fs = std::filesystem;

struct Sample {
    std::string name;
    ContentKind kind;
    std::string bytes;
};

const std::vector<Sample>& Samples() {
    static const std::vector<Sample> samples = [] {
        std::vector<Sample> result;
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(KELVANE_SAMPLES)) {
            if (const auto kind = ContentKindOfFile(entry.path().string()); entry.is_regular_file() && kind) {
                result.push_back({entry.path().filename().string(), *kind, InCurrentVersion(*ReadBytes(entry.path()))});
            }
        }
        std::ranges::sort(result, {}, &Sample::name);
        return result;
    }();
    return samples;
}

const Sample& SampleNamed(std::string_view name) {
    return *std::ranges::find(Samples(), name, &Sample::name);
}

// The sample with the first occurrence of a text replaced.
std::string Edited(std::string_view sample, std::string_view from, std::string_view to) {
    std::string bytes = SampleNamed(sample).bytes;
    const std::size_t place = bytes.find(from);
    EXPECT_NE(place, std::string::npos) << from;
    return bytes.replace(place, from.size(), to);
}

std::string Shown(const Findings& findings) {
    std::string shown;
    for (const Finding& finding : findings) {
        const bool isBinary = finding.place.line == 0;
        shown += std::to_string(isBinary ? finding.place.offset : finding.place.line) + ' ' +
                 std::string(finding.code->name) + ' ' + finding.key + '\n';
    }
    return shown;
}

std::string LastKeyOf(const Finding& finding) {
    const std::string key = finding.key.substr(finding.key.rfind('.') + 1);
    const std::size_t entry = key.rfind('[');
    return key.substr(0, entry == 0 ? std::string::npos : entry);
}

bool IsFound(const Mistake& mistake, const std::vector<Mistake>& all, const Findings& findings) {
    return std::ranges::any_of(mistake.places, [&](const MistakePlace& place) {
        return std::ranges::any_of(findings, [&](const Finding& finding) {
            return finding.place.line == SoundContent::LineOf(place, mistake, all) &&
                   (place.key.empty() || LastKeyOf(finding) == place.key);
        });
    });
}

struct Score {
    int mistakes = 0;
    int found = 0;
    int findings = 0;

    void Check(const Sample& sample, const SoundContent& content, const std::vector<Mistake>& some) {
        const Findings result = CheckContent(sample.kind, content.With(some));
        for (const Mistake& mistake : some) {
            const bool isFound = IsFound(mistake, some, result);
            if (!isFound && ++missedCount <= 10) {
                missed +=
                    sample.name + ' ' + std::to_string(mistake.line + 1) + ' ' + mistake.kind + '\n' + Shown(result);
            }
            ++mistakes;
            found += isFound ? 1 : 0;
        }
        findings += static_cast<int>(result.size());
    }

    void Expect() const {
        EXPECT_GE(found, 0.99 * mistakes) << missed;
        EXPECT_LE(findings, 1.02 * mistakes);
    }

private:
    std::string missed;
    int missedCount = 0;
};

TEST(CheckTest, SamplesHaveNoMistakes) {
    for (const Sample& sample : Samples()) {
        EXPECT_EQ(Shown(CheckContent(sample.kind, sample.bytes)), "") << sample.name;
        std::string plain = sample.bytes.substr(3);
        std::erase(plain, '\r');
        std::erase(plain, '\t');
        EXPECT_EQ(Shown(CheckContent(sample.kind, plain)), "") << sample.name;
    }
}

TEST(CheckTest, SingleMistakesAreFoundWhereTheyAre) {
    constexpr std::size_t kEach = 41;
    Score score;
    std::size_t number = 0;
    for (const Sample& sample : Samples()) {
        const SoundContent content(sample.kind, sample.bytes);
        for (const Mistake& mistake : content.AllMistakes()) {
            if (++number % kEach == 0) {
                score.Check(sample, content, {mistake});
            }
        }
    }
    score.Expect();
}

TEST(CheckTest, ManyMistakesAreFoundInOneGo) {
    Random random(17);
    Score score;
    for (const Sample& sample : Samples()) {
        const SoundContent content(sample.kind, sample.bytes);
        const std::vector<Mistake> all = content.AllMistakes();
        for (int i = 0; i < 4; ++i) {
            std::vector<Mistake> some;
            for (std::size_t k = 0; k < 8 && k < all.size() / 100; ++k) {
                const Mistake& mistake = all[random() % all.size()];
                const bool isApart = std::ranges::all_of(some, [&](const Mistake& other) {
                    return mistake.line > other.line + other.removed + 1 ||
                           other.line > mistake.line + mistake.removed + 1;
                });
                if (isApart) {
                    some.push_back(mistake);
                }
            }
            std::ranges::sort(some, {}, &Mistake::line);
            score.Check(sample, content, some);
        }
    }
    score.Expect();
}

// A verdict without findings means that a conversion to text keeps everything.
TEST(CheckTest, NothingIsLostSilently) {
    constexpr std::uint64_t kSeed = 23;
    Random random(kSeed);
    ContentConverter converter;
    for (const Sample& sample : Samples()) {
        for (int i = 0; i < 6; ++i) {
            const std::string damaged = Damage(sample.bytes, {sample.bytes}, random);
            if (!CheckContent(sample.kind, damaged).empty()) {
                continue;
            }
            EXPECT_EQ(converter.Convert(sample.kind, "x", damaged, FileArchiveType::Text), ConversionResult::Converted);
            const SourceText source(damaged);
            const SourceText written(converter.Bytes());
            EXPECT_TRUE(IsSameText({source.Start(), source.End()}, {written.Start(), written.End()}))
                << sample.name << ' ' << i << " of seed " << kSeed;
        }
    }
}

TEST(CheckTest, BinaryFilesAreChecked) {
    ContentConverter converter;
    const Sample& sample = SampleNamed("frigate_lancer.entity");
    ASSERT_EQ(converter.Convert(sample.kind, "x", sample.bytes, FileArchiveType::Binary), ConversionResult::Converted);
    const std::string binary(converter.Bytes());
    EXPECT_EQ(Shown(CheckContent(sample.kind, binary)), "");
    EXPECT_EQ(Shown(CheckContent(sample.kind, binary + "xyz")), std::to_string(binary.size()) + " trailing-content \n");
    for (std::size_t size = 9; size < binary.size(); ++size) {
        const Findings findings = CheckContent(sample.kind, binary.substr(0, size));
        ASSERT_EQ(findings.size(), 1U) << size << '\n' << Shown(findings);
        EXPECT_TRUE(findings[0].code == Code("truncated") || findings[0].code == Code("count-mismatch")) << size;
        EXPECT_FALSE(findings[0].key.empty());
    }
    std::string odd = binary;
    odd[odd.find("G\0r\0a\0v", 0, 7)] = '"';
    EXPECT_EQ(Shown(CheckContent(sample.kind, odd)),
              "27 not-representable defaultAutoAttackRange\n27 unknown-text defaultAutoAttackRange\n");
}

TEST(CheckTest, ValuesThatAreNotKeptAreTold) {
    const auto check = [](std::string_view sample, std::string_view from, std::string_view to) {
        const std::string& bytes = SampleNamed(sample).bytes;
        const auto line = 1 + std::count(bytes.begin(), bytes.begin() + static_cast<long>(bytes.find(from)), '\n');
        const std::string shown = Shown(CheckContent(SampleNamed(sample).kind, Edited(sample, from, to)));
        const std::string place = std::to_string(line) + ' ';
        EXPECT_TRUE(shown.starts_with(place)) << shown;
        return shown.substr(std::min(place.size(), shown.size()));
    };
    EXPECT_EQ(check("signal-buoy.mesh", "Color 0", "Color ff0000ff"), "not-kept MeshData.Vertex[0].Color\n");
    EXPECT_EQ(check("frigate_lancer.entity", "slotCount 6.000000", "slotCount 6.12345678"),
              "lost-decimals slotCount\n");
    EXPECT_EQ(check("frigate_lancer.entity", "Version 1", "Version 91"), "newer-version ZephArchiveVersion\n");
    EXPECT_EQ(check("frigate_lancer.entity", "AbilityOverchargedLance", "Invalid"), "not-kept ability:0\n");
    EXPECT_EQ(check("signal-buoy.mesh", "TXT2", "TXT2" + std::string(251, ' ')), "line-too-long \n");
    EXPECT_EQ(
        Shown(CheckContent(ContentKind::Mesh, Edited("signal-buoy.mesh", "TXT2", "TXT2" + std::string(250, ' ')))), "");
    EXPECT_EQ(check("starbaseupgrade_armor.entity", "value 0.500000", "value 0.000000"),
              "rewritten stage[0].upgradeProperty[0].value\n");
    EXPECT_EQ(check("signal-buoy.mesh", "iVertex0 0", "iVertex0 36"),
              "index-out-of-range MeshData.Triangle[0].iVertex0\n");
}

TEST(CheckTest, AnotherTypeThanTheKeysHaveIsOneFinding) {
    for (const char* type : {"CapitalShip", "Fleet", "Planet", "Squad", "Weapon", "Frigat", "frigate", "Spaceship"}) {
        const Findings findings = CheckContent(
            ContentKind::Entity, Edited("frigate_lancer.entity", "\"Frigate\"", '"' + std::string(type) + '"'));
        ASSERT_EQ(findings.size(), 1U) << type << '\n' << Shown(findings);
        EXPECT_EQ(findings[0].place.line, 3);
        EXPECT_EQ(findings[0].replacement, "\"Frigate\"");
    }
    EXPECT_EQ(Shown(CheckContent(ContentKind::Entity,
                                 Edited("mission_explore.entity", "\"MissionExplore\"", "\"PlanetConnection\""))),
              "3 wrong-type entityType\n");
}

TEST(CheckTest, AFileThatEndsWithinAKeyIsOneFinding) {
    const std::string& bytes = SampleNamed("frigate_lancer.entity").bytes;
    const std::size_t key = bytes.find("muzzleSoundMinRespawnTime");
    for (const std::size_t length : {1U, 4U, 24U}) {
        for (const char* end : {"", "\r\n"}) {
            EXPECT_EQ(Shown(CheckContent(ContentKind::Entity, bytes.substr(0, key + length) + end)),
                      "32 truncated bombEffectsDef.muzzleSoundMinRespawnTime\n");
        }
    }
}

TEST(CheckTest, ADoubledEntryIsToldFromAWrongCount) {
    const auto check = [](std::string_view from, std::string_view to) {
        return Shown(CheckContent(ContentKind::Entity, Edited("buff_gravity_snare.entity", from, to)));
    };
    EXPECT_EQ(check("object \"Frigate\"", "object \"Frigate\"\r\n\t\tobject \"Frigate\""),
              "26 doubled-line instantAction[1].targetFilter.object\n");
    EXPECT_EQ(check("object \"Frigate\"", "object \"Frigate\"\r\n\t\tobject \"Frigate\"\r\n\t\tobject \"Frigate\""),
              "23 count-mismatch instantAction[1].targetFilter.numObjects\n");
    EXPECT_EQ(check("object \"Frigate\"", "object \"Frigate\"\r\n\t\tobject \"Fighter\""),
              "23 count-mismatch instantAction[1].targetFilter.numObjects\n");
}

TEST(CheckTest, LinesThatWereJoinedAreOneFinding) {
    for (const char* blank : {"", " ", "\t"}) {
        const auto check = [&](std::string_view line, std::string_view next) {
            return Shown(CheckContent(ContentKind::Entity,
                                      Edited("frigate_lancer.entity", std::string(line) + "\r\n" + std::string(next),
                                             std::string(line) + blank + std::string(next))));
        };
        EXPECT_EQ(check("bombingFreqTime 6.000000", "baseRange"), "21 joined-lines baseRange\n");
        EXPECT_EQ(check("hasBombingLevels TRUE", "baseDamage"), "10 joined-lines baseDamage\n");
        EXPECT_EQ(check("defaultAutoAttackRange \"GravityWell\"", "defaultAutoAttackOn"),
                  "4 joined-lines defaultAutoAttackOn\n");
    }
    EXPECT_EQ(Shown(CheckContent(ContentKind::Entity,
                                 Edited("frigate_lancer.entity", "6.000000\r\nbaseRange 4200.000000\r\nbombTransitTime",
                                        "6.000000 baseRange 4200.000000 bombTransitTime"))),
              "21 joined-lines baseRange\n");
}

TEST(CheckTest, WhatOtherToolsLeaveIsExplained) {
    const auto explained = [](const std::string& bytes) {
        const Findings findings = CheckContent(ContentKind::Entity, bytes);
        std::string result = std::to_string(findings.size());
        for (const Finding& finding : findings) {
            result += "; " + finding.message + "; " + finding.help;
        }
        return result;
    };
    const auto edited = [&](std::string_view to) {
        return explained(Edited("frigate_lancer.entity", "baseRange 4200.000000", to));
    };
    EXPECT_EQ(edited("// not farther\r\n# than that\r\nbaseRange 4200").substr(0, 49),
              "2; a comment stands in the way of all keys behind");
    EXPECT_EQ(edited("baseRange 42 // far"),
              "1; `42 // far` is not a number as a whole: `42` is taken, and `// far` is lost; there are no comments: "
              "take it out");
    EXPECT_EQ(edited("<<<<<<< a\r\nbaseRange 1\r\n=======\r\nbaseRange 2\r\n>>>>>>> b").substr(0, 32),
              "2; a merge was not finished here");
    for (const char* attached : {"baseRange = 42", "baseRange: 42", "baseRange42", "baseRange\u00A042"}) {
        EXPECT_EQ(edited(attached),
                  "1; a blank, and nothing else, should stand between the key `baseRange` and its value; ");
    }
    EXPECT_EQ(explained(Edited("frigate_lancer.entity", "\"Siege\"", "\u201CSiege\u201D")),
              "1; `\u201CSiege\u201D` stands in other quotes than \"; write `\"Siege\"`");
    const std::string& sound = SampleNamed("frigate_lancer.entity").bytes;
    EXPECT_EQ(explained(sound + sound.substr(3)),
              "1; content behind the last key is left out; a second file seems to follow: take it out");
    const std::size_t keys = sound.find("entityType");
    EXPECT_EQ(explained(sound.substr(keys)),
              "1; the first line should be `TXT2`; a file begins with `TXT2` and the line of its version");
    std::string returns = sound;
    std::erase(returns, '\n');
    EXPECT_EQ(explained(returns).substr(0, 45), "1; the lines end in a carriage return alone: ");
    EXPECT_EQ(explained("").substr(0, 20), "1; the file is empty");
    EXPECT_EQ(explained({"T\0X\0T\0"
                         "2\0",
                         8})
                  .substr(0, 47),
              "1; the file is no text that can be read: perhap");
}

// Of two keys that take turns the second one may be missing, too: their values tell.
TEST(CheckTest, AKeyWithAnotherValueIsNotTakenForDoubled) {
    const std::string& bytes = SampleNamed("beam-impact.particle").bytes;
    const std::size_t group = bytes.find("\tEmitterContents", bytes.find("\"Ring\""));
    const std::size_t next = bytes.find("\tEmitterType", group);
    const std::string cut = bytes.substr(0, group) + bytes.substr(next);
    const Findings findings = CheckContent(ContentKind::Particle, cut);
    ASSERT_EQ(findings.size(), 1U) << Shown(findings);
    EXPECT_EQ(findings[0].code, Code("missing-section"));
}

// What stands far from where a key of its name is missing has nothing to do with it.
TEST(CheckTest, OnlyWhatStandsNearIsTakenForMoved) {
    std::string bytes = Edited("frigate_lancer.entity", "\tLevel:1 15.000000\r\n", "");
    EXPECT_EQ(Shown(CheckContent(ContentKind::Entity, bytes)), "13 missing-key baseDamage.Level:1\n");
    bytes.insert(bytes.find("BuildTime"), "Level:1 15.000000\r\n");
    EXPECT_EQ(Shown(CheckContent(ContentKind::Entity, bytes)),
              "13 missing-key baseDamage.Level:1\n59 unexpected-line Level:1\n");
}

TEST(CheckTest, NamesAreLookedUp) {
    KnownNames names;
    names.Add(NameKind::Particle, u"FrigateExplosion");
    const Sample& sample = SampleNamed("frigate_hammerfall.entity");
    const Findings findings = CheckContent(sample.kind, sample.bytes, {&names});
    EXPECT_TRUE(std::ranges::any_of(findings, [](const Finding& finding) {
        return finding.key == "ExplosionName" && finding.code == Code("unresolved-name");
    })) << Shown(findings);
}

TEST(CheckTest, ReferencesAreOfTheClassThatTheirKeyWants) {
    const auto classOf = [](EntityType type) { return std::uint64_t{1} << static_cast<int>(type); };
    const Sample& sample = SampleNamed("ability_field_repair.entity");
    const auto check = [&](EntityType type) {
        KnownNames names;
        names.Add(NameKind::Entity, u"BuffFieldRepairAura", classOf(type));
        names.Add(NameKind::Entity, u"BuffFieldRepairAuras", classOf(EntityType::Buff));
        names.Add(NameKind::Entity, u"BuffFieldRepair", classOf(EntityType::Frigate));
        Findings findings = CheckContent(sample.kind, sample.bytes, {&names});
        std::erase_if(findings, [](const Finding& finding) { return finding.code != Code("wrong-class"); });
        return findings;
    };
    EXPECT_EQ(Shown(check(EntityType::Buff)), "");
    const Findings findings = check(EntityType::Frigate);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].key, "buffType");
    EXPECT_EQ(findings[0].message,
              "`BuffFieldRepairAura` is a definition of the class `Frigate`, and the key wants `Buff`");
    EXPECT_EQ(findings[0].replacement, "\"BuffFieldRepairAuras\"");
}

TEST(CheckTest, AMinimumAboveItsMaximumIsReported) {
    const auto check = [](std::string_view minimum) {
        const Sample& sample = SampleNamed("beam-impact.particle");
        const std::string text =
            Edited(sample.name, "MinStartLinearSpeed ", "MinStartLinearSpeed " + std::string(minimum));
        ContentConverter converter;
        converter.Convert(sample.kind, "x", text, FileArchiveType::Binary);
        const std::string binary(converter.Bytes());
        const Findings inText = CheckContent(sample.kind, text);
        const Findings inBinary = CheckContent(sample.kind, binary);
        EXPECT_EQ(inText.size(), inBinary.size());
        return inText.empty() ? "" : std::string(inText[0].code->name) + ' ' + LastKeyOf(inText[0]);
    };
    EXPECT_EQ(check(""), "");
    EXPECT_EQ(check("99"), "unsuitable-value ParticleMinStartLinearSpeed");
}

} // namespace

} // namespace Vorn
