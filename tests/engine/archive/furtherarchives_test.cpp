#include "engine/archive/archiveversion.h"
#include "engine/archive/further/bitstreamarchive.h"
#include "engine/archive/further/cachearchive.h"
#include "engine/archive/further/remotestorage.h"
#include "engine/window/brushset.h"
#include "gs/entity/entitysystem.h"
#include "gs/entity/entitytypes.h"
#include "gs/render/particle/particlesimulationdefinition.h"
#include "tests/support/allkinds.h"
#include "tests/support/casesource.h"
#include "tests/support/enginetest.h"

#include <functional>

namespace Vorn {

namespace {

namespace fs = std::filesystem;
using namespace std::literals;

const std::string kTextHeader = CurrentHeader(false);
constexpr std::size_t kBinaryHeaderSize = 9;

// The content of a sample of any kind, which is the name of its folder.
class Content final : public Record {
public:
    Content(EntitySystem& _entities, std::string _kind) : kind(std::move(_kind)), entities(_entities) {}

    void Fields(FieldIo& io) override {
        if (kind == "brushes") {
            brushes.Fields(io);
        } else if (kind == "mesh") {
            io.Record(u"MeshData", mesh);
        } else if (kind == "particle") {
            io.Record(ParticleSimulationDefinition::kLabel, particle);
        } else {
            auto type = static_cast<std::int32_t>(entity != nullptr ? entity->GetEntityType() : EntityType::Invalid);
            io.EnumNumber(u"entityType", type, kEntityTypeTable);
            if (io.Reading()) {
                entity = entities.CreateEntityDef(static_cast<EntityType>(type), u"name");
            }
            entity->Fields(io);
        }
    }

    const std::string kind;

private:
    BrushSet brushes{u""};
    Mesh::Data mesh;
    ParticleSimulationDefinition particle;
    EntitySystem& entities;
    std::unique_ptr<EntityDef> entity;
};

class FurtherArchivesTest : public FileTest {
protected:
    FileArchiveSystem& Archives() { return core->fileArchiveSystem; }

    std::string Written(FileArchiveType form, const std::function<void(Archive&)>& write) {
        FileArchive* archive = Archives().OpenForWrite(NameIn("written"), false, form);
        archive->SetContext(&entities.GetContext());
        write(*archive);
        Archives().Close(archive);
        return ReadBytes(folder.Path() / "written").value_or("");
    }

    std::string Written(FileArchiveType form, const Archivable& content) {
        return Written(form, [&](Archive& archive) { content.Write(archive); });
    }

    // The sum of the file that was read.
    std::uint32_t ReadFile(std::u16string_view name, Archivable& content) {
        FileArchive* archive = Archives().OpenForRead(name, false);
        archive->SetContext(&entities.GetContext());
        content.Read(*archive);
        const std::uint32_t checkSum = archive->GetCheckSum();
        Archives().Close(archive);
        return checkSum;
    }

    void Cache(const Archivable& content) {
        CacheArchive cache(core->fileSystem);
        cache.SetContext(&entities.GetContext());
        EXPECT_TRUE(cache.OpenWriteFile(Put("cache", "")));
        content.Write(cache);
        cache.CloseWriteFile();
    }

    // What the calls in a cache file of these bytes write in text form, its header left out.
    std::string Replayed(std::string_view bytes) {
        const std::u16string name = Put("cache", bytes);
        return Written(FileArchiveType::Text,
                       [&](Archive& archive) { CacheArchive(core->fileSystem).Replay(name, archive); })
            .substr(kTextHeader.size());
    }

    // Calls `test` with the content of a sample, with an empty one of its kind, and with its text form.
    template <class Test>
    void ForEachSample(Test test) {
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(KELVANE_SAMPLES)) {
            if (entry.is_regular_file()) {
                SCOPED_TRACE(entry.path().filename());
                const std::string kind = entry.path().parent_path().filename();
                Content content(entities, kind);
                ReadFile(NameOf(entry.path()), content);
                Content back(entities, kind);
                test(content, back, Written(FileArchiveType::Text, content));
            }
        }
    }

