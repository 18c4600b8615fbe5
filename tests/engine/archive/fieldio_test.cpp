#include "engine/archive/record.h"
#include "engine/core/abnormalend.h"
#include "tests/support/archivetest.h"

#include <numeric>

namespace Vorn {

namespace {

using Numbers = std::vector<std::int32_t>;

// Reads "count" and as many "n" in both forms, and what follows them.
class ListTest : public ArchiveTest {
protected:
    template <class Transfer>
    Numbers ReadList(std::int32_t count, Transfer transfer) {
        Numbers result;
        for (const FileArchiveType form : {FileArchiveType::Text, FileArchiveType::Binary}) {
            const std::string source = Written(form, [&](FieldIo& io) {
                io.WriteCount(u"count", count);
                for (std::int32_t i = 0; i < count; ++i) {
                    io.Int(u"n", i);
                }
                std::int32_t behind = 77;
                io.Int(u"behind", behind);
            });
            std::int32_t behind = 0;
            Numbers numbers;
            Read(std::string(form == FileArchiveType::Text ? kTextHeader : kBinaryHeader) + source, [&](FieldIo& io) {
                numbers = transfer(io);
                io.Int(u"behind", behind);
            });
            EXPECT_EQ(behind, 77) << "the fields behind the list line up";
            EXPECT_TRUE(result.empty() || result == numbers);
            result = numbers;
        }
        return result;
    }
};

Numbers FirstNumbers(std::int32_t count) {
    Numbers numbers(static_cast<std::size_t>(count));
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

template <class List>
Numbers NumbersOf(const List& list) {
    return {list.begin(), list.end()};
}

TEST_F(ListTest, LimitedListsDropTheSurplus) {
    const auto bounded = [](FieldIo& io) {
        FixedVector<std::int32_t, 3> list;
        list.Append(9);
        io.BoundedList(u"count", list, [&](std::int32_t& n) { io.Int(u"n", n); });
        return NumbersOf(list);
    };
    const auto capped = [](FieldIo& io) {
        FixedVector<std::int32_t, 3> list;
        io.CappedList(u"count", list, [&](std::int32_t& n) { io.Int(u"n", n); });
        return NumbersOf(list);
    };
    for (const std::int32_t count : {0, 3}) {
        EXPECT_EQ(ReadList(count, bounded), FirstNumbers(count));
        EXPECT_EQ(ReadList(count, capped), FirstNumbers(count));
    }
    EXPECT_EQ(ReadList(-5, bounded), Numbers());
    EXPECT_EQ(TakeReports(), Reports());
    EXPECT_EQ(ReadList(5, bounded), FirstNumbers(3));
    EXPECT_EQ(TakeReports(),
              Reports(2, "count exceeds the maximum allowed. 5 requested but only 3 allowed. If a larger "
                         "number is needed bug a programmer!\n"));
    EXPECT_EQ(ReadList(5, capped), FirstNumbers(3));
    EXPECT_EQ(TakeReports(), Reports(4, Check("m_CurrentSize < MAX_SIZE")));
}

TEST_F(ListTest, HeapListsTakeAll) {
    const auto growing = [](FieldIo& io) {
        DynamicVector<std::int32_t> list;
        list.Append(9);
        io.GrowingList(u"count", list, [&](std::int32_t& n) { io.Int(u"n", n); });
        return NumbersOf(list);
    };
    const auto reserved = [](FieldIo& io) {
        DynamicVector<std::int32_t> list;
        io.ReservedList(u"count", list, [&](std::int32_t& n) { io.Int(u"n", n); });
        return NumbersOf(list);
    };
    for (const std::int32_t count : {0, 1, 500}) {
        EXPECT_EQ(ReadList(count, growing), FirstNumbers(count));
        EXPECT_EQ(ReadList(count, reserved), FirstNumbers(count));
    }
    EXPECT_EQ(ReadList(-1, reserved), Numbers());
}

// A damaged count ends in seconds, since the number of idle reads is limited.
class ValveTest : public ArchiveTest {
protected:
    void Handle(const char*, int, std::u16string_view, bool) override {}

    int EntriesRead(std::string_view bytes) {
        int entries = 0;
        Read(bytes, [&](FieldIo& io) {
            io.ReadEntries(io.ReadCount({u"count", ListRule::Growing}), [&](std::int32_t) {
                std::int32_t value = 0;
                io.Int(u"n", value);
                ++entries;
            });
        });
        return entries;
    }
};

TEST_F(ValveTest, IdleReadsCountWithTheirReports) {
    struct Row {
        std::string bytes;
        // What an idle read counts: itself, its reports, and each 256 bytes of them.
        int work;
    };
    const std::string text = std::string(kTextHeader) + "count 2147483647\n";
    const Row rows[] = {{text + "n 5\n", 1},
                        {text + "n five\n", 2},
                        {text + std::string(1000, 'x') + "\n", 2 + 4},
                        {std::string(kBinaryHeader) + "\xFF\xFF\xFF\x7F", 2}};
    for (const Row& row : rows) {
        EXPECT_NEAR(EntriesRead(row.bytes), 1000000 / row.work, 3) << row.bytes.substr(0, 40);
    }
}

TEST_F(ValveTest, OtherReportsDoNotCount) {
    Read(std::string(kTextHeader) + "b 1\nn 2\n", [&](FieldIo& io) {
        std::int32_t value = 0;
        for (const char16_t* label : {u"a", u"b", u"n"}) {
            io.Int(std::u16string_view(label), value);
        }
        for (std::uint64_t start = GetReportCost(); GetReportCost() - start <= 1000000;) {
            ReportError(u"%s", std::u16string(4000, u'r').c_str());
        }
        io.Int(u"n", value);
        io.ReadEntries(1, [&](std::int32_t) { value = 3; });
        EXPECT_EQ(value, 3);
    });
}

// Thrown instead of ending the process.
struct End {};

class CaughtEnd final : public EndGuard {
public:
    void BeforeAbnormalEnd() override { throw End(); }
};

// Five bytes and two texts in a binary file, but much more in memory.
struct SmallRecord : Record {
    void Fields(FieldIo& io) override {
        io.Bool(u"flag", flag);
        io.Uint(u"number", number);
        io.String(u"text", text);
        CheckAssert(number != 0, "of a default");
        io.String(u"text", text);
    }

    Bool flag;
    std::uint32_t number = 0;
    FixedString<256> text;
};

TEST_F(ListTest, RoomFollowsTheSource) {
    const CaughtEnd caughtEnd;
    constexpr std::int32_t kGranted = 64 << 20;
    const auto readFrom = [&](std::size_t sourceSize, const Fields& fields) {
        std::string source(kBinaryHeader);
        source.resize(sourceSize);
        Read(source, fields);
    };
    readFrom(100, [](FieldIo& io) {
        io.MakeRoom<std::uint32_t>(kGranted / 4);
        EXPECT_THROW(io.MakeRoom<std::uint32_t>(kGranted / 4 + 1), End);
    });
    readFrom(100, [](FieldIo& io) {
        io.MakeRoom<SmallRecord>(kGranted / 13);
        io.MakeRoom<SmallRecord>(-1);
        EXPECT_THROW(io.MakeRoom<SmallRecord>(kGranted / 13 + 1), End);
    });
    readFrom(2 << 20, [](FieldIo& io) {
        EXPECT_EQ(io.MakeRoom<std::uint32_t>(kGranted / 2).GetLikelyCount(), (2 << 20) / 4);
        EXPECT_THROW(io.MakeRoom<std::uint32_t>(kGranted / 2 + 1), End);
    });
    readFrom(100, [](FieldIo& io) {
        const ListRoom outer = io.MakeRoom<std::uint32_t>(kGranted / 8);
        io.MakeRoom<std::uint32_t>(kGranted / 16);
        EXPECT_THROW(io.MakeRoom<std::uint32_t>(kGranted / 16 + 1), End) << "lists inside count together";
    });
}

TEST_F(ListTest, VersionsDivideWhatIsRead) {
    const auto holds = [&](std::string_view bytes) {
        std::string result;
        Read(bytes, [&](FieldIo& io) {
            for (const std::int32_t threshold : {-1, 190, 194}) {
                result += io.Since(threshold) ? 'S' : '-';
                result += io.Before(threshold) ? 'B' : '-';
            }
        });
        return result;
    };
    EXPECT_EQ(holds("TXT\n\n"), "S--B-B");
    EXPECT_EQ(holds("TXT2\nZephArchiveVersion 190\n"), "S-S--B");
    EXPECT_EQ(holds(std::string("BIN2\n\xC2\0\0\0", 9)), "S-S-S-");
    Written(FileArchiveType::Text, [](FieldIo& io) { EXPECT_TRUE(io.Since(500) && io.Writing()); });
}

} // namespace

} // namespace Vorn