    EntitySystem entities{core->fileArchiveSystem};
};

// An archive without a header gets its version from the test.
TEST_F(FurtherArchivesTest, SamplesThroughBitStreams) {
    ForEachSample([&](const Content& content, Content& back, const std::string& text) {
        BitStreamArchive written;
        written.SetContext(&entities.GetContext());
        content.Write(written);
        BitStreamArchive read(written.GetStream());
        read.SetContext(&entities.GetContext());
        read.SetVersion(kArchiveVersion);
        back.Read(read);
        EXPECT_EQ(Written(FileArchiveType::Text, back), text);
    });
}

TEST_F(FurtherArchivesTest, SamplesThroughRemoteStorage) {
    ForEachSample([&](const Content& content, Content& back, const std::string& text) {
        MemoryStorage storage;
        Archives().SetRemoteStorage(&storage);
        FileArchive* archive = Archives().OpenForWrite(u"", false, FileArchiveType::Steam);
        archive->SetContext(&entities.GetContext());
        content.Write(*archive);
        const std::string binary = Written(FileArchiveType::Binary, content);
        Content fromFile(entities, content.kind);
        EXPECT_EQ(std::string(storage.GetArea(), storage.GetArea() + storage.GetPlace()),
                  binary.substr(kBinaryHeaderSize));
        storage.Rewind();
        archive->SetVersion(kArchiveVersion);
        back.Read(*archive);
        EXPECT_EQ(archive->GetCheckSum() + kArchiveVersion, ReadFile(NameIn("written"), fromFile));
        EXPECT_EQ(Written(FileArchiveType::Text, back), text);
        Archives().Destroy(archive);
        Archives().SetRemoteStorage(nullptr);
    });
}

TEST_F(FurtherArchivesTest, SamplesThroughCaches) {
    ForEachSample([&](const Content& content, Content&, const std::string& text) {
        Cache(content);
        const auto replay = [&](Archive& archive) {
            EXPECT_TRUE(CacheArchive(core->fileSystem).Replay(NameIn("cache"), archive));
        };
        EXPECT_EQ(Written(FileArchiveType::Text, replay), text);
        const std::string direct = Written(FileArchiveType::Binary, content);
        EXPECT_EQ(Written(FileArchiveType::Binary, replay), direct);
    });
}

// A record "r" with the Bool "b" of byte 2 and a text without a label.
constexpr std::string_view kCachedRecord = "\0\0\0\0\1\0\0\0r\0\0\0"
                                           "\6\0\0\0\1\0\0\0b\0\0\0\2"
                                           "\10\0\0\0\0\0\0\0\0\0\2\0\0\0h\0i\0\0\0"
                                           "\1\0\0\0"sv;

TEST_F(FurtherArchivesTest, CacheEntries) {
    struct Cached : Record {
        void Fields(FieldIo& io) override { io.Record(u"r", inner); }

        struct Inner : Record {
            void Fields(FieldIo& io) override {
                io.Bool(u"b", boolean);
                io.String(u"", text);
            }

            Bool boolean = Bool::FromByte(2);
            FixedString<9> text{u"hi"};
        };
        Inner inner;
    };
    Cache(Cached());
    EXPECT_EQ(ReadBytes(folder.Path() / "cache"), kCachedRecord);
    EXPECT_EQ(Replayed(kCachedRecord), "r\r\n\tb TRUE\r\n\t \"hi\"\r\n");
}

TEST_F(FurtherArchivesTest, EveryKindInCaches) {
    const AllKinds all = AllKinds::Filled();
    Cache(all);
    const std::string bytes = ReadBytes(folder.Path() / "cache").value_or("");
    const auto number = [&](std::size_t at) {
        return static_cast<std::size_t>(static_cast<unsigned char>(bytes.at(at)));
    };
    // The tags of the kinds in this order. A value by name is a string, and a record has a tag for its end.
    constexpr std::size_t kString = 8;
    constexpr std::size_t kEnd = 1;
    const std::size_t tags[] = {16, 15, 14, 13, 12, 11, 10, 9, kString, 7, 6, 5, 4, 3, kString, 0, 2, kEnd};
    const std::size_t valueSizes[] = {0, 0, 4, 4, 4, 8, 1, 8, 0, 12, 36, 64, 16, 8, 8, 16, 16};
    std::size_t place = 0;
    for (const std::size_t tag : tags) {
        ASSERT_EQ(number(place), tag);
        place += 4;
        for (int texts = tag == kEnd ? 0 : tag == kString ? 2 : 1; texts > 0; --texts) {
            place += 4 + 2 * (number(place) + 1);
        }
        place += valueSizes[tag];
    }
    EXPECT_EQ(place, bytes.size());
    for (const FileArchiveType form : {FileArchiveType::Text, FileArchiveType::Binary}) {
        EXPECT_EQ(
            Written(form, [&](Archive& archive) { CacheArchive(core->fileSystem).Replay(NameIn("cache"), archive); }),
            Written(form, all));
    }
}

TEST_F(FurtherArchivesTest, EveryKindInBitStreams) {
    const AllKinds all = AllKinds::Filled();
    BitStreamArchive archive;
    all.Write(archive);
    archive.Rewind();
    AllKinds read;
    read.Read(archive);
    EXPECT_EQ(Written(FileArchiveType::Binary, read), Written(FileArchiveType::Binary, all));
    EXPECT_EQ(TakeReports(), Reports(4, Check("false")));
}

TEST_F(FurtherArchivesTest, CachesReadNothing) {
    CacheArchive cache(core->fileSystem);
    AllKinds all = AllKinds::Filled();
    // Only Int, Value and Record are checked.
    all.Read(cache);
    EXPECT_EQ(TakeReports(), Reports(3, Check("false")));
    cache.Read(u"", all.inner.count);
    cache.Read(u"", all.inner.count, 3);
    cache.Read(u"", all.inner, 193);
    EXPECT_EQ(TakeReports(), Reports(3, Check("false")));
    EXPECT_EQ(Written(FileArchiveType::Binary, all), Written(FileArchiveType::Binary, AllKinds::Filled()));
}

TEST_F(FurtherArchivesTest, CacheFiles) {
    {
        CacheArchive cache(core->fileSystem);
        cache.Write(u"dropped", std::int32_t{1});
        EXPECT_TRUE(cache.OpenWriteFile(NameIn("new")));
        EXPECT_EQ(TakeReports(), Reports{Check("bResult == TRUE")});
        fs::permissions(fs::path(NameIn("new")), fs::perms::owner_read);
        EXPECT_TRUE(cache.OpenWriteFile(NameIn("new")));
    }
    EXPECT_EQ(TakeReports(), Reports{Check("writeFile == NULL")});
    EXPECT_EQ(core->fileSystem.OpenCount(), 0);
    EXPECT_EQ(ReadBytes(folder.Path() / "new"), "");
    BitStreamArchive target;
    EXPECT_FALSE(CacheArchive(core->fileSystem).Replay(NameIn("missing"), target));
    EXPECT_EQ(TakeReports(), Reports{"Failed to Open File: '" + Utf8(NameIn("missing")) + "'\n"});
}

TEST_F(FurtherArchivesTest, DamagedCaches) {
    const std::string record(kCachedRecord);
    const std::string unknownTag("\21\0\0\0", 4);
    EXPECT_EQ(Replayed(unknownTag + record), "");
    EXPECT_EQ(Replayed(record.substr(0, 12) + unknownTag + record), "r\r\n");
    EXPECT_EQ(Replayed(record.substr(0, 14)), "r\r\n");
    EXPECT_EQ(Replayed(record.substr(0, 41)), "r\r\n\tb TRUE\r\n\t \"h\"\r\n");
    std::string deep;
    for (int i = 0; i < 5000; ++i) {
        deep += record.substr(0, 12);
    }
    EXPECT_LT(Replayed(deep).size(), 40000u);
    const auto nested = [&](int depth) {
        std::string bytes;
        for (int i = 0; i < depth; ++i) {
            bytes += record.substr(0, 12);
        }
        const std::string replayed = Replayed(bytes + record.substr(12));
        return std::count(replayed.begin(), replayed.end(), '"') > 0;
    };
    // The file itself is the first of 256 levels.
    EXPECT_TRUE(nested(255));
    EXPECT_FALSE(nested(256));
    for (std::size_t size = 0; size < record.size(); ++size) {
        Replayed(record.substr(0, size));
    }
    TakeReports();
}

TEST_F(FurtherArchivesTest, CachedTextsOfAnyLength) {
    const std::u16string text(5000, u'x');
    CacheArchive cache(core->fileSystem);
    cache.OpenWriteFile(Put("cache", ""));
    cache.Write(std::u16string_view(text), text.c_str(), 5001);
    cache.CloseWriteFile();
    const auto replay = [&](Archive& archive) { CacheArchive(core->fileSystem).Replay(NameIn("cache"), archive); };
    EXPECT_EQ(Written(FileArchiveType::Binary, replay).size(), kBinaryHeaderSize + 4 + 10000);
}

TEST_F(FurtherArchivesTest, TheEndOfTheRemoteStorage) {
    MemoryStorage storage;
    Archives().SetRemoteStorage(&storage);
    FileArchive* archive = Archives().OpenForWrite(u"", false, FileArchiveType::Steam);
    const auto goBackFromEnd = [&](std::size_t bytes) {
        storage.Rewind();
        storage.MovePlace(RemoteStorage::kAreaSize - bytes);
    };
    const auto placeFromEnd = [&] { return RemoteStorage::kAreaSize - storage.GetPlace(); };

    goBackFromEnd(10);
    archive->Write(u"", Quad{1.0f, 2.0f, 3.0f, 4.0f});
    EXPECT_EQ(TakeReports(), Reports(2, Check("false")));
    EXPECT_EQ(placeFromEnd(), 2u);
    goBackFromEnd(10);
    Quad quad{9.0f, 9.0f, 9.0f, 9.0f};
    archive->Read(u"", quad);
    EXPECT_EQ(TakeReports(), Reports(2, Check("false")));
    EXPECT_EQ(quad.y, 2.0f);
    EXPECT_EQ(quad.z, 9.0f);
    EXPECT_EQ(placeFromEnd(), 2u);

    goBackFromEnd(10);
    archive->Write(u"", u"four", 9);
    EXPECT_EQ(TakeReports(), Reports{Check("false")});
    EXPECT_EQ(placeFromEnd(), 6u);
    goBackFromEnd(10);
    FixedString<4> text(u"old");
    archive->Read(u"", text.Buffer().m_Buffer, 4);
    EXPECT_EQ(TakeReports(), (Reports{Check("numChars < bufferSize"), Check("false")}));
    EXPECT_EQ(text.View(), u"old");
    EXPECT_EQ(placeFromEnd(), 6u);

    goBackFromEnd(10);
    archive->Write(u"", u"all", 9);
    goBackFromEnd(10);
    archive->Read(u"", text.Buffer().m_Buffer, 4);
    EXPECT_EQ(text.View(), u"all");
    goBackFromEnd(4);
    archive->Write(u"", std::int32_t{2});
    goBackFromEnd(4);
    archive->Read(u"", text.Buffer().m_Buffer, 4);
    EXPECT_EQ(TakeReports(), Reports{Check("false")});
    EXPECT_EQ(text.View(), u"all") << "there is only the count";
    storage.MovePlace(100);
    archive->Write(u"", std::int64_t{1});
    EXPECT_EQ(TakeReports(), Reports{Check("false")});
    Archives().Destroy(archive);
}

} // namespace

} // namespace Vorn
